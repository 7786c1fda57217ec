#pragma once

#include <fstream>
#include <string>

#include "disctool/Check.h"
#include "disctool/DiscProbe.h"
#include "platform/headless/PictureFile.h"
#include "support/TestDisc.h"

namespace orvanta::test {

/// Takes a file for what its first bytes say.
struct FirstBytesProbe : DiscProbe {
  int tries = 0;

  std::optional<Size> PictureSize(const std::filesystem::path& file) override {
    ++tries;
    const PicturePtr picture = ReadPictureFile(file);
    return picture ? std::optional(picture->PixelSize()) : std::nullopt;
  }
  bool IsFont(const std::filesystem::path& file) override { return Begins(file, "font"); }
  bool CanPlay(const std::filesystem::path& file, bool film) override {
    return Begins(file, film ? "film" : "RIFF");
  }

 private:
  static bool Begins(const std::filesystem::path& file, const std::string& with) {
    std::ifstream in(file, std::ios::binary);
    std::string begin(with.size(), '\0');
    in.read(begin.data(), static_cast<std::streamsize>(begin.size()));
    return begin == with;
  }
};

/// A disc without a fault: a program, a piece of music and a film.
struct GoodDisc : TestDisc {
  GoodDisc() {
    File("Data/title.ttf", "font");
    File("Data/menu.ttf", "font");
    File("setup.exe", "MZ");
    File("film.avi", "film");
    Menu("MAINMENU", {"Programy", "Muzyka", "Film"});
    Menu("Programy", {"Gra"});
    const auto entry = [this](const std::string& name,
                              std::vector<std::pair<std::string, std::string>> keys) {
      keys.insert(keys.end(), {{"Note", "Opis"}, {"System", "Wymagania"}});
      Entry(name, keys);
    };
    entry("Gra", {{"Execute", "%:\\setup.exe"}});
    entry("Muzyka", {{"PlayAs", "music"}, {"Parameters", "%:\\Data\\Sound\\loop.wav"}});
    entry("Film", {{"PlayAs", "MOVIE"}, {"Parameters", "%:\\film.avi"}});
  }

  Findings Check() const {
    FirstBytesProbe probe;
    return CheckDisc(Folder(), probe);
  }
  /// The number of the line of Menu.ini that begins with `text`, 0 if there is none.
  int LineOf(const std::string& text) const {
    std::ifstream in(Data() / "Menu.ini", std::ios::binary);
    int number = 1;
    for (std::string line; std::getline(in, line); ++number)
      if (line.starts_with(text)) return number;
    return 0;
  }
  std::string MenuIni() const {
    std::ifstream in(Data() / "Menu.ini", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
};

}  // namespace orvanta::test
