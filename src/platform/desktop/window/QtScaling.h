#pragma once

#include <optional>

class QScreen;
class QWidget;

namespace orvanta {

/// Must be called before Qt starts. Qt's own scaling rounds the position of the cursor and leaves pointers
/// small.
void SwitchOffQtScaling();

/// The zoom of a screen: the user's `chosen` zoom, otherwise the one that suits the size of the screen and
/// the resolution of the desktop.
int ZoomOfScreen(const QScreen& screen, std::optional<int> chosen);

/// Makes the text, icon and margins of a message box, or of another window of Qt that has not been shown yet,
/// as large on the screen as they would be without zoom on a smaller one.
void MakeReadable(QWidget& window, int zoom);

}  // namespace orvanta
