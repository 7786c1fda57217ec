#pragma once

#include <string>

namespace orvanta {

class Shell;

/// The start of the program, and what it finds out about the machine.
class modMain {
 public:
  explicit modMain(Shell& shell) : shell_(shell) {}

  std::string DiscRoot;   ///< the folder of the program, with one trailing backslash
  std::string WinSysDir;  ///< empty if the system has no registry of components
  std::string DiscSysDir;
  bool SmallScreen = false;    ///< whether the screen is less than 800 pixels wide
  bool ShowPicOpen = false;    ///< whether `frmShowPic` is open
  bool ItemSoundHold = false;  ///< whether an entry with its own sound is open

  /// Shows the start screen and returns. If another instance is running, ends the program.
  void Main();
  void CheckScreenSize();

 private:
  Shell& shell_;
};

}  // namespace orvanta
