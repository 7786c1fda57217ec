#include "support/TestDisc.h"

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "config/Windows1250.h"
#include "support/CompleteDisc.h"

namespace orvanta::test {

namespace {

struct Art {
  const char* name;
  int width, height;
};
constexpr Art kArt[] = {{"main", 667, 496}, {"tlo", 472, 309},   {"kreska", 472, 33},  {"producer", 40, 30},
                        {"help", 400, 600}, {"about", 400, 250}, {"startpic", 64, 45}, {"under", 64, 3},
                        {"left", 10, 80},   {"upper", 204, 6},   {"right1", 6, 10},    {"right2", 6, 10},
                        {"right3", 6, 10},  {"bar", 20, 270},    {"knob", 16, 20},     {"shot", 320, 240},
                        {"kino", 600, 450}};
constexpr const char* kButtons[] = {"ext", "snd1",  "snd2",  "hlp",   "start",  "pauza",  "stop",   "info",
                                    "min", "pokaz", "cplay", "cstop", "cpause", "cscale", "cfscale"};

void WriteFile(const std::filesystem::path& file, const std::string& bytes) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// A number in so many bytes, low byte first.
std::string Number(std::uint32_t n, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i, n >>= 8) text += static_cast<char>(n & 0xFF);
  return text;
}

}  // namespace

std::string GifBytes(int width, int height, std::uint32_t colour) {
  const std::string size =
      Number(static_cast<std::uint32_t>(width), 2) + Number(static_cast<std::uint32_t>(height), 2);
  std::string gif = "GIF89a" + size + std::string("\x80\0\0", 3) + Number(colour >> 16, 1) +
                    Number(colour >> 8, 1) + Number(colour, 1) + std::string("\0\0\0,\0\0\0\0", 8) + size +
                    std::string("\0\x02", 2);
  // A clear code before every second pixel keeps the codes three bits long, so that no dictionary is needed.
  std::uint32_t bits = 0;
  int count = 0;
  std::string data;
  const auto put = [&](std::uint32_t code) {
    bits |= code << count;
    for (count += 3; count >= 8; count -= 8, bits >>= 8) data += static_cast<char>(bits & 0xFF);
  };
  for (int i = 0; i < width * height; ++i) {
    if (i % 2 == 0) put(4);
    put(0);
  }
  put(5);
  data += static_cast<char>(bits & 0xFF);
  for (std::size_t at = 0; at < data.size(); at += 255) {
    const std::string block = data.substr(at, 255);
    gif += static_cast<char>(block.size()) + block;
  }
  return gif + std::string("\0;", 2);
}

TestDisc::TestDisc() {
  std::string name = (std::filesystem::temp_directory_path() / "orvanta-disc-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
  folder_ = name;
  std::istringstream text(kCompleteDisc);
  std::string section;
  for (std::string line; std::getline(text, line);) {
    const auto equals = line.find('=');
    if (line.front() == '[') {
      section = line.substr(1, line.size() - 2);
    } else {
      lines_.push_back({section, line.substr(0, equals), line.substr(equals + 1)});
    }
  }
  for (const Art& art : kArt) Picture(std::string(art.name) + ".gif", art.width, art.height);
  for (const std::string button : kButtons) {
    for (const char* look : {"0", "1", "2"}) Picture(button + look + ".gif", 36, 24);
  }
  Sound("start.wav", 1.2);
  Sound("loop.wav", 20);
  Sound("exit1.wav", 1.5);
  Write();
}

TestDisc::~TestDisc() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void TestDisc::Set(const std::string& section, const std::string& key, const std::string& value) {
  const auto same = [&](const Line& line) { return line.section == section && line.key == key; };
  if (const auto old = std::find_if(lines_.begin(), lines_.end(), same); old != lines_.end()) {
    old->value = value;
  } else {
    const auto last =
        std::find_if(lines_.rbegin(), lines_.rend(), [&](auto& line) { return line.section == section; });
    lines_.insert(last == lines_.rend() ? lines_.end() : last.base(), {section, key, value});
  }
  Write();
}

std::string TestDisc::Value(const std::string& section, const std::string& key) const {
  for (const Line& line : lines_) {
    if (line.section == section && line.key == key) return line.value;
  }
  return {};
}

void TestDisc::Remove(const std::string& section, const std::string& key) {
  std::erase_if(lines_, [&](const Line& line) { return line.section == section && line.key == key; });
  Write();
}

void TestDisc::Menu(const std::string& node, const std::vector<std::string>& children) {
  for (std::size_t i = 0; i < children.size(); ++i) Set(node, "Menu" + std::to_string(i + 1), children[i]);
}

void TestDisc::Entry(const std::string& name, const std::vector<std::pair<std::string, std::string>>& keys) {
  Set(name, "Shot1", "shot.gif");
  for (const auto& [key, value] : keys) Set(name, key, value);
}

void TestDisc::Picture(const std::string& name, int width, int height, std::uint32_t colour) {
  WriteFile(Data() / name, GifBytes(width, height, colour));
}

void TestDisc::Sound(const std::string& name, double seconds) {
  constexpr std::uint32_t kRate = 8000;
  const auto samples = static_cast<std::uint32_t>(seconds * kRate);
  WriteFile(Data() / "Sound" / name, "RIFF" + Number(36 + samples, 4) + "WAVEfmt " + Number(16, 4) +
                                         Number(1, 2) + Number(1, 2) + Number(kRate, 4) + Number(kRate, 4) +
                                         Number(1, 2) + Number(8, 2) + "data" + Number(samples, 4) +
                                         std::string(samples, '\x80'));
}

void TestDisc::File(const std::string& path, const std::string& bytes) { WriteFile(folder_ / path, bytes); }

std::vector<std::pair<std::string, std::string>> TestDisc::Keys() const {
  std::vector<std::pair<std::string, std::string>> keys;
  for (const Line& line : lines_) keys.emplace_back(line.section, line.key);
  return keys;
}

void TestDisc::Write() const {
  std::string text, section;
  for (const Line& line : lines_) {
    if (line.section != section) text += "[" + (section = line.section) + "]\r\n";
    text += line.key + "=" + line.value + "\r\n";
  }
  const auto bytes = ToWindows1250(text);
  if (!bytes) throw std::runtime_error("a text of the disc has no form in Windows-1250");
  WriteFile(Data() / "Menu.ini", *bytes);
}

}  // namespace orvanta::test
