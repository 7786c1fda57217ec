#pragma once

class QWidget;

namespace orvanta {

/// Asks the window manager to keep a window out of the task bar and the pager. To be called before each
/// showing, since hiding a window takes the wish back (Extended Window Manager Hints, _NET_WM_STATE).
/// Does nothing where windows are not X11's.
void SkipTaskBar(QWidget& window);

/// Sends what Qt has drawn and asked for to the X server, without taking in events.
void FlushToScreen();

}  // namespace orvanta
