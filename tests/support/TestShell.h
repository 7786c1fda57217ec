#pragma once

#include "platform/headless/HeadlessHost.h"
#include "startup/Shell.h"
#include "support/TestDisc.h"

namespace orvanta::test {

/// A shell with a disc, without a screen. `host` stands for its user and its machine.
class TestShell {
 public:
  explicit TestShell(const TestDisc& disc) : host(disc.Folder()), shell(host) {}

  HeadlessHost host;
  Shell shell;
  bool ended = false;  ///< whether the program has ended by itself

  MainForm& Main() { return *shell.MainForm; }
  template <class Index>
  Image& Button(Index i) {
    return Main().ButtonM(i);
  }

  /// Calls `Main` and returns once the start screen is shown.
  void Launch() {
    Guard([this] { shell.modMain.Main(); });
  }
  /// Runs the program for this time, unless it has ended.
  void Run(Milliseconds duration) {
    Guard([&] { host.RunFor(duration); });
  }
  /// Does one thing after another; commas separate them. Times are in milliseconds.
  ///   start                       starts the shell and lets everything load
  ///   run 500                     lets time pass
  ///   choose 2                    clicks a label of the list and waits for the crosshair and its effect
  ///   press Start                 clicks a button of the bar and moves the mouse aside
  ///   click imgUp, hover kinoStop uses a control of the front window, or a button by its name in `BarButton`
  ///   aside                       moves the mouse to where the main window has no control
  ///   drag imgSuwak 30, drop      presses a control and moves the mouse down by 30 pixels; releases it
  ///   leave, return               goes to another program and comes back
  ///   minimise, restore, close    minimises or restores the main window; closes the front window
  ///   after 500 click imgBack     does one of these, except drag, after this time
  void Do(const std::string& script);

  Control& Find(const std::string& name);
  /// The middle of a control, in screen pixels.
  Point MiddleOf(const Control& control) const;
  /// The viewer or the cinema if one is open, otherwise the main window.
  Form& Front();
  /// How buttons of the bar look, such as "Start over, Stop pressed"; empty if all look normal.
  std::string Looks(std::initializer_list<BarButton> buttons);
  /// The calls to the player of `file`, starting at the `from`-th of all calls: "open, run".
  std::string Calls(const std::string& file, std::size_t from = 0) const;

 private:
  /// Tells the host, without running the program.
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

/// The file name of the picture that a control shows; empty if it has none.
std::string Shown(const Image& image);
/// How a button looks: "over", "pressed", or empty for normal.
std::string LookOf(const Image& button);
/// "no file", "stopped", "paused" or "playing".
std::string StateOf(const ActiveMovie& player);

std::string NameOf(BarButton button);
std::string NameOf(KinoButton button);
/// The name of a button with its look, such as "Start pressed"; empty if it looks normal.
template <class Button>
std::string NamedLook(Button button, const Image& image) {
  return LookOf(image).empty() ? "" : NameOf(button) + " " + LookOf(image);
}

}  // namespace orvanta::test
