#pragma once

#include <optional>

class QScreen;
class QWidget;

namespace orvanta {

/// Before Qt starts: it scales nothing by itself. Its own scaling rounds the cursor's place away from the
/// pixel and leaves pointers small.
void SwitchOffQtScaling();

/// The zoom of a screen: `chosen` by the user, else by the screen's size and the desktop's resolution.
int ZoomOfScreen(const QScreen& screen, std::optional<int> chosen);

/// Makes text, icon and margins of a message box, or of another window of Qt's that has not been shown yet,
/// as large on its screen as they are on one without zoom.
void MakeReadable(QWidget& window, int zoom);

}  // namespace orvanta
