// Places: what cannot be seen, clicked or moved where the disc has put it.

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "config/Values.h"
#include "disctool/check/CheckJob.h"
#include "platform/Region.h"
#include "startup/modFormShape.h"

namespace orvanta {
namespace {

// As the shell's windows are designed, in pixels.
constexpr Size kMenuArea{472, 309}, kStrip{472, 33}, kCinema{640, 480};
constexpr Size kButtonWithoutArt{32, 32}, kShotFrame{161, 259};
constexpr int kLabelHeight = 26, kShotTop = 6, kShotHeight = 82, kShotGap = 3;

struct ButtonKeys {
  std::string_view base, left, top;
};
constexpr std::array<ButtonKeys, 10> kBar{{{"ExtB", "ExtX", "ExtY"},
                                           {"Snd1B", "Snd1X", "Snd1Y"},
                                           {"Snd2B", "Snd2X", "Snd2Y"},
                                           {"HlpB", "HlpX", "HlpY"},
                                           {"StartB", "StartX", "StartY"},
                                           {"PauzaB", "PauzaX", "PauzaY"},
                                           {"StopB", "StopX", "StopY"},
                                           {"InfoB", "InfoX", "InfoY"},
                                           {"MinB", "MinX", "MinY"},
                                           {"PokazB", "PokazX", "PokazY"}}};
constexpr std::array<ButtonKeys, 5> kCinemaButtons{{{"CPlayB", "CPlayX", "CPlayY"},
                                                    {"CStopB", "CStopX", "CStopY"},
                                                    {"CpauseB", "CPauseX", "CPauseY"},
                                                    {"CScaleB", "CScaleX", "CScaleY"},
                                                    {"CFScaleB", "CFScaleX", "CFScaleY"}}};

int Pixels(const CheckJob& job, std::string_view section, std::string_view key) {
  return WholeOf(job.catalogue.Find(section, key).value);
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
  for (const ButtonKeys& keys : kBar) {
    const Setting at = job.catalogue.Find("GLOBAL", keys.left);
    if (!at || !job.catalogue.Find("GLOBAL", keys.base)) continue;
    const Size size = job.PictureOf("GLOBAL", keys.base, "0.gif").value_or(kButtonWithoutArt);
    const Rect area{Pixels(job, "GLOBAL", keys.left), Pixels(job, "GLOBAL", keys.top), size.width,
                    size.height};
    const bool inside = Intersection(area, {0, 0, kMainWindow.width, kMainWindow.height}) == area;
    const int seen = PixelsInOutline(outline, area);
    // Art may well run into the corners that the outline cuts off.
    if (!inside || seen == 0) Outside(job, at, Translated("the button of %1", keys.base), seen == 0);
  }
}

void CinemaButtons(CheckJob& job) {
  const Size window = job.PictureOf("CINEMA", "CBackground").value_or(kCinema);
  for (const ButtonKeys& keys : kCinemaButtons) {
    const Setting at = job.catalogue.Find("CINEMA", keys.left);
    if (!at || !job.catalogue.Find("CINEMA", keys.base)) continue;
    const Size size = job.PictureOf("CINEMA", keys.base, "0.gif").value_or(kButtonWithoutArt);
    const Rect area{Pixels(job, "CINEMA", keys.left), Pixels(job, "CINEMA", keys.top), size.width,
                    size.height};
    const Rect seen = Intersection(area, {0, 0, window.width, window.height});
    if (seen != area) Outside(job, at, Translated("the button of %1", keys.base), seen.Empty());
  }
}

void Zones(CheckJob& job) {
  const Size strip = job.PictureOf("GLOBAL", "LinePic").value_or(kStrip);
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
  const int top = isRoot ? first : 2 * first + kLabelHeight + 6;
  return top + (items - 1) * (kLabelHeight + 1) + kLabelHeight > areaHeight;
}

void Sliders(CheckJob& job) {
  const Size area = job.PictureOf("GLOBAL", "BackgroundPic").value_or(kMenuArea);
  bool list = false, shots = false;
  for (const MenuNode& node : job.tree.nodes) {
    const int items = static_cast<int>(node.items.size());
    if (node.kind == NodeKind::Menu)
      list = list || Overflows(job, items, &node == &job.tree.nodes.front(), area.height);
    else if (node.kind != NodeKind::Inert)
      shots = shots || kShotTop + node.shots * (kShotHeight + kShotGap) - kShotGap > kShotFrame.height;
  }
  for (const char* page : {"HelpB", "AboutB"})
    list = list || job.PictureOf("GLOBAL", page).value_or(Size{}).height > area.height;
  CheckSlider(job, {"SLIDER", "SliderB", area, list});
  CheckSlider(job, {"SHOTSLIDER", "SSuwakB", kShotFrame, shots});
}

}  // namespace

void CheckLayout(CheckJob& job) {
  BarButtons(job);
  CinemaButtons(job);
  Zones(job);
  Sliders(job);
}

}  // namespace orvanta
