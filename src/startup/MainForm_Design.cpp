// MainForm before Form_Load: everything that no key of the disc changes.

#include "startup/Design.h"
#include "startup/Shell.h"

namespace orvanta {

MainForm::MainForm(Shell& shell)
    : Form(shell.host, {.name = "MainForm",
                        .width = kMainWindow.width * kTwipsPerPixel,
                        .height = kMainWindow.height * kTwipsPerPixel,
                        .window = WindowKind::Main}),
      lblNote(*this, "lblNote"),
      Shape1(*this, "Shape1"),
      Label1(*this, "Label1"),
      lblSystem(*this, "lblSystem"),
      lblTitle(*this, "lblTitle"),
      lblBackTxt(*this, "lblBackTxt"),
      imgProducer(*this, "imgProducer"),
      ButtonM(*this, "ButtonM"),
      S2(*this, "S2"),
      imgBack(*this, "imgBack"),
      imgUp(*this, "imgUp"),
      AM2(*this, "AM2", MovieKind::Sound),
      AM3(*this, "AM3", MovieKind::Sound),
      picShotTlo(*this, "picShotTlo"),
      picShot(picShotTlo, "picShot"),
      imgSSlider(picShotTlo, "imgSSlider"),
      imgSSuwak(picShotTlo, "imgSSuwak"),
      picTlo(*this, "picTlo"),
      lblPos1(picTlo, "lblPos1"),
      Line1(picTlo, "Line1", 4),
      Line2(picTlo, "Line2", 2),
      imgSuwakPas(picTlo, "imgSuwakPas"),
      imgSuwak(picTlo, "imgSuwak"),
      imgSeven(picTlo, "imgSeven"),
      imgPomoc(picTlo, "imgPomoc"),
      imgKreska(picTlo, "imgKreska"),
      lblBackTxt2(imgKreska, "lblBackTxt2"),
      ImgBack2(imgKreska, "ImgBack2"),
      imgUp2(imgKreska, "imgUp2"),
      Timer1(*this, 50, [this] { Timer1_Timer(); }),
      slider(shell),
      shell_(shell) {
  DesignControls();
  DesignDetail();
  WireEvents();
}

void MainForm::DesignControls() {
  picTlo.AutoSize = true;
  picTlo.Move(0, 0, kMenuArea.width, kMenuArea.height);
  imgKreska.AutoSize = true;
  imgKreska.Move(0, 0, kKreska.width, kKreska.height);
  lblTitle.Move(0, 0, 427, 30);
  lblBackTxt.Move(0, 0, 391, 26);
  lblBackTxt2.Move(0, 0, 393, 26);

  lblPos1(0).Move(0, 0, 401, kLabelHeight);
  lblPos1(0).MouseIcon = Pointer::Hand;
  for (Image* zone : {&imgBack, &imgUp, &ImgBack2, &imgUp2}) {
    zone->BorderStyle = 1;
    zone->MouseIcon = Pointer::Hand;
  }
  ButtonM(0).Move(0, 0, kButtonWithoutArt.width, kButtonWithoutArt.height);
  ButtonM(0).MouseIcon = Pointer::Hand;
}

void MainForm::DesignDetail() {
  lblNote.Move(113, 184, 269, 177);
  lblNote.BackStyle = 1;
  lblNote.FontSize = 9.75;

  Shape1.Move(113, 394, 268, 49);
  Shape1.FillColor = Shape1.BorderColor = 0xE0E0E0;

  Label1.Move(113, 392, 268, 18);
  Label1.Caption = "  Minimalne wymagania sprzętowe:";
  Label1.BackStyle = 1;
  Label1.BackColor = 0x404040;
  Label1.ForeColor = 0xFFFFFF;
  Label1.FontName = "Arial";
  Label1.FontSize = 9.75;

  lblSystem.Move(117, 409, 261, 34);
  lblSystem.BackStyle = 1;
  lblSystem.BackColor = 0xE0E0E0;
  lblSystem.ForeColor = 0x800000;
  lblSystem.FontName = "Arial";
  lblSystem.FontBold = true;
  lblSystem.FontSize = 9.75;

  picShotTlo.Move(kShotFrame.left, kShotFrame.top, kShotFrame.width, kShotFrame.height);
  picShotTlo.BackColor = 0xFFFFFF;
  picShot(0).Move(kFirstShot.left, kFirstShot.top, kFirstShot.width, kFirstShot.height);
  picShot(0).Stretch = true;
  picShot(0).BorderStyle = 1;
  imgSSlider.Visible = imgSSuwak.Visible = false;

  S2.Move(0, 0, 3, 9);
  S2.FillColor = 0x0000FF;
  S2.BorderColor = 0x0000C0;
  S2.Visible = false;
}

void MainForm::WireEvents() {
  ButtonM.Click = [this](std::int16_t Index) { ButtonM_Click(BarButton{Index}); };
  lblPos1.Click = [this](std::int16_t Index) { lblPos1_Click(Index); };
  picShot.Click = [this](std::int16_t Index) { picShot_Click(Index); };
  imgBack.Click = ImgBack2.Click = [this] { imgBack_Click(); };
  imgUp.Click = imgUp2.Click = [this] { imgUp_Click(); };
  imgPomoc.Click = [this] { ClosePage(imgPomoc); };
  imgSeven.Click = [this] { ClosePage(imgSeven); };
  slider.Attach(listKnob);
  slider.Attach(shotKnob);
}

}  // namespace orvanta
