#include "media/frmKino.h"

#include "buttons/ButtonLook.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

constexpr std::int16_t kSlot = 10;

struct KinoButton {
  KeyRef<Kind::Base> base;
  KeyRef<Kind::Whole> left, top;
  const char* key;  // in ImageList1
};

// By Index.
constexpr std::array<KinoButton, 5> kButtons{{
    {{"CINEMA", "CPlayB"}, {"CINEMA", "CPlayX"}, {"CINEMA", "CPlayY"}, "cplay"},
    {{"CINEMA", "CStopB"}, {"CINEMA", "CStopX"}, {"CINEMA", "CStopY"}, "cstop"},
    {{"CINEMA", "CpauseB"}, {"CINEMA", "CPauseX"}, {"CINEMA", "CPauseY"}, "cpause"},
    {{"CINEMA", "CScaleB"}, {"CINEMA", "CScaleX"}, {"CINEMA", "CScaleY"}, "cscale"},
    {{"CINEMA", "CFScaleB"}, {"CINEMA", "CFScaleX"}, {"CINEMA", "CFScaleY"}, "cfscale"},
}};

}  // namespace

std::int16_t CentredEdge(std::int16_t middle, double extent) {
  return CInt(double{1} * middle - CInt(extent / 2));
}

frmKino::frmKino(Shell& shell)
    : Form(shell.host, {.name = "frmKino",
                        .width = 9600,
                        .height = 7200,
                        .scale = ScaleMode::Twips,
                        .window = WindowKind::Modal}),
      Picture1(*this, "Picture1"),
      ButtonM(Picture1, "ButtonM", 5),
      AM0(*this, "AM0", MovieKind::Film),
      Timer1(*this, 200, [this] { Timer1_Timer(); }),
      shell_(shell) {
  Caption = "Orvanta - Kino";
  Picture1.AutoSize = true;
  Picture1.Move(0, 0, 9600, 7200);
  // A button whose art is missing can still be clicked.
  ButtonM.ForEach([](Image& button) { button.Move(0, 0, 32, 32); });
  ButtonM.Click = [this](std::int16_t Index) { ButtonM_Click(Index); };
  // The buttons lie under a film on the whole screen.
  AM0.ScreenClick = [this] { ButtonM_Click(4); };
}

void frmKino::Form_Load() {
  KinoPlaced = false;
  Picture1.Picture = shell_.LoadPicture(shell_.settings.Picture({"CINEMA", "CBackground"}));
  Picture1.Left = 0;
  Picture1.Top = 0;
  Height = Picture1.Height();
  Width = Picture1.Width();
  shell_.host.Sleep(1000);
  KinoButtonsInit();
  PressedButton = 0;
  Refresh();
  AM0.FullScreenMode(false);
  AM0.Left = Width();
  AM0.Top = Height();
  const auto* film = std::get_if<std::string>(&shell_.basCommon.ShowArg);
  AM0.FileName(film ? shell_.HostFile(*film) : std::filesystem::path());
  KinoPlaced = false;
  Timer1.Enabled = true;
}

void frmKino::KinoButtonsInit() {
  for (std::int16_t i = 0; i <= 4; ++i) {
    const KinoButton& button = kButtons[static_cast<std::size_t>(i)];
    AddButtonArt(shell_, ImageList1, shell_.settings.Base(button.base), button.key);
    ButtonM(i).Picture = i == 0 ? ImageList1(LookEntry(0, Look::Pressed)) : ImageList1(button.key);
    ButtonM(i).Left = shell_.settings.Whole(button.left);
    ButtonM(i).Top = shell_.settings.Whole(button.top);
  }
  ButtonM(4).Visible = false;
}

void frmKino::Form_Activate() {
  shell_.modMouse.Track(*this);
  shell_.modMouse.LastOver[kSlot] = -1;
}

void frmKino::Form_Unload() {
  AM0.FullScreenMode(false);
  AM0.Stop();
}

void frmKino::Timer1_Timer() {
  // The user can move the window.
  shell_.modMouse.Track(*this);
  shell_.modMouse.OverButton(kSlot, *this, "ButtonM", ImageList1, PressedButton);
  if (AM0.ReadyState() != ActiveMovie::kComplete) return;
  if (!KinoPlaced) {
    KinoPlaced = true;
    PlaceFilm();
  } else if (AM0.CurrentState() == ActiveMovie::kStopped && PressedButton == 0) {
    Restore(0);
    PressedButton = -1;
  }
}

void frmKino::PlaceFilm() {
  const auto tx = static_cast<float>(shell_.host.Screen().TwipsPerPixelX);
  const auto ty = static_cast<float>(shell_.host.Screen().TwipsPerPixelY);
  const std::int16_t left = CentredEdge(shell_.settings.Whole({"CINEMA", "CMiddX"}), AM0.Width / tx);
  const std::int16_t top = CentredEdge(shell_.settings.Whole({"CINEMA", "CMiddY"}), AM0.Height / ty);
  AM0.Left = static_cast<float>(left) * tx;
  AM0.Top = static_cast<float>(top) * ty;
  AM0.Visible = true;
}

void frmKino::Press(std::int16_t Index) {
  ButtonM(Index).Picture = ImageList1(LookEntry(Index, Look::Pressed));
  ButtonM(Index).Refresh();
}

void frmKino::Restore(std::int16_t Index) {
  ButtonM(Index).Picture = ImageList1(LookEntry(Index, Look::Normal));
}

void frmKino::ButtonM_Click(std::int16_t Index) {
  switch (Index) {
    case 0:
      if (PressedButton != 0) Play();
      break;
    case 1: StopAndClose(); break;
    case 2:
      if (PressedButton == 0) Pause();
      break;
    case 3: SetFullScreen(true); break;
    case 4: SetFullScreen(false); break;
    default: break;
  }
}

void frmKino::Play() {
  PressedButton = 0;
  Press(0);
  Restore(2);
  ButtonM(2).Refresh();
  AM0.Run();
}

void frmKino::StopAndClose() {
  PressedButton = 1;
  Press(1);
  shell_.host.Sleep(100);
  Timer1.Enabled = false;
  AM0.Stop();
  Unload();
}

void frmKino::Pause() {
  PressedButton = 2;
  Press(2);
  Restore(0);
  ButtonM(0).Refresh();
  AM0.Pause();
}

void frmKino::SetFullScreen(bool on) {
  const std::int16_t clicked = on ? 3 : 4, other = on ? 4 : 3;
  Press(clicked);
  if (PressedButton == 0) AM0.Pause();
  AM0.FullScreenMode(on);
  ButtonM(clicked).Visible = false;
  ButtonM(other).Visible = true;
  if (PressedButton == 0) AM0.Run();
}

}  // namespace orvanta
