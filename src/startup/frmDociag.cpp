#include "startup/frmDociag.h"

#include "startup/Shell.h"

namespace orvanta {

frmDociag::frmDociag(Shell& shell, const EdgeStrip& strip)
    : Form(shell.host,
           {.name = strip.name, .scale = ScaleMode::Twips, .window = WindowKind::Plain, .centred = false}),
      Image1(*this, "Image1"),
      shell_(shell),
      strip_(strip) {
  Image1.Stretch = true;
  Image1.Click = [this] { shell_.basCommon.DociagToFront(); };
}

void frmDociag::Form_Load() {
  Image1.Picture = shell_.LoadPicture(shell_.settings.Picture(strip_.picture));
  Image1.Left = 0;
  Image1.Top = 0;
  SizeImage();
  Width = Image1.Width();
  Height = Image1.Height();
  PlaceForm();
}

/// As long as the gap between the main window and the edge of the screen, and as thick as the tab.
void frmDociag::SizeImage() {
  const MainForm& main = *shell_.MainForm;
  switch (strip_.side) {
    case EdgeStrip::Side::Left:
      Image1.Height = 1200;
      Image1.Width = main.Left();
      break;
    case EdgeStrip::Side::Top:
      Image1.Width = 3060;
      Image1.Height = main.Top();
      break;
    case EdgeStrip::Side::Right:
      Image1.Height = 150;
      Image1.Width = shell_.host.Screen().Width - (main.Left + main.Width);
      break;
  }
}

void frmDociag::PlaceForm() {
  const MainForm& main = *shell_.MainForm;
  const ScreenMetrics screen = shell_.host.Screen();
  switch (strip_.side) {
    case EdgeStrip::Side::Left:
      Left = 0;
      Top = main.Top + strip_.offset * screen.TwipsPerPixelY;
      break;
    case EdgeStrip::Side::Top:
      Left = main.Left + strip_.offset * screen.TwipsPerPixelX;
      Top = 0;
      break;
    case EdgeStrip::Side::Right:
      Left = main.Left + main.Width;
      Top = main.Top + strip_.offset * screen.TwipsPerPixelY;
      break;
  }
}

}  // namespace orvanta
