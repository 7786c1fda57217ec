#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace orvanta {

class Shell;

/// State and actions that the forms share.
class basCommon {
 public:
  explicit basCommon(Shell& shell) : shell_(shell) {}

  /// Whether sound can be played; the start screen finds out.
  bool SoundCardOK = false;
  /// Whether the user has the sound switched on.
  bool SoundWanted = false;
  /// Whether the background player has a file and has been paused, ready to play.
  bool MusicLoaded = false;
  /// What the window about to open shows: the film's file for `frmKino`, the index of a picture for
  /// `frmShowPic`.
  std::variant<std::monostate, std::string, std::int16_t> ShowArg;

  /// Raises the edge strips and then the main window, which ends up on top and active.
  void DociagToFront();

 private:
  Shell& shell_;
};

}  // namespace orvanta
