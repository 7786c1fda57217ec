// Activation, resizing and the end of MainForm.

#include "startup/Shell.h"
#include "startup/modFonts.h"

namespace orvanta {

void MainForm::Form_Activate() {
  shell_.modMouse.LastOver[0] = -1;
  shell_.modMain.CheckScreenSize();
  if (shell_.modMain.SmallScreen) PinWindow();
}

void MainForm::Form_Resize() {
  shell_.modMain.CheckScreenSize();
  const bool isMinimised = WindowState == kMinimised;
  if (!shell_.modMain.SmallScreen) {
    ShowStrips(!isMinimised);
  } else if (!isMinimised) {
    PinWindow();
  }
}

void MainForm::PinWindow() {
  Left = 0;
  Top = shell_.host.Screen().Height - Height - 20;
}

void MainForm::ShowStrips(bool visible) {
  shell_.frmDociagLewo->Visible = visible;
  shell_.frmDociagGora->Visible = visible;
  shell_.frmDociagPrawo1->Visible = visible;
  shell_.frmDociagPrawo2->Visible = visible;
  shell_.frmDociagPrawo3->Visible = visible;
}

void MainForm::Form_Unload() {
  Press(0);
  shell_.host.Sleep(200);
  if (shell_.basCommon.SoundCardOK) {
    if (shell_.basCommon.MusicLoaded) AM2.Stop();
    PlayEndSound(true);
  }
  Timer1.Enabled = false;
  FontResource(shell_, shell_.settings.Font({"HEADLINE", "FontFile"}), false);
  FontResource(shell_, shell_.settings.Font({"MENUITEM", "FontFile"}), false);
  if (!shell_.modMain.SmallScreen) {
    shell_.frmDociagLewo.Unload();
    shell_.frmDociagGora.Unload();
    shell_.frmDociagPrawo1.Unload();
    shell_.frmDociagPrawo2.Unload();
    shell_.frmDociagPrawo3.Unload();
  }
  throw ProgramEnd{};
}

}  // namespace orvanta
