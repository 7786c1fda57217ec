#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {
namespace {

namespace fs = std::filesystem;

constexpr std::array shellRooms{"startup", "menu", "buttons", "media", "launcher"};
constexpr std::array otherRooms{"platform/headless", "platform/desktop", "platform", "config",
                                "disctool/desktop",  "disctool",         "apps"};
/// What the core takes from the system beside the C++ library. Think twice before adding to it.
constexpr std::array systemHeaders{"fcntl.h", "unistd.h", "sys/stat.h", "sys/types.h", "immintrin.h"};

bool isShell(std::string_view room) { return std::ranges::count(shellRooms, room) > 0; }

/// The innermost room that `path`, written from src/, lies in; empty if in none.
std::string_view roomOf(std::string_view path) {
  const auto holds = [&](std::string_view room) {
    return path.starts_with(room) && path.substr(room.size()).starts_with('/');
  };
  for (std::string_view room : otherRooms)
    if (holds(room)) return room;
  for (std::string_view room : shellRooms)
    if (holds(room)) return room;
  return {};
}

/// The rooms that bring all others together.
bool isOnTop(std::string_view room) { return room == "apps" || room == "disctool/desktop"; }

bool mayIncludeRoom(std::string_view from, std::string_view to) {
  if (isOnTop(from) || from == to || to == "platform") return to != "apps" || from == "apps";
  if (from == "disctool") return isShell(to) || to == "config";
  return isShell(from) && (isShell(to) || to == "config");
}

bool isStandard(const std::string& header) {
  return header.find_first_not_of("abcdefghijklmnopqrstuvwxyz_") == std::string::npos ||
         std::ranges::count(systemHeaders, header) > 0;
}

bool mayInclude(std::string_view file, const std::string& header, bool quoted) {
  const std::string_view from = roomOf(file);
  if (const auto to = roomOf(header); !to.empty()) return mayIncludeRoom(from, to);
  if (from == "apps") return true;
  if (quoted) return false;  // a file of ours, but not by its path from src/
  return from == "platform/desktop" || from == "disctool/desktop" || isStandard(header);
}

/// The includes in `text` that `file`, written from src/, must not have.
std::vector<std::string> violations(const std::string& file, const std::string& text) {
  const std::regex include(R"re((?:^|\n)[ \t]*#[ \t]*include[ \t]*([<"])([^>"\n]+)[>"])re");
  std::vector<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), include), end; it != end; ++it)
    if (!mayInclude(file, it->str(2), it->str(1) == "\"")) found.push_back(file + ": " + it->str(2));
  return found;
}

std::string textOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST(Includes, EveryFileKeepsToItsRoom) {
  const fs::path root = ORVANTA_SOURCE_DIR;
  std::size_t files = 0;
  const auto check = [&](const fs::path& folder, const fs::path& writtenFrom) {
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      const auto extension = entry.path().extension();
      if (extension != ".h" && extension != ".cpp") continue;
      ++files;
      const std::string file = entry.path().lexically_relative(writtenFrom).generic_string();
      EXPECT_FALSE(roomOf(file).empty()) << file << " lies in no room";
      EXPECT_EQ(violations(file, textOf(entry.path())), std::vector<std::string>{});
    }
  };
  check(root / "src", root / "src");
  check(root / "apps", root);
  EXPECT_GT(files, 0U);
}

TEST(Includes, AForeignHeaderIsSeenOutsideTheDesktopHost) {
  for (const std::string header : {"QWidget", "QtGui/QImage", "gst/gst.h", "pulse/pulseaudio.h",
                                   "alsa/asoundlib.h", "xcb/xcb.h", "X11/Xlib.h", "glib.h"}) {
    const std::string line = "#pragma once\n  # include <" + header + ">\n";
    EXPECT_EQ(violations("platform/desktop/Window.cpp", line).size(), 0U) << header;
    EXPECT_EQ(violations("apps/orvanta/main.cpp", line).size(), 0U) << header;
    for (const std::string file : {"platform/Form.h", "platform/headless/Clock.h", "config/INI_Read.cpp",
                                   "startup/Shell.h", "launcher/modExec.cpp"})
      EXPECT_EQ(violations(file, line), std::vector<std::string>{file + ": " + header});
  }
  EXPECT_EQ(violations("menu/MainForm_Menu.cpp", "#include <string_view>\n#include <cmath>\n").size(), 0U);
}

TEST(Includes, ARoomIsSeenThatReachesWhereItMustNot) {
  struct Case {
    std::string file, header;
    bool allowed;
  };
  const std::vector<Case> cases{
      {"startup/Shell.cpp", "menu/frmShowPic.h", true},
      {"media/frmKino.cpp", "config/INI_Read.h", true},
      {"menu/frmShowPic.h", "platform/Form.h", true},
      {"platform/desktop/Window.cpp", "platform/Form.h", true},
      {"apps/orvanta/main.cpp", "platform/desktop/DesktopHost.h", true},
      {"apps/orvanta/main.cpp", "startup/Shell.h", true},
      {"config/INI_Read.cpp", "platform/Host.h", true},
      {"config/INI_Read.cpp", "startup/Shell.h", false},
      {"platform/Form.cpp", "config/Values.h", false},
      {"platform/Form.cpp", "platform/headless/Clock.h", false},
      {"platform/headless/Clock.cpp", "menu/frmShowPic.h", false},
      {"platform/headless/Clock.cpp", "platform/desktop/Window.h", false},
      {"platform/desktop/Window.cpp", "startup/Shell.h", false},
      {"buttons/modMouse.cpp", "platform/headless/Clock.h", false},
      {"launcher/modExec.cpp", "platform/desktop/Window.h", false},
      {"launcher/modExec.cpp", "modExec.h", false},
      {"disctool/Check.cpp", "config/Values.h", true},
      {"disctool/Check.cpp", "startup/modFormShape.h", true},
      {"disctool/Check.cpp", "platform/headless/Clock.h", false},
      {"disctool/Check.cpp", "disctool/desktop/Gallery.h", false},
      {"disctool/desktop/Gallery.cpp", "platform/desktop/Fonts.h", true},
      {"disctool/desktop/Gallery.cpp", "startup/Shell.h", true},
      {"startup/Shell.cpp", "disctool/Catalogue.h", false},
  };
  for (const auto& [file, header, allowed] : cases)
    EXPECT_EQ(violations(file, "#include \"" + header + "\"\n").empty(), allowed) << file << " " << header;
}

}  // namespace
}  // namespace orvanta
