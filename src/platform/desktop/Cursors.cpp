#include "platform/desktop/Cursors.h"

namespace orvanta {

QCursor CursorOf(Pointer pointer) {
  switch (pointer) {
    case Pointer::Default: break;
    case Pointer::Hourglass: return Qt::WaitCursor;
    case Pointer::Hand: return Qt::PointingHandCursor;
    case Pointer::OpenHand: return Qt::OpenHandCursor;
    case Pointer::ClosedHand: return Qt::ClosedHandCursor;
  }
  return Qt::ArrowCursor;
}

}  // namespace orvanta
