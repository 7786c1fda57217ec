// Finds sliders that cannot be moved.

#include <string>

#include "config/Values.h"
#include "disctool/check/CheckJob.h"
#include "startup/Design.h"

namespace orvanta {
namespace {

int Pixels(const CheckJob& job, std::string_view section, std::string_view key) {
  return WholeOf(job.catalogue.Find(section, key).value);
}

/// A slider: its section, the box that contains it, and whether this disc needs it.
struct SliderPlace {
  std::string_view section, knob;
  Size box;
  bool needed;
};

void CheckSlider(CheckJob& job, const SliderPlace& slider) {
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

/// Whether a list of this many labels is taller than the menu area.
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
  CheckShown(job);
  Sliders(job);
}

}  // namespace orvanta
