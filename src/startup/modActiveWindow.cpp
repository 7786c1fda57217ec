#include "startup/modActiveWindow.h"

#include "startup/Shell.h"

namespace orvanta {

bool modActiveWindow::CheckActive() {
  const Form* active = shell_.host.ActiveForm();
  const Form* main = shell_.MainForm.Loaded();
  bool result = active && active == main;
  if (!shell_.modMain.SmallScreen) result = result || IsStrip(active);
  if (main && main->WindowState == Form::kMinimised) result = false;
  if (shell_.modMain.ShowPicOpen) result = result || (active && active == shell_.frmShowPic.Loaded());
  AppActive = result;
  return result;
}

bool modActiveWindow::IsStrip(const Form* form) const {
  return form && (form == shell_.frmDociagLewo.Loaded() || form == shell_.frmDociagGora.Loaded() ||
                  form == shell_.frmDociagPrawo1.Loaded() || form == shell_.frmDociagPrawo2.Loaded() ||
                  form == shell_.frmDociagPrawo3.Loaded());
}

}  // namespace orvanta
