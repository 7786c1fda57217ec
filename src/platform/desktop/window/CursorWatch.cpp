#include "platform/desktop/window/CursorWatch.h"

#include <QCursor>

namespace orvanta {

namespace {

// While another program grabs the mouse, as a window manager does to move a window, no moves are reported.
constexpr Milliseconds kLongestBelief = 500;

}  // namespace

void CursorWatch::Saw(Point place) {
  place_ = place;
  followed_ = true;
}

void CursorWatch::Lose() {
  place_.reset();
  followed_ = false;
}

void CursorWatch::Look(Milliseconds now) {
  if (!followed_ || now - asked_ >= kLongestBelief) place_.reset();
}

Point CursorWatch::Place(Milliseconds now) {
  if (!place_) {
    const QPoint cursor = QCursor::pos();
    place_ = Point{cursor.x(), cursor.y()};
    asked_ = now;
  }
  return *place_;
}

}  // namespace orvanta
