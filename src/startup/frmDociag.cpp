#include "startup/frmDociag.h"

#include "startup/Shell.h"

namespace orvanta {

frmDociag::frmDociag(Shell& shell, const char* name, KeyRef<Kind::Picture> key)
    : Form(shell.host,
           {.name = name, .scale = ScaleMode::Twips, .window = WindowKind::Plain, .centred = false}),
      Image1(*this, "Image1"),
      shell_(shell),
      key_(key) {
  Image1.Stretch = true;
  Image1.Click = [this] { shell_.basCommon.DociagToFront(); };
}

void frmDociag::Form_Load() {
  Image1.Picture = shell_.LoadPicture(shell_.settings.Picture(key_));
  Image1.Left = 0;
  Image1.Top = 0;
  SizeImage();
  Width = Image1.Width();
  Height = Image1.Height();
  PlaceForm();
}

frmDociagLewo::frmDociagLewo(Shell& shell) : frmDociag(shell, "frmDociagLewo", {"GLOBAL", "LeftPic"}) {
  Image1.Height = 1200;
}

void frmDociagLewo::SizeImage() { Image1.Width = shell_.MainForm->Left(); }

void frmDociagLewo::PlaceForm() {
  Left = 0;
  Top = shell_.MainForm->Top + 137 * shell_.host.Screen().TwipsPerPixelY;
}

frmDociagGora::frmDociagGora(Shell& shell) : frmDociag(shell, "frmDociagGora", {"GLOBAL", "UpperPic"}) {
  Image1.Width = 3060;
}

void frmDociagGora::SizeImage() { Image1.Height = shell_.MainForm->Top(); }

void frmDociagGora::PlaceForm() {
  Left = shell_.MainForm->Left + 208 * shell_.host.Screen().TwipsPerPixelX;
  Top = 0;
}

frmDociagPrawo::frmDociagPrawo(Shell& shell, const char* name, KeyRef<Kind::Picture> key, int top)
    : frmDociag(shell, name, key), top_(top) {}

void frmDociagPrawo::SizeImage() {
  Image1.Height = 150;
  Image1.Width = shell_.host.Screen().Width - (shell_.MainForm->Left + shell_.MainForm->Width);
}

void frmDociagPrawo::PlaceForm() {
  Left = shell_.MainForm->Left + shell_.MainForm->Width;
  Top = shell_.MainForm->Top + top_ * shell_.host.Screen().TwipsPerPixelY;
}

frmDociagPrawo1::frmDociagPrawo1(Shell& shell)
    : frmDociagPrawo(shell, "frmDociagPrawo1", {"GLOBAL", "RightPic3"}, 424) {}

frmDociagPrawo2::frmDociagPrawo2(Shell& shell)
    : frmDociagPrawo(shell, "frmDociagPrawo2", {"GLOBAL", "RightPic2"}, 369) {}

frmDociagPrawo3::frmDociagPrawo3(Shell& shell)
    : frmDociagPrawo(shell, "frmDociagPrawo3", {"GLOBAL", "RightPic1"}, 314) {}

}  // namespace orvanta
