#pragma once

namespace orvanta {

/// Windows can be opened: the X server of `$DISPLAY` or the compositor of `$WAYLAND_DISPLAY` answers, or
/// `$QT_QPA_PLATFORM` names a platform that needs neither. Without a display Qt ends the process with a core
/// dump, so this is asked first.
bool HasDisplay();

}  // namespace orvanta
