#include "support/TestDisc.h"

#include <algorithm>
#include <sstream>

#include "config/Windows1250.h"
#include "support/Project.h"

namespace orvanta::test {

namespace {

/// The pictures that complete.ini names, except those of buttons, with their sizes.
constexpr const char* kArt =
    "main 667 496 tlo 472 309 kreska 472 33 producer 40 30 help 400 600 about 400 250 startpic 64 45 "
    "under 64 3 left 10 80 upper 204 6 right1 6 10 right2 6 10 right3 6 10 bar 20 270 knob 16 20 "
    "shot 320 240 kino 600 450";

/// A number in `bytes` bytes, low byte first.
std::string Number(std::uint32_t n, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i, n >>= 8) text += static_cast<char>(n & 0xFF);
  return text;
}

}  // namespace

TestDisc::TestDisc() {
  std::ifstream complete(ProjectFolder() / "tests/support/complete.ini");
  std::string section;
  for (std::string line; std::getline(complete, line);) {
    const std::string key = line.substr(0, line.find('=')), value = line.substr(line.find('=') + 1);
    if (line[0] == '[') section = line.substr(1, line.size() - 2);
    if (line[0] != '[') sections_[section][key] = value;
    if (line[0] == '[' || !key.ends_with('B') || value.ends_with(".gif")) continue;
    for (const char* look : {"0", "1", "2"}) Picture(value + look + ".gif", 36, 24);  // a button
  }
  std::istringstream art(kArt);
  int width = 0, height = 0;
  for (std::string name; art >> name >> width >> height;) Picture(name + ".gif", width, height);
  Sound("start.wav", 1.2);
  Sound("loop.wav", 20);
  Sound("exit1.wav", 1.5);
  Write();
}

void TestDisc::Menu(const std::string& node, const std::vector<std::string>& children) {
  for (std::size_t i = 0; i < children.size(); ++i) Set(node, "Menu" + std::to_string(i + 1), children[i]);
}

void TestDisc::Entry(const std::string& name, const test::Keys& keys) {
  Shots(name, 1);
  for (const auto& [key, value] : keys) Set(name, key, value);
}

void TestDisc::Shots(const std::string& entry, int count) {
  for (int i = 1; i <= count; ++i) Set(entry, "Shot" + std::to_string(i), "shot.gif");
}

void TestDisc::Picture(const std::string& name, int width, int height, std::uint32_t colour) {
  const std::string size =
      Number(static_cast<std::uint32_t>(width), 2) + Number(static_cast<std::uint32_t>(height), 2);
  std::string gif = "GIF89a" + size + std::string("\x86\0\0", 3) + Number(colour >> 16, 1) +
                    Number(colour >> 8, 1) + Number(colour, 1) + std::string(127 * 3, '\0') +
                    std::string(",\0\0\0\0", 5) + size + std::string("\0\x07", 2);
  // With a palette of 128 colours each code is one byte, as long as a clear code keeps the dictionary small.
  for (int left = width * height; left > 0; left -= 100) {
    const auto pixels = static_cast<std::size_t>(std::min(left, 100));
    gif += static_cast<char>(pixels + 1) + std::string("\x80") + std::string(pixels, '\0');
  }
  File("Data/" + name, gif + std::string("\1\x81\0;", 4));
}

void TestDisc::Sound(const std::string& name, double seconds) {
  constexpr std::uint32_t kRate = 8000;
  const auto samples = static_cast<std::uint32_t>(seconds * kRate);
  File("Data/Sound/" + name, "RIFF" + Number(36 + samples, 4) + "WAVEfmt " + Number(16, 4) + Number(1, 2) +
                                 Number(1, 2) + Number(kRate, 4) + Number(kRate, 4) + Number(1, 2) +
                                 Number(8, 2) + "data" + Number(samples, 4) + std::string(samples, '\x80'));
}

test::Keys TestDisc::Keys() const {
  test::Keys keys;
  for (const auto& [section, values] : sections_)
    for (const auto& [key, value] : values) keys.emplace_back(section, key);
  return keys;
}

std::vector<std::filesystem::path> TestDisc::Files() const {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(Data())) {
    if (!entry.is_regular_file() || entry.path().extension() == ".ini") continue;
    files.push_back(entry.path().lexically_relative(Folder()));
  }
  std::sort(files.begin(), files.end());
  return files;
}

void TestDisc::Write() const {
  std::string text;
  for (const auto& [section, values] : sections_) {
    if (!values.empty()) text += "[" + section + "]\r\n";
    for (const auto& [key, value] : values) text += key + "=" + value + "\r\n";
  }
  // Throws if a text cannot be written in Windows-1250.
  folder_.File("Data/Menu.ini", ToWindows1250(text).value());
}

}  // namespace orvanta::test
