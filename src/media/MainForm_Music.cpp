// The background music of the menu, and the marker of an entry's music.

#include "media/AccessibleTime.h"
#include "media/MarkerPlace.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

// Nearly silent, but not the end of the scale. In hundredths of a decibel.
constexpr std::int32_t kPauseVolume = -9640;

}  // namespace

void MainForm::ParkMusic() {
  bool& loaded = shell_.basCommon.MusicLoaded;
  if (AM2.CurrentState() == ActiveMovie::kNoFile) {
    loaded = false;
  } else if (!loaded) {
    loaded = true;
    AM2.Pause();
  }
}

bool MainForm::MoveMarker() {
  if (PressedButton != BarButton::Start || !shell_.basCommon.SoundCardOK || !S2.Visible) return false;
  if (AM3.CurrentState() == ActiveMovie::kStopped) {
    PressedButton = BarButton::Stop;
    ShowStopped();
    S2.Left = S2Start;
    return true;
  }
  const auto place = MarkerPlace(S2Start, S2Len, AM3.CurrentPosition(), AM3.SelectionEnd());
  if (place && *place != markerAt_) {
    markerAt_ = *place;
    S2.Left = *place;
  }
  return false;
}

void MainForm::AddMusic(Nodes& nodes) const {
  if (!S2.Visible) return;
  AccessibleNode bar = AccessibleOf(S2, AccessibleRole::ProgressBar, "Odtwarzanie muzyki");
  // Stopped, the player may still hold the music of another entry.
  const bool begun = PressedButton == BarButton::Start || PressedButton == BarButton::Pause;
  SetAccessibleTime(bar, begun ? AM3.CurrentPosition() : 0, begun ? AM3.SelectionEnd() : 0);
  nodes.push_back(std::move(bar));
}

void MainForm::SoundOn() {
  if (!shell_.basCommon.SoundCardOK || !shell_.basCommon.MusicLoaded) return;
  if (AM2.CurrentState() != ActiveMovie::kPaused) return;
  Timer1.Enabled = false;
  AM2.Run();
  Timer1.Enabled = true;
}

void MainForm::SoundOff() {
  if (!shell_.basCommon.SoundCardOK || !shell_.basCommon.MusicLoaded) return;
  if (AM2.CurrentState() == ActiveMovie::kPaused) return;
  Timer1.Enabled = false;
  SavedVolume = CInt(AM2.Volume());
  AM2.Volume(kPauseVolume);
  AM2.Pause();
  // Gives the player a second to fall silent, while the window still handles events.
  for (int i = 0; i < 100; ++i) {
    shell_.host.Loop().Pump();
    shell_.host.Sleep(10);
  }
  AM2.Volume(SavedVolume);
  Timer1.Enabled = true;
}

}  // namespace orvanta
