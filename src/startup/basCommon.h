#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace orvanta {

class Shell;

/// What the forms share.
class basCommon {
 public:
  explicit basCommon(Shell& shell) : shell_(shell) {}

  /// Sound can be heard; found out by the start screen.
  bool SoundCardOK = false;
  /// The user's sound switch.
  bool SoundWanted = false;
  /// The background player holds a file and has been parked.
  bool MusicLoaded = false;
  /// What the window about to open is to show: the film's file for `frmKino`, the index of a picture for
  /// `frmShowPic`.
  std::variant<std::monostate, std::string, std::int16_t> ShowArg;

  /// Lifts the edge strips and then the main window, which is left on top and active.
  void DociagToFront();

 private:
  Shell& shell_;
};

}  // namespace orvanta
