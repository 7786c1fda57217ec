#pragma once

#include <QCursor>

#include "platform/Control.h"

namespace orvanta {

/// The pointer's picture. The hands are 32 by 32 pixels; the pointing one's hot spot is at (3, 4), that of
/// the open and the closed one at (8, 7); all of that times `zoom`. Arrow and hourglass are the desktop's
/// own, in the size that it gives them.
QCursor CursorOf(Pointer pointer, int zoom);

}  // namespace orvanta
