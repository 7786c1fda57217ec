// What the ten buttons do.

#include "buttons/ButtonLook.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

constexpr int kCriticalBox = 16;

// How long the pressed look of a button stands.
constexpr Milliseconds kSwitchPause = 300, kMinimisePause = 500;

}  // namespace

void MainForm::Press(std::int16_t Index) {
  ButtonM(Index).Picture = ImageList1(LookEntry(Index, Look::Pressed));
  ButtonM(Index).Refresh();
}

void MainForm::Release(std::int16_t Index) {
  ButtonM(Index).Picture = ImageList1(LookEntry(Index, Look::Over));
  ButtonM(Index).Refresh();
}

void MainForm::Drop() {
  // None is latched while the exit voice plays, which a click can meet.
  if (PressedButton == -1) return;
  ButtonM(PressedButton).Picture = ImageList1(LookEntry(PressedButton, Look::Normal));
  ButtonM(PressedButton).Refresh();
}

void MainForm::StoppedLook() {
  ButtonM(4).Picture = ImageList1(LookEntry(4, Look::Normal));
  ButtonM(5).Picture = ImageList1(LookEntry(5, Look::Normal));
  ButtonM(6).Picture = ImageList1(LookEntry(6, Look::Pressed));
}

void MainForm::ButtonM_Click(std::int16_t Index) {
  const bool soundCard = shell_.basCommon.SoundCardOK;
  const bool pagesOpen = PressedButton == -1 || PressedButton == 6;
  switch (Index) {
    case 0: Unload(); break;
    case 1:
      if (soundCard) SwitchSound(false);
      break;
    case 2:
      if (soundCard) SwitchSound(true);
      break;
    case 3:
      if (pagesOpen) TogglePage(Index, imgPomoc, imgSeven);
      break;
    case 4:
      if (!picTlo.Visible) StartEntry();
      break;
    case 5:
      if (AM3.CurrentState() == ActiveMovie::kRunning && soundCard) PauseMusic();
      break;
    case 6:
      if (soundCard) StopMusic();
      break;
    case 7:
      if (pagesOpen) TogglePage(Index, imgSeven, imgPomoc);
      break;
    case 8:
      Press(Index);
      shell_.host.Sleep(kMinimisePause);
      WindowState = kMinimised;
      break;
    case 9: ShowFilm(); break;
    default: break;
  }
}

void MainForm::SwitchSound(bool on) {
  Press(on ? 2 : 1);
  shell_.basCommon.SoundWanted = on;
  shell_.host.Sleep(kSwitchPause);
  ButtonM(1).Visible = on;
  ButtonM(1).Enabled = on;
  ButtonM(2).Visible = !on;
  ButtonM(2).Enabled = !on;
  const int there = on ? 1 : 2;
  // The cursor is on it.
  ButtonM(there).Picture = ImageList1(LookEntry(there, Look::Over));
  ButtonM(1).Refresh();
  ButtonM(2).Refresh();
}

void MainForm::TogglePage(std::int16_t Index, Image& page, Image& other) {
  Press(Index);
  PlayRandomSoundFile("Tool", true);
  shell_.host.Sleep(kSwitchPause);
  Release(Index);
  page.Visible = !page.Visible;
  if (!page.Visible) return StronaKoniec();
  other.Visible = false;
  page.Top = 0;
  StronaInit(page.Height);
}

void MainForm::ClosePage(Image& page) {
  page.Visible = false;
  StronaKoniec();
}

void MainForm::StartEntry() {
  const std::string entry = lblBackTxt.Caption;
  if (IsExec(entry)) {
    Press(4);
    PlayRandomSoundFile("Exec", true);
    return shell_.modExec.ExecItem(entry);
  }
  if (!shell_.basCommon.SoundCardOK) {
    shell_.host.MsgBox(
        "Brak lub źle skonfigurowana karta dźwiękowa.\r\n"
        "Odtworzenie muzyki jest niemożliwe.",
        kCriticalBox, Caption);
  }
  if (IsPlay(entry) && shell_.basCommon.SoundCardOK && PressedButton != 4) StartMusicEntry(entry);
}

void MainForm::StartMusicEntry(const std::string& entry) {
  const std::int32_t state = AM3.CurrentState();
  if (state != ActiveMovie::kRunning && state != ActiveMovie::kPaused) {
    PressedButton = 6;
    AM3.FileName(shell_.HostFile(shell_.ini.IniRead(entry, "Parameters", kMenuFile)));
    Press(4);
    WaitForMusic();
  }
  if (PressedButton > -1) Drop();
  if (PressedButton == 5) {
    Press(4);
  } else {
    AM3.CurrentPosition(0);
  }
  AM3.Run();
  PressedButton = 4;
}

void MainForm::WaitForMusic() {
  constexpr Milliseconds kLongest = 2000, kPoll = 10;
  const Milliseconds begin = shell_.host.Now();
  while (AM3.ReadyState() != ActiveMovie::kComplete && shell_.host.Now() <= begin + kLongest) {
    shell_.host.Loop().PumpOrWait(shell_.host.Now() + kPoll);
  }
}

void MainForm::PauseMusic() {
  Press(5);
  Drop();
  AM3.Pause();
  PressedButton = 5;
}

void MainForm::StopMusic() {
  Press(6);
  const std::int32_t state = AM3.CurrentState();
  if (state != ActiveMovie::kRunning && state != ActiveMovie::kPaused) return;
  Drop();
  AM3.Stop();
  PressedButton = 6;
  S2.Left = S2Start;
}

void MainForm::ShowFilm() {
  const std::string entry = lblBackTxt.Caption;
  if (shell_.basCommon.SoundCardOK) {
    Press(9);
    PlaySoundFile(shell_.settings.Any({"VOICES", "Cinema"}), false);
  }
  if (picTlo.Visible || !IsPlay(entry)) return;
  if (!shell_.basCommon.SoundCardOK) {
    shell_.host.MsgBox(
        "Brak lub źle skonfigurowana karta dźwiękowa.\r\n"
        "Odtworzenie filmu jest niemożliwe.",
        kCriticalBox, Caption);
    return;
  }
  shell_.basCommon.ShowArg = shell_.ini.IniRead(entry, "Parameters", kMenuFile);
  ButtonM(9).Picture = ImageList1(LookEntry(9, Look::Normal));
  shell_.frmKino->ShowModal(*this);
}

}  // namespace orvanta
