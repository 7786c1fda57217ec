#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>

#include "support/Project.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// A room: the start of its files' paths, which of our headers it may include, and which others.
struct Room {
  std::string begin, ours, others;
};

/// The system headers that the core may use beside the standard library. libintl.h belongs to the C library
/// and translates messages. Think twice before you add one.
const std::string kStandard =
                      "[a-z_]+|libintl\\.h|fcntl\\.h|unistd\\.h|sys/stat\\.h|sys/types\\.h|immintrin\\.h",
                  kShell = "platform|config|startup|menu|buttons|media|launcher",
                  kLogic = "(" + kShell + ")/\\w+\\.h";
/// The first match counts.
const Room kRooms[] = {
    {"apps/", ".*", ".*"},
    {"src/disctool/image/sectors/",
     "disctool/(image/sectors/|disc/)?\\w+\\.h|platform/desktop/Descriptor\\.h|" + kLogic, kStandard},
    {"src/disctool/image/volume/", "disctool/(image/(sectors|volume)/|disc/)?\\w+\\.h|" + kLogic, kStandard},
    {"src/disctool/image/",
     "disctool/(image/((sectors|volume)/)?|disc/)?\\w+\\.h|platform/desktop/Descriptor\\.h|" + kLogic, ".*"},
    {"src/disctool/making/", "disctool/(making/|disc/)?\\w+\\.h|" + kLogic, ".*"},
    {"src/disctool/gallery/", "disctool/((gallery|disc|check)/)?\\w+\\.h|platform/.*|" + kLogic, ".*"},
    {"src/disctool/tool/", ".*", ".*"},
    {"src/disctool/command/", "disctool/((command|check|disc)/)?\\w+\\.h|" + kLogic, kStandard},
    {"src/disctool/check/", "disctool/((check|disc)/)?\\w+\\.h|" + kLogic, kStandard},
    {"src/disctool/disc/", "disctool/(disc/)?\\w+\\.h|" + kLogic, kStandard},
    {"src/disctool/", "disctool/\\w+\\.h|" + kLogic, kStandard},
    {"src/platform/desktop/window/", "platform/(desktop/((window|media)/)?)?\\w+\\.h", ".*"},
    {"src/platform/desktop/media/", "platform/(desktop/((window|media)/)?)?\\w+\\.h", ".*"},
    {"src/platform/desktop/start/", "platform/(desktop/(start/)?)?\\w+\\.h", ".*"},
    {"src/platform/desktop/", "platform/(desktop/(\\w+/)?)?\\w+\\.h", ".*"},
    {"src/platform/headless/", "platform/(headless/)?\\w+\\.h", kStandard},
    {"src/platform/", "platform/\\w+\\.h", kStandard},
    {"src/config/", "(platform|config)/\\w+\\.h", kStandard},
    {"src/", kLogic, kStandard}};

/// The includes in a file's text that its room must not have.
std::string Violations(const std::string& file, const std::string& text) {
  const auto room = std::ranges::find_if(kRooms, [&](const Room& r) { return file.starts_with(r.begin); });
  const std::regex include(R"re((?:^|\n)[ \t]*#[ \t]*include[ \t]*([<"])([^>"\n]+)[>"])re");
  std::string found;
  for (std::sregex_iterator it(text.begin(), text.end(), include), end; it != end; ++it) {
    const std::regex allowed(it->str(1) == "<" ? room->others : room->ours);
    if (!std::regex_match(it->str(2), allowed)) found += file + ": " + it->str(2) + "\n";
  }
  return found;
}

TEST(Includes, EveryFileKeepsToItsRoom) {
  const fs::path root = ProjectFolder();
  for (const char* top : {"src", "apps"}) {
    for (const auto& entry : fs::recursive_directory_iterator(root / top)) {
      if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
      std::ifstream in(entry.path(), std::ios::binary);
      EXPECT_EQ(Violations(entry.path().lexically_relative(root), {std::istreambuf_iterator(in), {}}), "");
    }
  }
  EXPECT_EQ(Violations("src/menu/a.h", "#pragma once\n # include <QMenu>"), "src/menu/a.h: QMenu\n");
}

}  // namespace
}  // namespace orvanta
