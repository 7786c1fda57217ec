// Places: what cannot be seen, clicked or moved where the disc has put it.

#include <span>
#include <string>

#include "buttons/PictureButtons.h"
#include "config/Values.h"
#include "disctool/check/CheckJob.h"
#include "platform/Region.h"
#include "startup/Design.h"
#include "startup/modFormShape.h"

namespace orvanta {
namespace {

int Pixels(const CheckJob& job, std::string_view section, std::string_view key) {
  return WholeOf(job.catalogue.Find(section, key).value);
}

int Pixels(const CheckJob& job, const KeyRef<Kind::Whole>& key) { return Pixels(job, key.section, key.name); }

/// What a button covers on its window.
Rect AreaOf(CheckJob& job, const ButtonKeys& keys) {
  const Size size = job.PictureOf(keys.base.section, keys.base.name, "0.gif").value_or(kButtonWithoutArt);
  return {Pixels(job, keys.left), Pixels(job, keys.top), size.width, size.height};
}

/// Calls `check` with each button that the disc has put somewhere: its place in the file, name and area.
template <class Check>
void ForEachButton(CheckJob& job, std::span<const ButtonKeys> buttons, Check check) {
  for (const ButtonKeys& keys : buttons) {
    const Setting at = job.catalogue.Find(keys.left.section, keys.left.name);
    if (at && job.catalogue.Find(keys.base.section, keys.base.name))
      check(at, Translated("the button of %1", keys.base.name), AreaOf(job, keys));
  }
}

/// How many pixels of a rectangle belong to the main window's outline.
int PixelsInOutline(const Region& outline, const Rect& area) {
  const Rect part = Intersection(area, {0, 0, kMainWindow.width, kMainWindow.height});
  int count = 0;
  for (int y = part.top; y < part.Bottom(); ++y)
    for (int x = part.left; x < part.Right(); ++x) count += outline.Contains({x, y}) ? 1 : 0;
  return count;
}

void Outside(CheckJob& job, const Setting& at, const std::string& what, bool wholly) {
  if (wholly) return job.findings.Error(at.place, "outside", Translated("%1 lies outside the window", what));
  job.findings.Warning(at.place, "partly-outside", Translated("%1 lies partly outside the window", what));
}

void BarButtons(CheckJob& job) {
  const Region outline = BuildFormRegion();
  ForEachButton(job, kBarButtons, [&](const Setting& at, const std::string& what, const Rect& area) {
    const bool inside = Intersection(area, {0, 0, kMainWindow.width, kMainWindow.height}) == area;
    const int seen = PixelsInOutline(outline, area);
    // Art may well run into the corners that the outline cuts off.
    if (!inside || seen == 0) Outside(job, at, what, seen == 0);
  });
}

void CinemaButtons(CheckJob& job) {
  const Size window = job.PictureOf("CINEMA", "CBackground").value_or(kCinema);
  ForEachButton(job, kKinoButtons, [&](const Setting& at, const std::string& what, const Rect& area) {
    const Rect seen = Intersection(area, {0, 0, window.width, window.height});
    if (seen != area) Outside(job, at, what, seen.Empty());
  });
}

void Zones(CheckJob& job) {
  const Size strip = job.PictureOf("GLOBAL", "LinePic").value_or(kKreska);
  for (const std::string zone : {"Back", "Up", "Back2", "Up2"}) {
    const Size box = zone.ends_with('2') ? strip : kMainWindow;
    const Rect area{Pixels(job, "GLOBAL", zone + "X"), Pixels(job, "GLOBAL", zone + "Y"),
                    Pixels(job, "GLOBAL", zone + "W"), Pixels(job, "GLOBAL", zone + "H")};
    const Setting at = job.catalogue.Find("GLOBAL", zone + "X");
    const Rect seen = Intersection(area, {0, 0, box.width, box.height});
    if (at && !area.Empty() && seen != area)
      Outside(job, at, Translated("the click zone %1", zone), seen.Empty());
  }
}

/// A slider: the keys of its section, the box that it lies in and whether this disc needs it.
struct Slider {
  std::string_view section, knob;
  Size box;
  bool needed;
};

void CheckSlider(CheckJob& job, const Slider& slider) {
  const Setting end = job.catalogue.Find(slider.section, "YMax");
  const Setting begin = job.catalogue.Find(slider.section, "YMin");
  if (!begin || !end) return;
  const double yMin = CLng(DoubleOf(begin.value)), yMax = CLng(DoubleOf(end.value));
  if (yMax <= yMin) {
    const std::string text =
        Translated("the slider cannot scroll: YMax of [%1] is not above YMin", slider.section);
    if (slider.needed) return job.findings.Error(end.place, "no-travel", text);
    return job.findings.Warning(end.place, "no-travel",
                                text + Translated("; nothing on this disc needs it yet"));
  }
  const Size knob = job.PictureOf(slider.section, slider.knob).value_or(Size{});
  const double left = job.Number(slider.section, "PosX");
  if (left + knob.width <= 0 || left >= slider.box.width || yMin + knob.height <= 0 ||
      yMin >= slider.box.height)
    return job.findings.Error(end.place, "knob-outside",
                              Translated("the slider cannot be grabbed: its knob lies outside its area"));
  if (yMin < 0 || yMax + knob.height > slider.box.height || left < 0 || left + knob.width > slider.box.width)
    job.findings.Warning(end.place, "knob-partly-outside",
                         Translated("the knob of the slider leaves its area"));
}

/// Whether a list of so many labels is higher than the menu area.
bool Overflows(const CheckJob& job, int items, bool isRoot, int areaHeight) {
  const int first = Pixels(job, "MENUITEM", "LabelPosY");
  const int top = isRoot ? first : 2 * first + kLabelHeight + kSubmenuGap;
  return top + (items - 1) * (kLabelHeight + kLabelGap) + kLabelHeight > areaHeight;
}

void Sliders(CheckJob& job) {
  const Size area = job.PictureOf("GLOBAL", "BackgroundPic").value_or(kMenuArea);
  bool list = false, shots = false;
  for (const MenuNode& node : job.tree.nodes) {
    const int items = static_cast<int>(node.items.size());
    if (node.kind == NodeKind::Menu)
      list = list || Overflows(job, items, &node == &job.tree.nodes.front(), area.height);
    else if (node.kind != NodeKind::Inert)
      shots = shots ||
              kFirstShot.top + node.shots * (kFirstShot.height + kShotGap) - kShotGap > kShotFrame.height;
  }
  for (const char* page : {"HelpB", "AboutB"})
    list = list || job.PictureOf("GLOBAL", page).value_or(Size{}).height > area.height;
  CheckSlider(job, {"SLIDER", "SliderB", area, list});
  CheckSlider(job, {"SHOTSLIDER", "SSuwakB", {kShotFrame.width, kShotFrame.height}, shots});
}

}  // namespace

void CheckLayout(CheckJob& job) {
  BarButtons(job);
  CinemaButtons(job);
  Zones(job);
  Sliders(job);
}

}  // namespace orvanta
