// The detail view of an entry. Its controls lie below picTlo in the stacking order.

#include <algorithm>

#include "config/NumberedKey.h"
#include "startup/Design.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

bool IsMusic(std::string playAs) {
  std::transform(playAs.begin(), playAs.end(), playAs.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return playAs == "MUSIC";
}

}  // namespace

bool MainForm::IsExec(const std::string& name) const {
  return !shell_.ini.IniRead(name, "Execute", kMenuFile).empty();
}

bool MainForm::IsPlay(const std::string& name) const {
  return !shell_.ini.IniRead(name, "PlayAs", kMenuFile).empty();
}

std::int16_t MainForm::IleShot(const std::string& name) const { return CountRun(shell_.ini, name, "Shot"); }

void MainForm::OpisInit() {
  ++views_;
  MousePointer = kHourglassPointer;
  Line1.Show(false);
  const std::string name = CurrentNode();
  ShowPlace(name);
  HideSlider();
  lblPos1.UnloadAbove0();
  lblPos1(0).Visible = false;
  S2.Visible = false;
  if (!ShowKind(name)) {
    MousePointer = kDefaultPointer;
    return;
  }
  Refresh();
  lblNote.Caption = shell_.ini.IniRead(name, "Note", kMenuFile);
  lblSystem.Caption = shell_.ini.IniRead(name, "System", kMenuFile);
  imgSSuwak.Visible = imgSSlider.Visible = false;
  picTlo.Visible = false;
  Refresh();
  LoadShots(name);
  MousePointer = kDefaultPointer;
}

bool MainForm::ShowKind(const std::string& name) {
  const bool program = IsExec(name);
  const bool music = !program && IsMusic(shell_.ini.IniRead(name, "PlayAs", kMenuFile));
  if (!program) {
    shell_.modMain.ItemSoundHold = true;
    const std::uint32_t view = views_;
    SoundOff();
    if (views_ != view) return false;
  }
  if (music) ShowTransport();
  ButtonM(BarButton::Start).Visible = program || music;
  ButtonM(BarButton::Pause).Visible = ButtonM(BarButton::Stop).Visible = music;
  ButtonM(BarButton::Film).Visible = !program && !music;
  return true;
}

void MainForm::ShowTransport() {
  const Settings& settings = shell_.settings;
  S2.Visible = true;
  S2.Top = settings.Whole({"GLOBAL", "S2_Top"});
  S2Start = settings.Whole({"GLOBAL", "S2_Start"});
  S2End = settings.Whole({"GLOBAL", "S2_End"});
  S2.Left = S2Start;
  PressedButton = BarButton::Stop;
  S2Len = CInt(S2End - S2Start);
  ShowStopped();
}

void MainForm::LoadShots(const std::string& name) {
  const auto picture = [&](int number) {
    const std::string value = shell_.ini.IniRead(name, NumberedKey("Shot", number), kMenuFile);
    return value.empty() ? nullptr : shell_.LoadPicture(shell_.ini.PicturePath(value));
  };
  Image& first = picShot(0);
  first.Top = ShotTop;
  first.Visible = first.Stretch = true;
  first.Picture = picture(1);
  const int n = IleShot(name);
  PosTop.assign(static_cast<std::size_t>(n) + 1, 0);
  PosTop[0] = CLng(first.Top);
  for (int i = 1; i < n; ++i) {
    picShot.LoadNext();
    Image& shot = picShot(i);
    shot.Visible = shot.Stretch = true;
    shot.Picture = picture(i + 1);
    shot.Left = first.Left();
    shot.Top = picShot(i - 1).Top + picShot(i - 1).Height + kShotGap;
    PosTop[static_cast<std::size_t>(i)] = CLng(shot.Top);
  }
  const Image& last = picShot(picShot.UBound());
  if (last.Top + last.Height > picShotTlo.Height) SSuwakInit();
}

}  // namespace orvanta
