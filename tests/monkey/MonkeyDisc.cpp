#include <algorithm>

#include "monkey/Monkey.h"

namespace orvanta::test {

namespace {

namespace fs = std::filesystem;

const std::vector<std::string> kNames = {"MAINMENU", "Żółw",  "Gra & zabawa", "a",      "Muzyka",
                                         "Film",     "Dalej", "[x]",          "k=v",    "Programy",
                                         "x y z",    "B2",    "ąęć",          "Ostatni"};
const std::vector<std::string> kGarbage = {"",          "abc", "-32768", "32767", "99999999",
                                           "1e30",      "-1",  "0.5",    "0",     "%:\\",
                                           "..\\..\\x", "\"",  "300",    "True",  std::string(300, 'x')};

template <class List>
const auto& Any(const List& list, Random& random) {
  return list[random() % list.size()];
}

}  // namespace

MonkeyDisc::MonkeyDisc(Random& random, bool isWellFormed) {
  File("gra.exe", "MZ");
  File("film.avi", "film");
  Sound("song.wav", 3);
  Picture("last.gif", 700, 20);
  Set("VOICES", "Exit2", "exit1.wav");
  Set("MENUITEM", "BackStyle", std::to_string(Below(random, 2)));
  Set("GLOBAL", "MenuLevels", std::to_string(isWellFormed ? kNames.size() : random() % 3));
  for (auto name = kNames.begin(); name != kNames.end(); ++name) {
    // In a well-formed tree the children come after the node in the list of names, so that the tree ends.
    const std::vector<std::string> behind(isWellFormed ? name + 1 : kNames.begin(), kNames.end());
    std::vector<std::string> children;
    for (int n = 1 + Below(random, 16); n > 0 && !behind.empty(); --n)
      children.push_back(Any(behind, random));
    if (name == kNames.begin() || Below(random, 3) == 0) Menu(*name, children);
    const int kind = Below(random, 5);
    if (kind == 0) Set(*name, "Execute", "%:\\gra.exe");
    if (kind == 1) Entry(*name, {{"PlayAs", "Music"}, {"Parameters", "%:\\Data\\Sound\\song.wav"}});
    if (kind == 2) Entry(*name, {{"PlayAs", "avi"}, {"Parameters", "%:\\film.avi"}});
    if (kind < 4) Shots(*name, 1 + Below(random, 7));
    if (kind < 2) Set(*name, "Shot1", "last.gif");
  }
}

void MonkeyDisc::Spoil(Random& random) {
  for (int n = Below(random, 25); n > 0; --n) {
    const auto keys = Keys();
    const auto& [section, key] = Any(keys, random);
    Below(random, 3) == 0 ? Remove(section, key) : Set(section, key, Any(kGarbage, random));
  }
  // A long pause at each step of the crosshair is not a fault, but it would waste the monkey's time.
  Set("MENUITEM", "Line2Sleep", std::to_string(Below(random, 3)));
  const std::vector<fs::path> files = Files();
  for (int n = Below(random, 10); n > 0; --n) {
    const fs::path& file = Any(files, random);
    const int how = Below(random, 3);
    if (how == 0) fs::remove(Folder() / file);
    if (how > 0) File(file, how == 1 ? "GIF8" : "GIF89a\xFF\xFF\xFF\x7F");
  }
}

}  // namespace orvanta::test
