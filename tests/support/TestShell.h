#pragma once

#include "platform/headless/HeadlessHost.h"
#include "startup/Shell.h"
#include "support/TestDisc.h"

namespace orvanta::test {

/// A shell on a disc, without a screen. `host` is its user and its machine.
class TestShell {
 public:
  explicit TestShell(const TestDisc& disc) : host(disc.Folder()), shell(host) {}

  HeadlessHost host;
  Shell shell;
  bool ended = false;  ///< the program has ended by itself

  MainForm& Main() { return *shell.MainForm; }

  /// Calls `Main` and returns with the start screen.
  void Launch() {
    Guard([this] { shell.modMain.Main(); });
  }
  /// Launches the shell and lets the start screen and the loading of the main window pass.
  void Start() {
    Launch();
    Run(8000);
  }
  /// Lets the program run for so long, unless it has ended.
  void Run(Milliseconds duration) {
    Guard([&] { host.RunFor(duration); });
  }

  /// The middle of a control of a form, in pixels of the screen.
  Point MiddleOf(const Control& control) const;
  void Click(const Control& control) {
    host.Click(MiddleOf(control));
    Run(1);
  }
  /// Moves the mouse to a menu label, clicks it and waits for the crosshair and what follows.
  void Choose(int index) {
    host.MoveMouse(MiddleOf(Main().lblPos1(index)));
    Run(100);
    Click(Main().lblPos1(index));
    Run(2000);
  }

 private:
  template <class Action>
  void Guard(Action action) {
    if (ended) return;
    try {
      action();
    } catch (const ProgramEnd&) {
      ended = true;
    }
  }
};

}  // namespace orvanta::test
