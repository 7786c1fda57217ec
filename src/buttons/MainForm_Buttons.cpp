// The bar of ten buttons: where their art and their places come from.

#include "buttons/ButtonLook.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

struct BarButton {
  KeyRef<Kind::Base> base;
  KeyRef<Kind::Whole> left, top;
  const char* key;  // in ImageList1
};

// By Index.
constexpr std::array<BarButton, 10> kBar{{
    {{"GLOBAL", "ExtB"}, {"GLOBAL", "ExtX"}, {"GLOBAL", "ExtY"}, "ext"},
    {{"GLOBAL", "Snd1B"}, {"GLOBAL", "Snd1X"}, {"GLOBAL", "Snd1Y"}, "snd1"},
    {{"GLOBAL", "Snd2B"}, {"GLOBAL", "Snd2X"}, {"GLOBAL", "Snd2Y"}, "snd2"},
    {{"GLOBAL", "HlpB"}, {"GLOBAL", "HlpX"}, {"GLOBAL", "HlpY"}, "hlp"},
    {{"GLOBAL", "StartB"}, {"GLOBAL", "StartX"}, {"GLOBAL", "StartY"}, "Start"},
    {{"GLOBAL", "PauzaB"}, {"GLOBAL", "PauzaX"}, {"GLOBAL", "PauzaY"}, "Pauza"},
    {{"GLOBAL", "StopB"}, {"GLOBAL", "StopX"}, {"GLOBAL", "StopY"}, "Stop"},
    {{"GLOBAL", "InfoB"}, {"GLOBAL", "InfoX"}, {"GLOBAL", "InfoY"}, "Info"},
    {{"GLOBAL", "MinB"}, {"GLOBAL", "MinX"}, {"GLOBAL", "MinY"}, "Min"},
    {{"GLOBAL", "PokazB"}, {"GLOBAL", "PokazX"}, {"GLOBAL", "PokazY"}, "Pokaz"},
}};

}  // namespace

void MainForm::ButtonsInit() {
  for (int i = 1; i <= 9; ++i) {
    ButtonM.LoadNext();
    ButtonM(i).Visible = true;
    ButtonM(i).Enabled = true;
  }
  const bool soundCard = shell_.basCommon.SoundCardOK;
  for (int i = 0; i <= 9; ++i) {
    const BarButton& button = kBar[static_cast<std::size_t>(i)];
    AddButtonArt(shell_, ImageList1, shell_.settings.Base(button.base), button.key);
    // Of the sound pair the one is there that tells how the sound is.
    if ((i == 1 && !soundCard) || (i == 2 && soundCard)) ButtonM(i).Visible = ButtonM(i).Enabled = false;
    ButtonM(i).Picture = ImageList1(button.key);
    ButtonM(i).Left = shell_.settings.Whole(button.left);
    ButtonM(i).Top = shell_.settings.Whole(button.top);
  }
}

}  // namespace orvanta
