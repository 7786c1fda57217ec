// What a screen reader learns about the ten buttons.

#include "buttons/HoveredButton.h"
#include "startup/Shell.h"

namespace orvanta {

void MainForm::AddButtons(Nodes& nodes) const {
  const bool transport = ButtonM(BarButton::Pause).Visible;
  for (int i = 0; i <= ButtonM.UBound(); ++i) {
    const auto button = BarButton{static_cast<std::int16_t>(i)};
    const Image& image = ButtonM(i);
    if (!image.Visible) continue;
    AccessibleNode node =
        AccessibleOf(image, AccessibleRole::Button, kBarButtons.at(static_cast<std::size_t>(i)).meaning);
    node.hovered = IsHovered(shell_.modMouse, 0, *this, image);
    node.unavailable = node.unavailable || DoesNothing(button);
    if (transport && (button == BarButton::Start || button == BarButton::Pause || button == BarButton::Stop))
      node.pressed = PressedButton == button;
    nodes.push_back(std::move(node));
  }
}

/// Whether a click on a button would change nothing now.
bool MainForm::DoesNothing(BarButton button) const {
  const bool card = shell_.basCommon.SoundCardOK;
  const std::int32_t music = AM3.CurrentState();
  switch (button) {
    case BarButton::SoundOn:
    case BarButton::SoundOff: return !card;
    case BarButton::Help:
    case BarButton::About: return PressedButton != BarButton::None && PressedButton != BarButton::Stop;
    case BarButton::Start: return picTlo.Visible || PressedButton == BarButton::Start;
    case BarButton::Pause: return !card || music != ActiveMovie::kRunning;
    case BarButton::Stop: return !card || (music != ActiveMovie::kRunning && music != ActiveMovie::kPaused);
    case BarButton::Film: return picTlo.Visible;
    case BarButton::None:
    case BarButton::Exit:
    case BarButton::Minimise: break;
  }
  return false;
}

}  // namespace orvanta
