#include "monkey/MonkeyDisc.h"

#include <array>
#include <fstream>

namespace orvanta::test {

namespace {

const std::array<std::string, 14> kNames = {"Żółw",  "Gra & zabawa", "a",   "Muzyka",   "Film",
                                            "Dalej", "[x]",          "k=v", "Programy", "Kraków",
                                            "x y z", "B2",           "ąęć", "Ostatni"};

template <class List>
const auto& Any(const List& list, std::mt19937& random) {
  return list[static_cast<std::size_t>(Below(random, static_cast<int>(std::size(list))))];
}

}  // namespace

MonkeyDisc::MonkeyDisc(std::mt19937& random) : sound_(Below(random, 2) == 0) {
  File("gra.exe", "MZ");
  File("film.avi", "film");
  Sound("song.wav", 3);
  Picture("last.gif", 700, 20);
  for (int voice = Below(random, 4); voice > 1; --voice)
    Set("VOICES", "Exit" + std::to_string(voice), "exit1.wav");
  Set("MENUITEM", "BackStyle", std::to_string(Below(random, 2)));
  Tree(random);
  if (!sound_) Spoil(random);
}

void MonkeyDisc::Tree(std::mt19937& random) {
  // The names in order: a node's children come behind it, so that a well-formed tree ends.
  const int nodes = static_cast<int>(kNames.size());
  const auto children = [&](const std::string& node, int from) {
    std::vector<std::string> names;
    for (int n = 1 + Below(random, 16); n > 0 && from < nodes; --n) {
      names.push_back(kNames[static_cast<std::size_t>(from + Below(random, nodes - from))]);
    }
    if (!sound_ && Below(random, 3) == 0) names.push_back(Below(random, 2) ? "MAINMENU" : node);
    Menu(node, names);
  };
  children("MAINMENU", 0);
  for (int i = 0; i < nodes; ++i) {
    const std::string& name = kNames[static_cast<std::size_t>(i)];
    if (i + 1 < nodes && Below(random, 3) == 0) children(name, i + 1);
    if (Below(random, 8) != 0) Leaf(name, random);
  }
  Set("GLOBAL", "MenuLevels", std::to_string(sound_ ? nodes + 1 : Below(random, 4) - 1));
}

void MonkeyDisc::Leaf(const std::string& name, std::mt19937& random) {
  const int kind = Below(random, 4);
  if (kind == 0) Set(name, "Execute", "%:\\gra.exe");
  if (kind == 1) Set(name, "PlayAs", "Music"), Set(name, "Parameters", "%:\\Data\\Sound\\song.wav");
  if (kind == 2) Set(name, "PlayAs", "avi"), Set(name, "Parameters", "%:\\film.avi");
  const int shots = 1 + Below(random, 7);
  for (int i = 1; i <= shots; ++i) Set(name, "Shot" + std::to_string(i), i % 3 ? "shot.gif" : "last.gif");
}

void MonkeyDisc::Spoil(std::mt19937& random) {
  const std::array<std::string, 15> garbage = {"",          "abc", "-32768", "32767", "99999999",
                                               "1e30",      "-1",  "0.5",    "0",     "%:\\",
                                               "..\\..\\x", "\"",  "300",    "True",  std::string(300, 'x')};
  for (int n = Below(random, 25); n > 0; --n) {
    const auto keys = Keys();
    const auto& [section, key] = Any(keys, random);
    if (Below(random, 3) == 0) {
      Remove(section, key);
    } else {
      Set(section, key, Any(garbage, random));
    }
  }
  // A long pause at each step of the crosshair is no fault, it only takes the monkey's time.
  Set("MENUITEM", "Line2Sleep", std::to_string(Below(random, 3)));
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(Data())) {
    if (entry.is_regular_file() && entry.path().extension() != ".ini") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  for (int n = Below(random, 10); n > 0; --n) {
    const auto& file = Any(files, random);
    const int how = Below(random, 3);
    if (how == 0) std::filesystem::remove(file);
    if (how == 1) std::ofstream(file, std::ios::trunc | std::ios::binary) << "GIF8";
    if (how == 2) std::ofstream(file, std::ios::trunc | std::ios::binary) << "GIF89a\xFF\xFF\xFF\x7F";
  }
}

void MonkeyDisc::Furnish(HeadlessHost& host, std::mt19937& random) const {
  host.screen = Any(std::array<Size, 3>{{{1024, 768}, {640, 480}, {800, 600}}}, random);
  host.soundCard = Below(random, 5) != 0;
  host.messageHold = Any(std::array<Milliseconds, 3>{{0, 30, 900}}, random);
  const Milliseconds delay = Any(std::array<Milliseconds, 4>{{0, 0, 700, 5000}}, random);
  host.media["film.avi"] = {2.5, Any(std::array<Size, 3>{{{320, 240}, {15, 13}, {0, 0}}}, random), delay};
  if (Below(random, 2) == 0) host.media["song.wav"] = {3, {}, delay};
}

}  // namespace orvanta::test
