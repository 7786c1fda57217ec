#pragma once

#include "platform/Geometry.h"

// What the windows are designed with before a disc's keys and pictures change it. Pixels.

namespace orvanta {

inline constexpr Size kMainWindow{667, 496};
/// `picTlo`, `imgKreska` and the cinema take the size of their pictures; this is theirs without.
inline constexpr Size kMenuArea{472, 309}, kKreska{472, 33}, kCinema{640, 480};
/// A button whose art is missing can still be found and clicked.
inline constexpr Size kButtonWithoutArt{32, 32};

/// A list: labels of this height, each this far below the one before it. Under the strip of a submenu the
/// first one stands once more its own place, its height and a gap lower.
inline constexpr int kLabelHeight = 26, kLabelGap = 1, kSubmenuGap = 6;

/// The frame of an entry's screenshots in the main window, and the first of them in the frame.
inline constexpr Rect kShotFrame{388, 184, 161, 259}, kFirstShot{7, 6, 123, 82};
inline constexpr int kShotGap = 3;

}  // namespace orvanta
