#pragma once

#include <string>

#include "disctool/check/Check.h"
#include "disctool/disc/DiscProbe.h"
#include "platform/headless/PictureFile.h"
#include "support/TestDisc.h"

namespace orvanta::test {

inline std::string TextOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// A probe that only looks at the first bytes of a file.
struct FirstBytesProbe : DiscProbe {
  std::optional<Size> PictureSize(const std::filesystem::path& file) override {
    const PicturePtr picture = ReadPictureFile(file);
    return picture ? std::optional(picture->PixelSize()) : std::nullopt;
  }
  std::int64_t MostPixels() const override { return 1000000; }
  std::vector<std::string> FontNames(const std::filesystem::path& file) override {
    return TextOf(file).starts_with("font") ? std::vector<std::string>{"Arial"} : std::vector<std::string>();
  }
  bool CanPlay(const std::filesystem::path& file, bool film) override {
    return TextOf(file).starts_with(film ? "film" : "RIFF");
  }
  std::string DecodingProblem(const std::filesystem::path& file) override {
    return TextOf(file).ends_with("cut") ? "it ends after 3 of 60 s" : "";
  }
  /// The pictures of a test have one colour.
  std::optional<std::uintmax_t> DifferentPixels(const std::filesystem::path& a,
                                                const std::filesystem::path& b) override {
    const auto left = PictureSize(a), right = PictureSize(b);
    if (!left || left != right) return std::nullopt;
    return TextOf(a) == TextOf(b) ? 0U : static_cast<std::uintmax_t>(left->width * left->height);
  }
};

/// The least that DOS runs: one page with a header of two paragraphs.
inline const std::string kDosProgram("MZ\x20\0\1\0\0\0\2\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x1C\0\0\0\0\0\0\0",
                                     32);

/// A disc without a fault: a program, a piece of music and a film.
struct GoodDisc : TestDisc {
  GoodDisc() {
    File("Data/title.ttf", "font");
    File("Data/menu.ttf", "font");
    File("setup.exe", kDosProgram);
    File("film.avi", "film");
    Menu("MAINMENU", {"Programy", "Muzyka", "Film"});
    Menu("Programy", {"Gra"});
    Entry("Gra", {{"Execute", "%:\\setup.exe"}});
    Entry("Muzyka", {{"PlayAs", "music"}, {"Parameters", "%:\\Data\\Sound\\loop.wav"}});
    Entry("Film", {{"PlayAs", "MOVIE"}, {"Parameters", "%:\\film.avi"}});
    for (const char* entry : {"Gra", "Muzyka", "Film"})
      for (const char* text : {"Note", "System"}) Set(entry, text, "Opis");
  }

  Findings Check() const {
    FirstBytesProbe probe;
    return CheckDisc(FolderTree(Folder()), probe);
  }
  std::string MenuIni() const { return TextOf(Data() / "Menu.ini"); }
};

}  // namespace orvanta::test
