#pragma once

#include <cstdint>
#include <optional>
#include <vector>

class QWidget;

namespace orvanta {

/// Asks the window manager to keep a window out of the task bar and the pager. To be called before each
/// showing, since hiding a window takes the wish back (Extended Window Manager Hints, _NET_WM_STATE).
/// Does nothing where windows are not X11's.
void SkipTaskBar(QWidget& window);

/// Takes a window off the list of those that want the focus. Qt's own flag for it still lets some window
/// managers offer the focus (ICCCM, WM_TAKE_FOCUS). Only before the window is first shown.
void RefuseFocus(QWidget& window);

/// Tells the window manager that the user cannot move a window (Motif's window manager hints). Only before
/// each showing, since Qt sets hints of its own.
void ForbidMoving(QWidget& window);

/// Whether the user can see the window, whatever it was asked to do: nobody has minimised it, and it is
/// mapped. False where windows are not X11's.
bool IsOnScreen(QWidget& window);

/// The windows above a window, panels aside, from the bottom to the top, as the window manager reports them
/// (Extended Window Manager Hints, _NET_CLIENT_LIST_STACKING); nothing if none does.
std::optional<std::vector<std::uint32_t>> WindowsAbove(const QWidget& window);

/// The workspace that a window is on now, if that is what a native event of the window reports
/// (Extended Window Manager Hints, _NET_WM_DESKTOP).
std::optional<std::uint32_t> NewWorkspace(const QWidget& window, const void* event);

/// Asks the window manager to take a visible window to another workspace.
void SendToWorkspace(const QWidget& window, std::uint32_t workspace);

/// Sends what Qt has drawn and asked for to the X server, without taking in events.
void FlushToScreen();

}  // namespace orvanta
