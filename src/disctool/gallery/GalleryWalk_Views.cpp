// What there is to see at each place of the walk.

#include <algorithm>

#include "disctool/gallery/GalleryWalk.h"

namespace orvanta {
namespace {

constexpr int kLabelHeight = 26, kShotHeight = 82;
/// How long a window may take to stand as it will; the cinema waits for a second and then places the film.
constexpr Milliseconds kViewerTime = 100, kCinemaTime = 3000;
/// Two looks of the shell at where the mouse is.
constexpr Milliseconds kGlance = 100;

}  // namespace

void GalleryWalk::StartScreen() {
  // As on a machine with sound, but without waiting for the voice.
  shell_.modMain.Main();
  if (const Form* screen = shell_.frmReklama.Loaded(); screen && screen->Visible) {
    entries.push_back({"Start screen", "", {}, {}});
    current_ = entries.size() - 1;
    Save(*screen);
  }
  while (!shell_.MainForm.Loaded() || !shell_.MainForm->Visible) host_.RunFor(500);
  host_.RunFor(kGlance);
}

void GalleryWalk::Pages() {
  Page(shell_.MainForm->imgPomoc, BarButton::Help, "Help page");
  Page(shell_.MainForm->imgSeven, BarButton::About, "About page");
}

void GalleryWalk::Page(Image& page, BarButton button, const char* title) {
  MainForm& main = *shell_.MainForm;
  PointAt(main.ButtonM(button));
  main.ButtonM_Click(button);
  if (!page.Visible) return;
  entries.push_back({title, "", {}, {}});
  current_ = entries.size() - 1;
  Save(main);
  Scroll(false, static_cast<int>(main.picTlo.Height()));
  page.Click();
  // A button goes out when the mouse leaves it.
  host_.MoveMouse({});
  host_.RunFor(kGlance);
}

void GalleryWalk::PointAt(const Image& button) {
  const auto middle = [](double edge, double extent) { return CLng(edge + extent / 2); };
  host_.MoveMouse(Point{shell_.modMouse.FormLeftPx, shell_.modMouse.FormTopPx} +
                  Point{middle(button.Left, button.Width), middle(button.Top, button.Height)});
  host_.RunFor(kGlance);
}

void GalleryWalk::Menu() {
  const MainForm& main = *shell_.MainForm;
  const double strip = main.imgKreska.Visible ? main.imgKreska.Height() : 0;
  Scroll(false, static_cast<int>(main.picTlo.Height - strip) - kLabelHeight);
}

void GalleryWalk::Shots() {
  Scroll(true, static_cast<int>(shell_.MainForm->picShotTlo.Height()) - kShotHeight);
}

/// Drags the knob down, each time by as much as brings `view` further pixels of the content to sight.
void GalleryWalk::Scroll(bool shots, int view) {
  MainForm& main = *shell_.MainForm;
  Slider& slider = main.slider;
  if (!(slider.SuwakScale > 0)) return;
  const auto drag = [&](std::int16_t direction, std::int32_t pixels) {
    slider.SuwakDir = direction;
    slider.MoveSuwak(shots ? main.shotKnob : main.listKnob, pixels);
    slider.SuwakDir = -1;
  };
  constexpr std::int16_t kUp = 0, kDown = 1;
  const double wanted = std::max(1.0, view / static_cast<double>(slider.SuwakScale));
  const auto step = static_cast<std::int32_t>(std::min(wanted, 1e9));
  while (slider.SuwakY < slider.YMax) {
    drag(kDown, step);
    // A hand is never as sudden: a list that jumps to where the last one stood would not be moved.
    drag(kUp, 1);
    drag(kDown, 1);
    Save(main);
  }
}

/// The window comes to sight inside the click that opens it.
template <class Window, class Close>
void GalleryWalk::SaveModal(FormSlot<Window, Shell>& window, Milliseconds delay,
                            const std::function<void()>& open, Close close) {
  bool failed = false;
  host_.After(delay, [&] {
    if (!window.Loaded()) return;
    try {
      Save(*window);
    } catch (const ProgramEnd&) {
      failed = true;
    }
    close(*window);
  });
  open();
  if (failed) throw ProgramEnd{};
}

/// Each at its real size; above, all are as small as the strip.
void GalleryWalk::Viewer() {
  MainForm& main = *shell_.MainForm;
  for (int i = 0; i <= main.picShot.UBound(); ++i) {
    if (!main.picShot(i).Picture()) continue;
    SaveModal(
        shell_.frmShowPic, kViewerTime, [&] { main.picShot.Click(static_cast<std::int16_t>(i)); },
        [](frmShowPic& viewer) { viewer.Unload(); });
  }
}

void GalleryWalk::Cinema() {
  SaveModal(
      shell_.frmKino, kCinemaTime, [&] { shell_.MainForm->ButtonM_Click(BarButton::Film); },
      [](frmKino& cinema) { cinema.ButtonM_Click(KinoButton::Stop); });
}

}  // namespace orvanta
