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
  for (Shell::StripSlot* strip : shell_.Strips()) (*strip)->Visible = visible;
}

void MainForm::Form_Unload() {
  Press(BarButton::Exit);
  shell_.host.Sleep(200);
  if (shell_.basCommon.SoundCardOK) {
    if (shell_.basCommon.MusicLoaded) AM2.Stop();
    PlayEndSound(true);
  }
  Timer1.Enabled = false;
  FontResource(shell_, shell_.settings.Font({"HEADLINE", "FontFile"}), false);
  FontResource(shell_, shell_.settings.Font({"MENUITEM", "FontFile"}), false);
  if (!shell_.modMain.SmallScreen) {
    for (Shell::StripSlot* strip : shell_.Strips()) strip->Unload();
  }
  shell_.host.EndProgram();
}

}  // namespace orvanta
