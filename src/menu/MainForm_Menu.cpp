// The menu tree: a list of labels for the current node, and the ways down and up.

#include "config/NumberedKey.h"
#include "startup/Design.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

constexpr ColourValue kInViewColour = 0xFFFFFF;
constexpr ColourValue kCutOffColour = 0x558059;

}  // namespace

std::string MainForm::CurrentNode() const { return MenuPath[static_cast<std::size_t>(MenuLevel)]; }

std::int16_t MainForm::IleMenu(const std::string& menu) const { return CountRun(shell_.ini, menu, "Menu"); }

bool MainForm::InView(const Label& label) const {
  const double upper = MenuLevel == 0 ? LabelTop - 1.0 : imgKreska.Height();
  return label.Top > upper && label.Top + label.Height <= picTlo.Height;
}

ColourValue MainForm::LabelColour(const Label& label) const {
  return InView(label) ? kInViewColour : kCutOffColour;
}

void MainForm::MenuInit(const std::string& menu) {
  ++views_;
  const Settings& settings = shell_.settings;
  picTlo.Visible = true;
  PressedButton = BarButton::None;
  picShot.UnloadAbove0();
  lblPos1.UnloadAbove0();
  Line2.Show(false);
  for (const BarButton button : {BarButton::Start, BarButton::Pause, BarButton::Stop, BarButton::Film})
    ButtonM(button).Visible = false;
  const int n = IleMenu(menu);
  while (lblPos1.UBound() < n - 1) lblPos1.LoadNext();
  PosTop.assign(static_cast<std::size_t>(lblPos1.UBound()) + 1, 0);

  Label& first = lblPos1(0);
  first.FontName = settings.Text({"MENUITEM", "FontName"});
  first.FontBold = settings.Boolean({"MENUITEM", "FontBold"});
  first.FontSize = settings.Whole({"MENUITEM", "FontSize"});
  first.Left = settings.Whole({"MENUITEM", "LabelPosX"});
  first.Top = settings.Whole({"MENUITEM", "LabelPosY"});
  LabelTop = CLng(first.Top);
  first.Visible = true;
  if (MenuLevel > 0) first.Top = first.Top + LabelTop + first.Height + kSubmenuGap;
  const bool opaque = settings.Whole({"MENUITEM", "BackStyle"}) != 0;
  const ColourValue backColour = settings.Colour({"MENUITEM", "BackColor"});
  for (int i = 0; i <= lblPos1.UBound(); ++i) BuildLabel(i, menu, opaque, backColour);
  Line1.Show(false);

  const Label& last = lblPos1(lblPos1.UBound());
  FitSlider(CLng(last.Height + last.Top));
  if (MenuLevel > 0) {
    ShowPlace(CurrentNode());
  } else {
    imgKreska.Visible = false;
    imgBack.Enabled = imgUp.Enabled = lblBackTxt2.Visible = false;
  }
}

void MainForm::BuildLabel(int i, const std::string& menu, bool opaque, ColourValue backColour) {
  Label& label = lblPos1(i);
  const Label& first = lblPos1(0);
  label.BackStyle = opaque ? 1 : 0;
  if (opaque) label.BackColor = backColour;
  label.Caption = shell_.ini.IniRead(menu, NumberedKey("Menu", i + 1), kMenuFile);
  if (i > 0) {
    label.FontSize = first.FontSize();
    label.FontName = first.FontName();
    label.FontBold = first.FontBold();
    label.Move(first.Left, first.Top + i * (first.Height + kLabelGap), first.Width, first.Height);
    label.Visible = true;
  }
  PosTop[static_cast<std::size_t>(i)] = CLng(label.Top);
  label.ForeColor = LabelColour(label);
}

void MainForm::ShowPlace(const std::string& name) {
  imgKreska.Visible = true;
  lblBackTxt.Caption = name;
  lblBackTxt2.Caption = name;
  imgBack.Enabled = imgUp.Enabled = lblBackTxt2.Visible = true;
}

void MainForm::EnterLevel(const std::string& name) {
  selected_ = 0;
  if (MenuLevel == INT16_MAX) return;
  ++MenuLevel;
  const auto level = static_cast<std::size_t>(MenuLevel);
  if (level >= MenuPath.size()) MenuPath.resize(level + 1);
  MenuPath[level] = name;
}

void MainForm::lblPos1_Click(std::int16_t Index) {
  if (crosshairRuns_ || Index == selected_ - 1) return;
  if (selected_ > 0 && selected_ - 1 <= lblPos1.UBound()) lblPos1(selected_ - 1).ForeColor = kInViewColour;
  selected_ = static_cast<std::int16_t>(Index + 1);
  PlayRandomSoundFile("Button", true);
  Strzal(Index);
  // Strzal pumps events, so the list may have been rebuilt meanwhile.
  if (Index > lblPos1.UBound()) return;
  const std::string caption = lblPos1(Index).Caption;
  if (IleMenu(caption) > 0) {
    EnterLevel(caption);
    MenuInit(CurrentNode());
  } else if (IsExec(caption) || IsPlay(caption)) {
    EnterLevel(caption);
    OpisInit();
  }
}

void MainForm::imgBack_Click() {
  PlayRandomSoundFile("Tool", true);
  if (MenuLevel > 0) --MenuLevel;
  MenuInit(CurrentNode());
  shell_.modMain.ItemSoundHold = false;
}

void MainForm::imgUp_Click() {
  PlayRandomSoundFile("Tool", true);
  MenuLevel = 0;
  MenuInit(CurrentNode());
  shell_.modMain.ItemSoundHold = false;
}

void MainForm::StronaInit(double height) {
  ++views_;
  picShot.UnloadAbove0();
  picShot(0).Visible = false;
  lblPos1.UnloadAbove0();
  lblPos1(0).Visible = false;
  Line1.Show(false);
  imgKreska.Visible = false;
  FitSlider(CInt(height));
  picTlo.Visible = true;
}

void MainForm::StronaKoniec() {
  if (IleMenu(CurrentNode()) > 0) MenuInit(CurrentNode());
  if (IsExec(CurrentNode()) || IsPlay(CurrentNode())) OpisInit();
}

}  // namespace orvanta
