// What the ten buttons do.

#include "buttons/PictureButtons.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

// How long a button stays pressed.
constexpr Milliseconds kSwitchPause = 300, kMinimisePause = 500;

}  // namespace

void MainForm::Press(BarButton button) {
  ButtonM(button).Picture = ImageList1(PictureEntry(button, ButtonPicture::Pressed));
  ButtonM(button).Refresh();
}

void MainForm::Release(BarButton button) {
  ButtonM(button).Picture = ImageList1(PictureEntry(button, ButtonPicture::Over));
  ButtonM(button).Refresh();
}

void MainForm::Drop() {
  // While the exit voice plays, no button is latched, but the user can still click.
  if (PressedButton == BarButton::None) return;
  ButtonM(PressedButton).Picture = ImageList1(PictureEntry(PressedButton, ButtonPicture::Normal));
  ButtonM(PressedButton).Refresh();
}

void MainForm::ShowStopped() {
  const auto show = [this](BarButton button, ButtonPicture picture) {
    ButtonM(button).Picture = ImageList1(PictureEntry(button, picture));
  };
  show(BarButton::Start, ButtonPicture::Normal);
  show(BarButton::Pause, ButtonPicture::Normal);
  show(BarButton::Stop, ButtonPicture::Pressed);
}

void MainForm::ButtonM_Click(BarButton button) {
  const bool soundCard = shell_.basCommon.SoundCardOK;
  const bool pagesOpen = PressedButton == BarButton::None || PressedButton == BarButton::Stop;
  switch (button) {
    case BarButton::Exit: Unload(); break;
    case BarButton::SoundOn:
      if (soundCard) SwitchSound(false);
      break;
    case BarButton::SoundOff:
      if (soundCard) SwitchSound(true);
      break;
    case BarButton::Help:
      if (pagesOpen) TogglePage(button, imgPomoc, imgSeven);
      break;
    case BarButton::Start:
      if (!picTlo.Visible) StartEntry();
      break;
    case BarButton::Pause:
      if (AM3.CurrentState() == ActiveMovie::kRunning && soundCard) PauseMusic();
      break;
    case BarButton::Stop:
      if (soundCard) StopMusic();
      break;
    case BarButton::About:
      if (pagesOpen) TogglePage(button, imgSeven, imgPomoc);
      break;
    case BarButton::Minimise:
      Press(button);
      shell_.host.Sleep(kMinimisePause);
      WindowState = kMinimised;
      break;
    case BarButton::Film: ShowFilm(); break;
    case BarButton::None: break;
  }
}

void MainForm::SwitchSound(bool on) {
  Image& soundOn = ButtonM(BarButton::SoundOn);
  Image& soundOff = ButtonM(BarButton::SoundOff);
  Press(on ? BarButton::SoundOff : BarButton::SoundOn);
  shell_.basCommon.SoundWanted = on;
  shell_.host.Sleep(kSwitchPause);
  soundOn.Visible = soundOn.Enabled = on;
  soundOff.Visible = soundOff.Enabled = !on;
  const BarButton there = on ? BarButton::SoundOn : BarButton::SoundOff;
  // The cursor is over this button.
  ButtonM(there).Picture = ImageList1(PictureEntry(there, ButtonPicture::Over));
  soundOn.Refresh();
  soundOff.Refresh();
}

void MainForm::TogglePage(BarButton button, Image& page, Image& other) {
  Press(button);
  PlayRandomSoundFile("Tool", true);
  shell_.host.Sleep(kSwitchPause);
  Release(button);
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
    Press(BarButton::Start);
    PlayRandomSoundFile("Exec", true);
    const bool started = shell_.modExec.ExecItem(entry);
    // The cursor has left for the button of the message box, which no tick has noticed.
    Image& start = ButtonM(BarButton::Start);
    const bool left = !start.Bounds().Contains(shell_.modMouse.CursorPos());
    if (!started && left) start.Picture = ImageList1(PictureEntry(BarButton::Start, ButtonPicture::Normal));
    return;
  }
  if (!shell_.basCommon.SoundCardOK) {
    shell_.host.MsgBox(
        "Brak lub źle skonfigurowana karta dźwiękowa.\r\n"
        "Odtworzenie muzyki jest niemożliwe.",
        kCriticalBox, Caption);
  }
  if (IsPlay(entry) && shell_.basCommon.SoundCardOK && PressedButton != BarButton::Start)
    StartMusicEntry(entry);
}

void MainForm::StartMusicEntry(const std::string& entry) {
  const std::int32_t state = AM3.CurrentState();
  if (state != ActiveMovie::kRunning && state != ActiveMovie::kPaused) {
    PressedButton = BarButton::Stop;
    AM3.FileName(shell_.HostFile(shell_.ini.IniRead(entry, "Parameters", kMenuFile)));
    Press(BarButton::Start);
    WaitForMusic();
  }
  Drop();
  if (PressedButton == BarButton::Pause) {
    Press(BarButton::Start);
  } else {
    AM3.CurrentPosition(0);
  }
  AM3.Run();
  PressedButton = BarButton::Start;
}

void MainForm::WaitForMusic() {
  constexpr Milliseconds kLongest = 2000, kPoll = 10;
  const Milliseconds begin = shell_.host.Now();
  while (AM3.ReadyState() != ActiveMovie::kComplete && shell_.host.Now() <= begin + kLongest) {
    shell_.host.Loop().PumpOrWait(shell_.host.Now() + kPoll);
  }
}

void MainForm::PauseMusic() {
  Press(BarButton::Pause);
  Drop();
  AM3.Pause();
  PressedButton = BarButton::Pause;
}

void MainForm::StopMusic() {
  Press(BarButton::Stop);
  const std::int32_t state = AM3.CurrentState();
  if (state != ActiveMovie::kRunning && state != ActiveMovie::kPaused) return;
  Drop();
  AM3.Stop();
  PressedButton = BarButton::Stop;
  S2.Left = S2Start;
}

void MainForm::ShowFilm() {
  const std::string entry = lblBackTxt.Caption;
  if (shell_.basCommon.SoundCardOK) {
    Press(BarButton::Film);
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
  ButtonM(BarButton::Film).Picture = ImageList1(PictureEntry(BarButton::Film, ButtonPicture::Normal));
  shell_.frmKino->ShowModal(*this);
}

}  // namespace orvanta
