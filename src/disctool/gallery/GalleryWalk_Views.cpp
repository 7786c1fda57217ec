// What is visible at each place of the walk.

#include <algorithm>

#include "config/NumberedKey.h"
#include "config/Windows1250.h"
#include "disctool/gallery/GalleryWalk.h"
#include "startup/Design.h"

namespace orvanta {
namespace {

/// The cinema waits for a second and then places the film; in milliseconds.
constexpr Milliseconds kCinemaTime = 3000;
/// Long enough for two ticks, which look where the mouse is; in milliseconds.
constexpr Milliseconds kGlance = 100;

}  // namespace

void GalleryWalk::StartScreen() {
  // As on a machine with a sound card, but without waiting for the voice.
  shell_.modMain.Main();
  if (const Form* screen = shell_.frmReklama.Loaded(); screen && screen->Visible) {
    const std::string title = AddEntry("Ekran startowy").title;
    Save(*screen, title);
  }
  while (!shell_.MainForm.Loaded() || !shell_.MainForm->Visible) host_.RunFor(500);
  host_.RunFor(kGlance);
}

void GalleryWalk::Pages() {
  Page(shell_.MainForm->imgPomoc, BarButton::Help, "Strona pomocy");
  Page(shell_.MainForm->imgSeven, BarButton::About, "Strona o płycie");
}

void GalleryWalk::Page(Image& page, BarButton button, const char* title) {
  MainForm& main = *shell_.MainForm;
  PointAt(main.ButtonM(button));
  main.ButtonM_Click(button);
  if (!page.Visible) return;
  AddEntry(title);
  SaveView();
  Scroll(false, static_cast<int>(main.picTlo.Height()));
  page.Click();
  // A button looks normal again when the mouse leaves it.
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

/// Drags the knob down in steps, each of which reveals `view` further pixels of the content.
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
    // Move by one pixel first, as a hand would: a knob that jumps to where the last list stood does not
    // scroll the new one.
    drag(kUp, 1);
    drag(kDown, 1);
    SaveView();
  }
}

void GalleryWalk::Texts(const MenuNode& node) {
  const MainForm& main = *shell_.MainForm;
  GalleryEntry& entry = Current();
  entry.description = main.lblNote.Caption();
  entry.requirements = main.lblSystem.Caption();
  entry.starts = catalogue_.Find(node.name, "Execute").value;
  if (const Setting parameters = catalogue_.Find(node.name, "Parameters");
      !entry.starts.empty() && parameters)
    entry.starts += " " + parameters.value;
}

/// Saves the strip of screenshots as it scrolls, and then each screenshot at its own size.
void GalleryWalk::Shots(const MenuNode& node) {
  Scroll(true, static_cast<int>(shell_.MainForm->picShotTlo.Height()) - kFirstShot.height);
  for (int number = 1; number <= node.shots; ++number) {
    const std::string value = catalogue_.Find(node.name, NumberedKey("Shot", number)).value;
    const std::filesystem::path file = shell_.HostFile(shell_.ini.PicturePath(value));
    const auto [at, isNew] = shots_.try_emplace(file);
    GalleryPicture& shot = at->second;
    if (isNew) shot.file = NextName();
    if (isNew && !TakeEarlier(shot)) {
      const PicturePtr picture = shell_.MainForm->picShot(number - 1).Picture();
      if (!picture) {
        shots_.erase(at);
        continue;
      }
      shot.size = picture->PixelSize();
      Write(shot, GalleryHost::ImageOf(*picture));
    }
    Current().shots.push_back(shot);
    Current().shots.back().text =
        Current().title + ", zrzut ekranu " + std::to_string(number) + " z " + std::to_string(node.shots);
  }
}

/// Copies the sound if every browser can play it.
void GalleryWalk::Sound(const MenuNode& node) {
  const std::filesystem::path file = shell_.HostFile(catalogue_.Find(node.name, "Parameters").value);
  const std::string ending = file.extension().string();
  for (const char* played : {".mp3", ".wav", ".ogg"}) {
    const std::string name = "pictures/" + std::to_string(current_) + played;
    if (EqualNoCase(ending, played) && folder_.Copy(file, name)) Current().sound = name;
  }
}

/// The cinema appears inside the click that opens it.
void GalleryWalk::Cinema() {
  bool failed = false;
  host_.After(kCinemaTime, [&] {
    frmKino* cinema = shell_.frmKino.Loaded();
    if (!cinema) return;
    try {
      Save(*cinema, "Okno kina z filmem: " + Current().title);
    } catch (const ProgramEnd&) {
      failed = true;
    }
    cinema->ButtonM_Click(KinoButton::Stop);
  });
  shell_.MainForm->ButtonM_Click(BarButton::Film);
  if (failed) throw ProgramEnd{};
}

}  // namespace orvanta
