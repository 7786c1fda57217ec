#include "media/frmKino.h"

#include "buttons/HoveredButton.h"
#include "buttons/PictureButtons.h"
#include "media/AccessibleTime.h"
#include "startup/Design.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

constexpr std::int16_t kSlot = 10;

}  // namespace

std::int16_t CentredEdge(std::int16_t middle, double extent) {
  return CInt(double{1} * middle - CInt(extent / 2));
}

frmKino::frmKino(Shell& shell)
    : Form(shell.host, {.name = "frmKino",
                        .width = kCinema.width * kTwipsPerPixel,
                        .height = kCinema.height * kTwipsPerPixel,
                        .scale = ScaleMode::Twips,
                        .window = WindowKind::Modal}),
      Picture1(*this, "Picture1"),
      ButtonM(Picture1, "ButtonM", static_cast<int>(kKinoButtons.size())),
      AM0(*this, "AM0", MovieKind::Film),
      Timer1(*this, 200, [this] { Timer1_Timer(); }),
      shell_(shell) {
  Caption = "Orvanta - Kino";
  Picture1.AutoSize = true;
  Picture1.Move(0, 0, Width, Height);
  ButtonM.ForEach(
      [](Image& button) { button.Move(0, 0, kButtonWithoutArt.width, kButtonWithoutArt.height); });
  ButtonM.Click = [this](std::int16_t Index) { ButtonM_Click(KinoButton{Index}); };
  // A film that fills the screen covers the buttons.
  AM0.ScreenClick = [this] { ButtonM_Click(KinoButton::Window); };
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
  PressedButton = KinoButton::Play;
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
  ButtonM.ForEach([this](Image& button) {
    const ButtonKeys& keys = kKinoButtons.at(static_cast<std::size_t>(button.Index));
    LoadButton(shell_, button, ImageList1, keys);
    button.Picture = KinoButton{button.Index} == KinoButton::Play
                         ? ImageList1(PictureEntry(KinoButton::Play, ButtonPicture::Pressed))
                         : ImageList1(keys.name);
  });
  ButtonM(KinoButton::Window).Visible = false;
}

void frmKino::Form_Activate() {
  shell_.modMouse.Track(*this);
  shell_.modMouse.LastOver[kSlot] = -1;
}

AccessibleNode frmKino::Accessible() const {
  AccessibleNode window = Form::Accessible();
  if (KinoPlaced) {
    AccessibleNode film = AccessibleOf(AM0, AccessibleRole::ProgressBar, "Czas filmu");
    SetAccessibleTime(film, AM0.CurrentPosition(), AM0.SelectionEnd());
    window.children.push_back(std::move(film));
  }
  for (int i = 0; i <= ButtonM.UBound(); ++i) {
    const auto button = KinoButton{static_cast<std::int16_t>(i)};
    if (!ButtonM(i).Visible) continue;
    AccessibleNode node = AccessibleOf(ButtonM(i), AccessibleRole::Button,
                                       kKinoButtons.at(static_cast<std::size_t>(i)).meaning);
    node.hovered = IsHovered(shell_.modMouse, kSlot, *this, ButtonM(i));
    if (button == KinoButton::Play || button == KinoButton::Pause) node.pressed = PressedButton == button;
    if (button == KinoButton::Pause) node.unavailable = PressedButton != KinoButton::Play;
    if (button == KinoButton::Play) node.unavailable = PressedButton == KinoButton::Play;
    window.children.push_back(std::move(node));
  }
  return window;
}

void frmKino::Form_Unload() {
  AM0.FullScreenMode(false);
  AM0.Stop();
}

void frmKino::Timer1_Timer() {
  // The user may have moved the window.
  shell_.modMouse.Track(*this);
  shell_.modMouse.OverButton(kSlot, *this, "ButtonM", ImageList1, static_cast<std::int16_t>(PressedButton));
  if (AM0.ReadyState() != ActiveMovie::kComplete) return;
  if (!KinoPlaced) {
    KinoPlaced = true;
    PlaceFilm();
  } else if (AM0.CurrentState() == ActiveMovie::kStopped && PressedButton == KinoButton::Play) {
    Restore(KinoButton::Play);
    PressedButton = KinoButton::None;
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

void frmKino::Press(KinoButton button) {
  ButtonM(button).Picture = ImageList1(PictureEntry(button, ButtonPicture::Pressed));
  ButtonM(button).Refresh();
}

void frmKino::Restore(KinoButton button) {
  ButtonM(button).Picture = ImageList1(PictureEntry(button, ButtonPicture::Normal));
}

void frmKino::ButtonM_Click(KinoButton button) {
  switch (button) {
    case KinoButton::Play:
      if (PressedButton != KinoButton::Play) Play();
      break;
    case KinoButton::Stop: StopAndClose(); break;
    case KinoButton::Pause:
      if (PressedButton == KinoButton::Play) Pause();
      break;
    case KinoButton::FullScreen: SetFullScreen(true); break;
    case KinoButton::Window: SetFullScreen(false); break;
    case KinoButton::None: break;
  }
}

void frmKino::Play() {
  PressedButton = KinoButton::Play;
  Press(KinoButton::Play);
  Restore(KinoButton::Pause);
  ButtonM(KinoButton::Pause).Refresh();
  AM0.Run();
}

void frmKino::StopAndClose() {
  PressedButton = KinoButton::Stop;
  Press(KinoButton::Stop);
  shell_.host.Sleep(100);
  Timer1.Enabled = false;
  AM0.Stop();
  Unload();
}

void frmKino::Pause() {
  PressedButton = KinoButton::Pause;
  Press(KinoButton::Pause);
  Restore(KinoButton::Play);
  ButtonM(KinoButton::Play).Refresh();
  AM0.Pause();
}

void frmKino::SetFullScreen(bool on) {
  const KinoButton clicked = on ? KinoButton::FullScreen : KinoButton::Window;
  const KinoButton other = on ? KinoButton::Window : KinoButton::FullScreen;
  Press(clicked);
  if (PressedButton == KinoButton::Play) AM0.Pause();
  AM0.FullScreenMode(on);
  ButtonM(clicked).Visible = false;
  ButtonM(other).Visible = true;
  if (PressedButton == KinoButton::Play) AM0.Run();
}

}  // namespace orvanta
