#pragma once

#include <QCursor>

#include "platform/Control.h"

namespace orvanta {

/// The pointer's picture. The hands are 32 by 32 pixels; the pointing one's hot spot is at (3, 4), that of
/// the open and the closed one at (8, 7).
QCursor CursorOf(Pointer pointer);

}  // namespace orvanta
