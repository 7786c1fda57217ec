#include "menu/frmShowPic.h"

#include "startup/Shell.h"

namespace orvanta {

frmShowPic::frmShowPic(Shell& shell)
    : Form(shell.host, {.name = "frmShowPic", .scale = ScaleMode::Twips, .window = WindowKind::Modal}),
      picPic(*this, "picPic"),
      lblTxt(*this, "lblTxt"),
      shell_(shell) {
  // Large enough to be clicked if there is no picture.
  picPic.Move(0, 0, 4800, 3600);
  lblTxt.Height = 240;
  lblTxt.Caption = "kliknij rysunek aby zniknął...  ";
  lblTxt.Align = Alignment::Right;
  lblTxt.FontBold = true;
  lblTxt.ForeColor = 0x80FFFF;
  lblTxt.BackColor = 0;
  lblTxt.BackStyle = 1;
  picPic.Click = [this] { Unload(); };
}

void frmShowPic::Form_Load() {
  const ControlArray<Image>& shots = shell_.MainForm->picShot;
  const auto* index = std::get_if<std::int16_t>(&shell_.basCommon.ShowArg);
  if (index && *index >= 0 && *index <= shots.UBound()) picPic.Picture = shots(*index).Picture();
  picPic.Top = 0;
  picPic.Left = 0;
  Width = picPic.Width();
  Height = lblTxt.Height + picPic.Height;
  lblTxt.Left = 0;
  lblTxt.Top = picPic.Height();
  lblTxt.Width = Width();
  Refresh();
  shell_.modMain.ShowPicOpen = true;
}

AccessibleNode frmShowPic::Accessible() const {
  AccessibleNode window = Form::Accessible();
  window.name = "Zrzut ekranu";
  const auto* index = std::get_if<std::int16_t>(&shell_.basCommon.ShowArg);
  const std::string name = index ? shell_.MainForm->ShotName(*index) : window.name;
  window.children.push_back(AccessibleOf(picPic, AccessibleRole::Picture, name));
  window.children.push_back(AccessibleOf(lblTxt, AccessibleRole::Text, lblTxt.Caption));
  return window;
}

void frmShowPic::Form_Unload() { shell_.modMain.ShowPicOpen = false; }

}  // namespace orvanta
