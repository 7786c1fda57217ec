#include "startup/modActiveWindow.h"

#include <algorithm>

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
  const auto strips = shell_.Strips();
  return form && std::any_of(strips.begin(), strips.end(),
                             [form](const Shell::StripSlot* strip) { return form == strip->Loaded(); });
}

}  // namespace orvanta
