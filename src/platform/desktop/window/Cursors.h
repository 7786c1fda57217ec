#pragma once

#include <QCursor>

#include "platform/Control.h"

namespace orvanta {

/// The cursor for a pointer. The hands are 32 by 32 pixels large; the hot spot is at (3, 4) for the pointing
/// hand and at (8, 7) for the open and the closed one; `zoom` multiplies all of these. Arrow and hourglass
/// are those of the desktop, in its own size.
QCursor CursorOf(Pointer pointer, int zoom);

}  // namespace orvanta
