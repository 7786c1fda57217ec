#pragma once

#include <string>
#include <vector>

#include "support/TestShell.h"

namespace orvanta::test {

/// A disc whose root menu leads to an entry of each kind and to a menu. The film is 320 by 240 pixels and
/// plays for 30 seconds, as `Begin` tells the host; the music is 20 seconds long.
class EntryDisc : public TestDisc {
 public:
  enum Line { kProgram, kMusic, kFilm, kMenu };

  EntryDisc() {
    Menu("MAINMENU", {"Gra", "Piosenka", "Film", "Dalej"});
    Menu("Dalej", {"Druga"});
    Entry("Gra", {{"Execute", "%:\\gra.exe"}, {"Parameters", "-a \"b c\""}});
    Entry("Piosenka", {{"PlayAs", "Music"}, {"Parameters", "%:\\Data\\Sound\\song.wav"}});
    Entry("Film", {{"PlayAs", "AVI"}, {"Parameters", "%:\\film.avi"}});
    Entry("Druga", {{"PlayAs", "MUSIC"}, {"Parameters", "%:\\Data\\Sound\\second.wav"}});
    Sound("song.wav", 20);
    Sound("second.wav", 10);
    File("film.avi", "film");
    File("gra.exe", "MZ");
  }

  /// Starts the shell and opens an entry of the root menu; a second is left for the music to fall silent.
  static void Begin(TestShell& user, Line line) {
    user.host.media["film.avi"] = {30, {320, 240}, 0};
    user.Start();
    user.Choose(line);
    user.host.MoveMouse(kAside);
    user.Run(200);
  }

  /// A place on the main window without a button or label.
  static constexpr Point kAside{178 + 300, 136 + 30};
};

/// File name of the picture that a control shows now; empty if it has none.
inline std::string Shown(const Image& image) {
  const auto* file = dynamic_cast<const PictureFile*>(image.Picture().get());
  return file ? file->name : std::string();
}

/// What was asked of the player that holds `file`, from the `from`-th of all calls on.
inline std::vector<std::string> Calls(const HeadlessHost& host, const std::string& file,
                                      std::size_t from = 0) {
  std::vector<std::string> calls;
  for (std::size_t i = from; i < host.playerCalls.size(); ++i) {
    if (host.playerCalls[i].file == file) calls.push_back(host.playerCalls[i].call);
  }
  return calls;
}

}  // namespace orvanta::test
