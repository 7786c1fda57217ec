// MainForm builds itself from the disc, in an order that the user can see.

#include "startup/Shell.h"
#include "startup/modFonts.h"
#include "startup/modFormShape.h"

namespace orvanta {

namespace {

struct ZoneKeys {
  KeyRef<Kind::Whole> left, top, width, height;
};

void PlaceZone(const Settings& settings, Image& zone, const ZoneKeys& keys) {
  zone.Left = settings.Whole(keys.left);
  zone.Top = settings.Whole(keys.top);
  zone.Width = settings.Whole(keys.width);
  zone.Height = settings.Whole(keys.height);
  zone.BorderStyle = 0;
}

}  // namespace

void MainForm::Form_Load() {
  const Settings& settings = shell_.settings;
  shell_.modMain.CheckScreenSize();
  Picture = shell_.LoadPicture(settings.Picture({"GLOBAL", "MainGfx"}));
  picTlo.Picture = shell_.LoadPicture(settings.Picture({"MENUITEM", "BackgroundB"}));
  picTlo.Left = settings.Single({"MENUITEM", "BackgroundX"});
  picTlo.Top = settings.Single({"MENUITEM", "BackgroundY"});
  ApplyFormShape(*this);
  PressedButton = BarButton::None;
  // The form's size in twips, used as pixels: far outside the window.
  AM3.Left = Width();
  AM3.Top = Height();
  AM2.Left = AM3.Left();
  AM2.Top = AM3.Top();
  const int levels = std::max<int>(0, settings.Whole({"GLOBAL", "MenuLevels"}));
  MenuPath.assign(static_cast<std::size_t>(levels) + 1, std::string());
  shell_.basCommon.SoundWanted = true;
  ButtonsInit();
  MenuLevel = 0;
  MenuPath[0] = "MAINMENU";
  LoadTitle();
  LoadMenuArea();
  LoadZones();
  LoadProducer();
  LoadLines();
  LoadBackLabels();
  imgPomoc.Picture = shell_.LoadPicture(settings.Picture({"GLOBAL", "HelpB"}));
  imgSeven.Picture = shell_.LoadPicture(settings.Picture({"GLOBAL", "AboutB"}));
  SuwakInit();
  MenuInit(CurrentNode());
  shell_.host.Sleep(1000);
  shell_.frmReklama.Unload();
  ShotTop = CLng(picShot(0).Top);
  for (Image* page : {&imgPomoc, &imgSeven}) {
    page->Left = 35;
    page->Top = 0;
    page->Visible = false;
  }
  Timer1.Enabled = true;
  Visible = true;
  if (!shell_.modMain.SmallScreen) {
    for (Shell::StripSlot* strip : shell_.Strips()) (*strip)->Show();
    ShowStrips(true);
  }
  MousePointer = kDefaultPointer;
  StartMusic();
}

void MainForm::LoadTitle() {
  const Settings& settings = shell_.settings;
  FontResource(shell_, settings.Font({"HEADLINE", "FontFile"}), true);
  FontResource(shell_, settings.Font({"MENUITEM", "FontFile"}), true);
  lblTitle.Caption = settings.Text({"HEADLINE", "Caption"});
  Caption = lblTitle.Caption();
  lblTitle.Left = settings.Single({"HEADLINE", "Left"});
  lblTitle.Top = settings.Single({"HEADLINE", "Top"});
  lblTitle.FontName = settings.Text({"HEADLINE", "FontName"});
  lblTitle.FontBold = settings.Boolean({"HEADLINE", "FontBold"});
  lblTitle.FontSize = settings.Whole({"HEADLINE", "FontSize"});
  lblTitle.ForeColor = settings.Colour({"HEADLINE", "Color"});
}

void MainForm::LoadMenuArea() {
  const Settings& settings = shell_.settings;
  picTlo.Picture = shell_.LoadPicture(settings.Picture({"GLOBAL", "BackgroundPic"}));
  picTlo.Left = settings.Whole({"GLOBAL", "BackgroundPicX"});
  picTlo.Top = settings.Whole({"GLOBAL", "BackgroundPicY"});
  imgKreska.Picture = shell_.LoadPicture(settings.Picture({"GLOBAL", "LinePic"}));
  imgKreska.Left = settings.Whole({"GLOBAL", "LinePicX"});
  imgKreska.Top = settings.Whole({"GLOBAL", "LinePicY"});
  imgKreska.Visible = false;
}

void MainForm::LoadZones() {
  const Settings& settings = shell_.settings;
  PlaceZone(settings, imgBack,
            {{"GLOBAL", "BackX"}, {"GLOBAL", "BackY"}, {"GLOBAL", "BackW"}, {"GLOBAL", "BackH"}});
  PlaceZone(settings, imgUp, {{"GLOBAL", "UpX"}, {"GLOBAL", "UpY"}, {"GLOBAL", "UpW"}, {"GLOBAL", "UpH"}});
  PlaceZone(settings, ImgBack2,
            {{"GLOBAL", "Back2X"}, {"GLOBAL", "Back2Y"}, {"GLOBAL", "Back2W"}, {"GLOBAL", "Back2H"}});
  PlaceZone(settings, imgUp2,
            {{"GLOBAL", "Up2X"}, {"GLOBAL", "Up2Y"}, {"GLOBAL", "Up2W"}, {"GLOBAL", "Up2H"}});
}

void MainForm::LoadProducer() {
  const Settings& settings = shell_.settings;
  const KeyRef<Kind::Picture> mark{"GLOBAL", "ProducerB"};
  if (!settings.Has(mark)) return;
  imgProducer.Picture = shell_.LoadPicture(settings.Picture(mark));
  imgProducer.Left = settings.Whole({"GLOBAL", "ProducerX"});
  imgProducer.Top = settings.Whole({"GLOBAL", "ProducerY"});
}

void MainForm::LoadLines() {
  const Settings& settings = shell_.settings;
  Line1.ForEach([&](Line& line) {
    line.BorderWidth = settings.Whole({"MENUITEM", "LineSize"});
    line.BorderColor = settings.Colour({"MENUITEM", "LineColor"});
  });
  Line2(0).BorderWidth = settings.Whole({"MENUITEM", "Line2Size"});
  Line2(0).BorderColor = settings.Colour({"MENUITEM", "Line2Color"});
  Line2(1).BorderWidth = Line2(0).BorderWidth();
  Line2(1).BorderColor = Line2(0).BorderColor();
}

void MainForm::LoadBackLabels() {
  const Settings& settings = shell_.settings;
  for (Label* label : {&lblBackTxt, &lblBackTxt2}) {
    label->FontName = settings.Text({"MENUITEM", "FontName"});
    label->FontBold = settings.Boolean({"MENUITEM", "FontBold"});
    label->FontSize = settings.Whole({"MENUITEM", "FontSize"});
  }
  lblBackTxt.Left = settings.Whole({"MENUITEM", "BackTxt1X"});
  lblBackTxt.Top = settings.Whole({"MENUITEM", "BackTxt1Y"});
  lblBackTxt.ForeColor = settings.Colour({"MENUITEM", "BackTxt1Color"});
  lblBackTxt2.Left = settings.Whole({"MENUITEM", "BackTxt2X"});
  lblBackTxt2.Top = settings.Whole({"MENUITEM", "BackTxt2Y"});
  lblBackTxt2.ForeColor = settings.Colour({"MENUITEM", "BackTxt2Color"});
}

void MainForm::StartMusic() {
  const std::string music = shell_.settings.Sound({"VOICES", "Music"});
  shell_.basCommon.MusicLoaded = false;
  if (!shell_.basCommon.SoundCardOK) return;
  AM2.FileName(shell_.HostFile(music));
  AM2.Visible = false;
  AM2.AutoRewind(true);
  AM2.PlayCount(99999);
  SavedVolume = 0;
}

}  // namespace orvanta
