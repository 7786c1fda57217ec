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
  template <class Index>
  Image& Button(Index i) {
    return Main().ButtonM(i);
  }

  /// Calls `Main` and returns with the start screen.
  void Launch() {
    Guard([this] { shell.modMain.Main(); });
  }
  /// Lets the program run for so long, unless it has ended.
  void Run(Milliseconds duration) {
    Guard([&] { host.RunFor(duration); });
  }
  /// Does one thing after another, parted by commas:
  ///   start                       launches the shell and lets everything load
  ///   run 500                     lets the time pass
  ///   choose 2                    clicks a label of the list and waits for the crosshair and what follows
  ///   press Start                 clicks a button of the bar and moves the mouse aside
  ///   click imgUp, hover kinoStop a control of the window in front or a button, by its name in `BarButton`
  ///   aside                       moves the mouse to where the main window has no control
  ///   drag imgSuwak 30, drop      takes a control and moves the mouse down by so many pixels; lets go
  ///   leave, return               to another program, to this one
  ///   minimise, restore, close    the main window; the window in front
  ///   after 500 click imgBack     any of these but drag, when so long has passed
  void Do(const std::string& script);

  Control& Find(const std::string& name);
  /// The middle of a control of a form, in pixels of the screen.
  Point MiddleOf(const Control& control) const;
  /// The viewer or the cinema if one is open, else the main window.
  Form& Front();
  /// How buttons of the bar look: "Start over, Stop pressed", empty if all are normal.
  std::string Looks(std::initializer_list<BarButton> buttons);
  /// What was asked of the player that holds `file`, from the `from`-th of all calls on: "open, run".
  std::string Calls(const std::string& file, std::size_t from = 0) const;

 private:
  /// Only tells the host of it.
  void Act(const std::string& verb, const std::string& what);
  void DoOne(const std::string& command);
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

/// File name of the picture that a control shows now; empty if it has none.
std::string Shown(const Image& image);
/// How a button looks: "over" under the cursor, "pressed", else empty.
std::string LookOf(const Image& button);
/// "no file", "stopped", "paused" or "playing".
std::string StateOf(const ActiveMovie& player);

std::string NameOf(BarButton button);
std::string NameOf(KinoButton button);
/// The name of a button with its look, empty if that is the normal one: "Start pressed".
template <class Button>
std::string NamedLook(Button button, const Image& image) {
  return LookOf(image).empty() ? "" : NameOf(button) + " " + LookOf(image);
}

}  // namespace orvanta::test
