#include "buttons/PictureButtons.h"

#include "startup/Shell.h"

namespace orvanta {

void LoadButton(Shell& shell, Image& button, ImageList& pictures, const ButtonKeys& keys) {
  const std::string base = shell.settings.Base(keys.base);
  pictures.Add(shell.LoadPicture(base + "0.gif"), keys.name);
  pictures.Add(shell.LoadPicture(base + "1.gif"));
  pictures.Add(shell.LoadPicture(base + "2.gif"));
  button.Left = shell.settings.Whole(keys.left);
  button.Top = shell.settings.Whole(keys.top);
}

void MainForm::ButtonsInit() {
  for (std::size_t i = 1; i < kBarButtons.size(); ++i) {
    ButtonM.LoadNext();
    ButtonM(ButtonM.UBound()).Visible = true;
  }
  ButtonM.ForEach([this](Image& button) {
    const ButtonKeys& keys = kBarButtons.at(static_cast<std::size_t>(button.Index));
    LoadButton(shell_, button, ImageList1, keys);
    button.Picture = ImageList1(keys.name);
  });
  // One of the two sound buttons is hidden, depending on whether there is a sound card.
  const BarButton hidden = shell_.basCommon.SoundCardOK ? BarButton::SoundOff : BarButton::SoundOn;
  ButtonM(hidden).Visible = ButtonM(hidden).Enabled = false;
}

}  // namespace orvanta
