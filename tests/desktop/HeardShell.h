#pragma once

#include <memory>
#include <string>
#include <vector>

#include "desktop/MediaFiles.h"
#include "desktop/PulseServer.h"
#include "desktop/Recording.h"
#include "desktop/ShellOnScreen.h"

namespace orvanta::test {

/// Tones of half a second each, every one 200 hertz above the one before: its place can be told by ear.
struct Tune {
  int first;
  int tones;

  MediaFiles::Tones Tones() const;
  double Length() const { return 0.5 * tones; }
};

/// A stretch of a tune without a gap: when it was heard, and the places in the tune where it began and ended.
struct Passage {
  double from, to;
  double begin, end;
};

/// The program on a display and a sound server of its own, of which every sound is recorded.
class HeardShell : public ShellOnScreen {
 protected:
  HeardShell();

  /// Writes a file below Data/Sound.
  void Sound(const std::string& name, const MediaFiles::Tones& tones) const;
  /// The passages of a tune, those under 60 ms left out.
  std::vector<Passage> Heard(const Tune& tune) const;
  /// Waits until something is heard, or nothing for a quarter of a second; five seconds at most.
  bool FallsSilent() const;
  bool BecomesLoud() const;
  bool StaysSilent(double seconds) const;
  static void Wait(double seconds);

  /// Whether a button of the bar comes to a look: 0 normal, 1 over, 2 pressed.
  bool Shows(int button, int look) const;
  void ClickButton(int index) const { ClickMain(MiddleOf(ButtonBox(index))); }
  /// Opens an entry of the first list, and waits for a button of its view.
  void OpenEntry(int line, int button, int look) const;
  /// Goes back to the list by the click zone above it.
  void GoBack() const;

  /// Moves the mouse where it touches nothing.
  void MoveAside() const;

  PulseServer server_;
  MediaFiles files_;
  std::unique_ptr<Recording> ears_ = std::make_unique<Recording>();
};

}  // namespace orvanta::test
