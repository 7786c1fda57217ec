#pragma once

#include <string>

namespace orvanta {

class Shell;

/// The start of the program and what it finds out about the machine.
class modMain {
 public:
  explicit modMain(Shell& shell) : shell_(shell) {}

  std::string DiscRoot;   ///< folder of the program, with one trailing backslash
  std::string WinSysDir;  ///< empty where the system registers no components
  std::string DiscSysDir;
  bool SmallScreen = false;    ///< the screen is less than 800 pixels wide
  bool ShowPicOpen = false;    ///< `frmShowPic` is open
  bool ItemSoundHold = false;  ///< an entry that has its own sound is open

  /// Shows the start screen and returns. Ends the program if another instance of it runs.
  void Main();
  void CheckScreenSize();

 private:
  Shell& shell_;
};

}  // namespace orvanta
