// Finds what cannot be seen or clicked, using the shell's own controls.

#include <algorithm>
#include <span>
#include <string>

#include "buttons/PictureButtons.h"
#include "config/Values.h"
#include "disctool/check/CheckJob.h"
#include "disctool/check/ShownDisc.h"
#include "platform/Region.h"
#include "startup/Design.h"
#include "startup/modFormShape.h"

namespace orvanta {
namespace {

/// The area of a control and the part of it that its containers do not clip, in pixels of the form.
struct Shown {
  Rect whole, seen;
};

Shown ShownOf(const Control& control) {
  Shown shown{control.Bounds(), control.Bounds()};
  const Container* container = &control.Parent();
  shown.seen = Intersection(shown.seen, container->ClientArea());
  while (const auto* box = dynamic_cast<const PictureBox*>(container)) {
    const Point origin{box->Bounds().left, box->Bounds().top};
    container = &box->Parent();
    shown.whole = shown.whole.Moved(origin);
    shown.seen = Intersection(shown.seen.Moved(origin), container->ClientArea());
  }
  return shown;
}

/// A control, the keys of its position, and its name for messages.
struct PlacedControl {
  const Control& control;
  std::string_view section, left, top;
  std::string what;
};

/// The setting that the maker has to change: that of the axis on which the control is not visible.
Setting PlaceOf(const CheckJob& job, const PlacedControl& placed, const Shown& shown) {
  const bool sideways = shown.whole.left >= kMainWindow.width || shown.whole.Right() <= 0;
  const bool beyond = shown.whole.top >= kMainWindow.height || shown.whole.Bottom() <= 0;
  return job.catalogue.Find(placed.section, beyond && !sideways ? placed.top : placed.left);
}

void Outside(CheckJob& job, const PlacedControl& placed, const Shown& shown) {
  const Setting at = PlaceOf(job, placed, shown);
  // A missing one is reported as such.
  if (!at || shown.whole.Empty()) return;
  job.findings.Error(at.place, "outside", Translated("%1 lies outside the window", placed.what));
}

void PartlyOutside(CheckJob& job, const PlacedControl& placed, const Shown& shown) {
  if (shown.seen.Empty()) return Outside(job, placed, shown);
  const Setting at = job.catalogue.Find(placed.section, placed.left);
  if (at && shown.seen != shown.whole)
    job.findings.Warning(at.place, "partly-outside",
                         Translated("%1 lies partly outside the window", placed.what));
}

bool AnyInOutline(const Region& outline, const Rect& area) {
  for (int y = area.top; y < area.Bottom(); ++y)
    for (int x = area.left; x < area.Right(); ++x)
      if (outline.Contains({x, y})) return true;
  return false;
}

/// Calls `check` with each button that has art and a position on the disc.
template <class Check>
void ForEachButton(CheckJob& job, std::span<const ButtonKeys> keys, const ControlArray<Image>& buttons,
                   Check check) {
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const ButtonKeys& button = keys[i];
    if (!job.catalogue.Find(button.base.section, button.base.name)) continue;
    check(PlacedControl{buttons(static_cast<int>(i)), button.left.section, button.left.name, button.top.name,
                        Translated("the button of %1", button.base.name)});
  }
}

void Buttons(CheckJob& job, const MainForm& main) {
  const Region outline = BuildFormRegion();
  ForEachButton(job, kBarButtons, main.ButtonM, [&](const PlacedControl& placed) {
    Shown shown = ShownOf(placed.control);
    // Art may reach into the corners that the outline cuts off.
    if (!AnyInOutline(outline, shown.seen)) return Outside(job, placed, shown);
    PartlyOutside(job, placed, shown);
  });
}

void Zones(CheckJob& job, const MainForm& main) {
  const PlacedControl zones[] = {
      {main.imgBack, "GLOBAL", "BackX", "BackY", Translated("the click zone %1", "Back")},
      {main.imgUp, "GLOBAL", "UpX", "UpY", Translated("the click zone %1", "Up")},
      {main.ImgBack2, "GLOBAL", "Back2X", "Back2Y", Translated("the click zone %1", "Back2")},
      {main.imgUp2, "GLOBAL", "Up2X", "Up2Y", Translated("the click zone %1", "Up2")}};
  for (const PlacedControl& zone : zones)
    if (!zone.control.Bounds().Empty()) PartlyOutside(job, zone, ShownOf(zone.control));
}

/// Checks controls that may be cut off but must be partly visible.
void Parts(CheckJob& job, const MainForm& main) {
  const PlacedControl parts[] = {
      {main.picTlo, "GLOBAL", "BackgroundPicX", "BackgroundPicY", Translated("the menu area")},
      {main.imgKreska, "GLOBAL", "LinePicX", "LinePicY", Translated("the strip of a submenu")},
      {main.imgProducer, "GLOBAL", "ProducerX", "ProducerY", Translated("the producer's mark")},
      {main.lblTitle, "HEADLINE", "Left", "Top", Translated("the title")},
      {main.lblPos1(0), "MENUITEM", "LabelPosX", "LabelPosY", Translated("the first label of a menu")},
      {main.lblBackTxt, "MENUITEM", "BackTxt1X", "BackTxt1Y", Translated("the name of the entry on show")},
      {main.lblBackTxt2, "MENUITEM", "BackTxt2X", "BackTxt2Y", Translated("the name of the menu")},
      {main.imgSuwakPas, "SLIDER", "SliderBarX", "SliderBarY", Translated("the slider's bar")}};
  for (const PlacedControl& part : parts) {
    const Shown shown = ShownOf(part.control);
    if (shown.seen.Empty()) Outside(job, part, shown);
  }
}

/// The marker of the music is only shown while music plays.
void Marker(CheckJob& job, const MainForm& main) {
  const auto pixels = [&](const char* key) { return WholeOf(job.catalogue.Find("GLOBAL", key).value); };
  const Rect size = main.S2.Bounds();
  const int begin = pixels("S2_Start"), end = pixels("S2_End");
  const Rect way{begin, pixels("S2_Top"), std::max(0, end - begin) + size.width, size.height};
  const Shown shown{way, Intersection(way, main.ClientArea())};
  if (job.tree.Has(NodeKind::Music) && shown.seen.Empty())
    Outside(job, {main.S2, "GLOBAL", "S2_Start", "S2_Top", Translated("the marker of the music")}, shown);
}

void Cinema(CheckJob& job, const frmKino& kino) {
  ForEachButton(job, kKinoButtons, kino.ButtonM,
                [&](const PlacedControl& placed) { PartlyOutside(job, placed, ShownOf(placed.control)); });
  const auto pixels = [&](const char* key) { return WholeOf(job.catalogue.Find("CINEMA", key).value); };
  const Rect window = kino.Picture1.ClientArea();
  const Point middle{pixels("CMiddX"), pixels("CMiddY")};
  const bool sideways = middle.x < 0 || middle.x >= window.width;
  const Setting at = job.catalogue.Find("CINEMA", sideways ? "CMiddX" : "CMiddY");
  if (at && !window.Contains(middle))
    job.findings.Error(at.place, "outside",
                       Translated("%1 lies outside the window", Translated("the middle of the film")));
}

}  // namespace

void CheckShown(CheckJob& job) {
  ShownDisc disc(job);
  if (const MainForm* main = disc.Main()) {
    Buttons(job, *main);
    Zones(job, *main);
    Parts(job, *main);
    Marker(job, *main);
  }
  const frmKino* kino = job.catalogue.HasSection("CINEMA") ? disc.Kino() : nullptr;
  if (kino) Cinema(job, *kino);
}

}  // namespace orvanta
