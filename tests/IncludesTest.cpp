#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

namespace orvanta {
namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

const Words kShell{"platform", "config", "startup", "menu", "buttons", "media", "launcher"};
const Words kOthers{"platform/headless", "platform/desktop", "disctool", "disctool/desktop", "apps"};
/// The rooms that may include headers of other libraries.
const Words kOutward{"platform/desktop", "disctool/desktop", "apps"};
/// What the core takes from the system beside the C++ library. Think twice before adding to it.
const Words kSystemHeaders{"fcntl.h", "unistd.h", "sys/stat.h", "sys/types.h", "immintrin.h"};

bool has(const Words& words, const std::string& word) { return std::ranges::count(words, word) > 0; }

bool mayIncludeRoom(const std::string& from, const std::string& to) {
  if (from == to || to == "apps") return from == to;
  if (from == "apps" || from == "disctool/desktop") return true;
  return to == "platform" || (has(kShell, to) && from != "config" && !from.starts_with("platform"));
}

/// The innermost room that `path`, written from src/, lies in; empty if in none.
std::string roomOf(const fs::path& path) {
  fs::path folder = path.parent_path();
  while (!folder.empty() && !has(kShell, folder) && !has(kOthers, folder)) folder = folder.parent_path();
  return folder;
}

bool mayInclude(const std::string& file, const std::string& header, bool quoted) {
  const std::string from = roomOf(file), to = roomOf(header);
  if (!to.empty()) return mayIncludeRoom(from, to);
  if (quoted) return from == "apps";  // elsewhere our files go by their path from src/
  return has(kOutward, from) || has(kSystemHeaders, header) ||
         header.find_first_not_of("abcdefghijklmnopqrstuvwxyz_") == std::string::npos;
}

/// The includes in `text` that `file`, written from src/, must not have.
Words violations(const std::string& file, const std::string& text) {
  const std::regex include(R"re((?:^|\n)[ \t]*#[ \t]*include[ \t]*([<"])([^>"\n]+)[>"])re");
  Words found;
  for (std::sregex_iterator it(text.begin(), text.end(), include), end; it != end; ++it)
    if (!mayInclude(file, it->str(2), it->str(1) == "\"")) found.push_back(file + ": " + it->str(2));
  return found;
}

TEST(Includes, EveryFileKeepsToItsRoom) {
  const fs::path root = ORVANTA_SOURCE_DIR;
  for (const char* top : {"src", "apps"}) {
    for (const auto& entry : fs::recursive_directory_iterator(root / top)) {
      if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
      const std::string file = entry.path().lexically_relative(top[0] == 's' ? root / "src" : root);
      ASSERT_NE(roomOf(file), "") << file << " lies in no room";
      std::ifstream in(entry.path(), std::ios::binary);
      EXPECT_EQ(violations(file, {std::istreambuf_iterator<char>(in), {}}), Words{});
    }
  }
}

TEST(Includes, ARoomIsSeenThatReachesWhereItMustNot) {
  const std::pair<const char*, Words> forbidden[] = {
      {"<QWidget>", {"platform/Form.h", "platform/headless/Clock.h", "config/Ini.cpp", "disctool/Check.cpp"}},
      {"\"startup/Shell.h\"", {"platform/Form.cpp", "config/Ini.cpp", "platform/desktop/Window.cpp"}},
      {"\"platform/headless/Clock.h\"", {"platform/Form.cpp", "buttons/modMouse.cpp", "disctool/Check.cpp"}},
      {"\"disctool/Check.h\"", {"startup/Shell.cpp", "platform/desktop/Window.cpp"}},
      {"\"modExec.h\"", {"launcher/modExec.cpp"}}};
  for (const auto& [header, files] : forbidden)
    for (const std::string& file : files)
      EXPECT_EQ(violations(file, "#pragma once\n # include " + std::string(header)).size(), 1U) << file;
  EXPECT_EQ(violations("menu/Menu.cpp", "#include <cmath>\n#include \"media/frmKino.h\"\n"), Words{});
  EXPECT_EQ(violations("disctool/desktop/Open.cpp", "#include <QFile>\n#include \"startup/Shell.h\"\n"),
            Words{});
}

}  // namespace
}  // namespace orvanta
