// Cues and the exit voice. A cue makes no sound; all that it does is to stop an entry's music.

#include "config/NumberedKey.h"
#include "startup/Shell.h"

namespace orvanta {

void MainForm::StopEntrySound() {
  if (AM3.CurrentState() == ActiveMovie::kNoFile) return;
  AM3.Stop();
  PressedButton = BarButton::None;
}

void MainForm::PlaySoundFile(const std::string&, bool) { StopEntrySound(); }

void MainForm::PlayRandomSoundFile(const std::string& base, bool flag) {
  PlaySoundFile(shell_.ini.IniRead("VOICES", NumberedKey(base, 0), kMenuFile), flag);
}

void MainForm::PlayEndSound(bool) {
  if (!shell_.basCommon.SoundCardOK) return;
  const int n = CountRun(shell_.ini, "VOICES", "Exit");
  const double r = static_cast<double>(generator_()) / 4294967296.0;
  const int k = static_cast<int>(r * n) + 1;
  const std::string voice = shell_.ini.IniRead("VOICES", NumberedKey("Exit", k), kMenuFile);
  StopEntrySound();
  AM3.FileName(shell_.HostFile(shell_.ini.SoundPath(voice)));
  shell_.modMouse.Delay(2000);
}

}  // namespace orvanta
