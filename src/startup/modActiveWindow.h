#pragma once

namespace orvanta {

class Form;
class Shell;

/// Whether the user is working with this program.
class modActiveWindow {
 public:
  explicit modActiveWindow(Shell& shell) : shell_(shell) {}

  /// The result of the last `CheckActive`.
  bool AppActive = false;

  /// Whether the active window is the main window (not minimised), an edge strip or the picture viewer. The
  /// cinema window does not count.
  bool CheckActive();

 private:
  bool IsStrip(const Form* form) const;

  Shell& shell_;
};

}  // namespace orvanta
