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
                  kSystem = "|[a-z_]+|((sys|linux)/)?[a-z_]+\\.h", kQt = "Q[A-Za-z]+" + kSystem,
                  kShell = "platform|config|startup|menu|buttons|media|launcher",
                  kLogic = "|(" + kShell + ")/\\w+\\.h";
/// The first match counts.
const Room kRooms[] = {
    {"apps/orvanta-disc/", "disctool/tool/\\w+\\.h", kStandard},
    {"apps/", "(platform/\\w+|startup)/\\w+\\.h", kStandard},
    {"src/disctool/image/sectors/",
     "disctool/(image/sectors/|disc/)?\\w+\\.h|platform/desktop/Descriptor\\.h" + kLogic, kStandard},
    {"src/disctool/image/volume/", "disctool/(image/(sectors|volume)/|disc/)?\\w+\\.h" + kLogic, kStandard},
    {"src/disctool/image/",
     "disctool/(image/((sectors|volume)/)?|disc/)?\\w+\\.h|platform/desktop/Descriptor\\.h" + kLogic,
     kQt + "|archive(_entry)?\\.h"},
    {"src/disctool/making/", "disctool/(making/|disc/)?\\w+\\.h" + kLogic, kQt},
    {"src/disctool/gallery/",
     "disctool/((gallery|disc|check)/)?\\w+\\.h|platform/(headless|desktop/(window|media))/\\w+\\.h" + kLogic,
     kQt},
    {"src/disctool/export/",
     "disctool/((export|disc)/)?\\w+\\.h|disctool/gallery/SiteFile\\.h|platform/desktop/media/\\w+\\.h" +
         kLogic,
     kQt + "|gst/.*"},
    {"src/disctool/tool/",
     "disctool/((image/sectors|\\w+)/)?\\w+\\.h|platform/desktop/(\\w+/)?\\w+\\.h" + kLogic, kQt + "|gst/.*"},
    {"src/disctool/command/", "disctool/((command|check|disc)/)?\\w+\\.h" + kLogic, kStandard},
    {"src/disctool/check/", "disctool/((check|disc)/)?\\w+\\.h|platform/headless/\\w+\\.h" + kLogic,
     kStandard},
    {"src/disctool/disc/", "disctool/(disc/)?\\w+\\.h" + kLogic, kStandard},
    {"src/disctool/", "disctool/\\w+\\.h", kStandard},
    {"src/platform/desktop/window/", "platform/(desktop/(window/)?)?\\w+\\.h", kQt + "|xcb/.*"},
    {"src/platform/desktop/media/", "platform/(desktop/((window|media)/)?)?\\w+\\.h",
     kQt + "|(gst|pulse|alsa)/.*"},
    {"src/platform/desktop/start/", "platform/(desktop/(start/)?)?\\w+\\.h", "gio/.*" + kSystem},
    {"src/platform/desktop/", "platform/(desktop/(\\w+/)?)?\\w+\\.h", kQt + "|xcb/.*"},
    {"src/platform/headless/", "platform/(headless/)?\\w+\\.h", kStandard},
    {"src/platform/web/", "platform/(web/)?\\w+\\.h", kStandard},
    {"src/platform/", "platform/\\w+\\.h", kStandard},
    {"src/config/", "(platform|config)/\\w+\\.h", kStandard},
    {"src/", "(" + kShell + ")/\\w+\\.h", kStandard}};

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

TEST(Includes, EveryRoomIsInTheDrawing) {
  std::ifstream in(ProjectFolder() / "docs/architecture.md", std::ios::binary);
  const std::string drawing{std::istreambuf_iterator(in), {}};
  for (const auto& entry : fs::recursive_directory_iterator(ProjectFolder() / "src")) {
    if (entry.path().extension() != ".cpp") continue;
    const std::string room = entry.path().parent_path().lexically_relative(ProjectFolder() / "src").string();
    EXPECT_NE(drawing.find("\n| `" + room + "/` "), std::string::npos) << room;
  }
}

}  // namespace
}  // namespace orvanta
