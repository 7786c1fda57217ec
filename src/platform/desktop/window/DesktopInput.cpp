// What the user and the window manager do with a form's window, told to the event loop.

#include <QCloseEvent>
#include <QMouseEvent>
#include <cmath>

#include "platform/desktop/DesktopHost.h"
#include "platform/desktop/window/DesktopWindow.h"

namespace orvanta {

namespace {

int BitsOf(Qt::MouseButtons buttons) {
  return (buttons & Qt::LeftButton ? kLeftButton : 0) | (buttons & Qt::RightButton ? kRightButton : 0) |
         (buttons & Qt::MiddleButton ? kMiddleButton : 0);
}

}  // namespace

void DesktopWindow::Post(FormEvent::Kind kind, Point place, int button, int held) {
  host_.Loop().Post({kind, &form_, place, button, held});
}

void DesktopWindow::PostMouse(FormEvent::Kind kind, const QMouseEvent& event) {
  SeeCursor(event);
  const int button = BitsOf(event.button());
  if (kind != FormEvent::Kind::MouseMove && button == 0) return;
  Post(kind, Zoom().ToProgram({event.pos().x(), event.pos().y()}), button, BitsOf(event.buttons()));
}

void DesktopWindow::Assist(FormEvent::Kind kind, ControlId control, double value) {
  host_.Loop().Post({.kind = kind, .form = &form_, .control = control, .value = value});
}

void DesktopWindow::SeeCursor(const QSinglePointEvent& event) {
  // Some mice tell parts of a pixel.
  const QPointF place = event.globalPosition();
  host_.Cursor().Saw({static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y()))});
}

void DesktopWindow::enterEvent(QEnterEvent* event) { SeeCursor(*event); }

void DesktopWindow::mouseMoveEvent(QMouseEvent* event) { PostMouse(FormEvent::Kind::MouseMove, *event); }

void DesktopWindow::mousePressEvent(QMouseEvent* event) { PostMouse(FormEvent::Kind::MousePress, *event); }

void DesktopWindow::mouseReleaseEvent(QMouseEvent* event) {
  PostMouse(FormEvent::Kind::MouseRelease, *event);
}

void DesktopWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  PostMouse(FormEvent::Kind::MouseSecondPress, *event);
}

void DesktopWindow::leaveEvent(QEvent*) {
  host_.Cursor().Lose();
  Post(FormEvent::Kind::MouseLeave);
}

void DesktopWindow::moveEvent(QMoveEvent* event) {
  if (isVisible() && !isMinimized() && !showing_) NoteMove(event->pos());
}

void DesktopWindow::NoteMove(const QPoint& corner) {
  if (kind_ == WindowKind::Plain) return StayInPlace();
  const Point place = host_.Zoom().ToProgram({corner.x(), corner.y()});
  if (place == Point{place_.left, place_.top}) return;
  place_.left = place.x;
  place_.top = place.y;
  Post(FormEvent::Kind::Moved, place);
}

void DesktopWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  Post(FormEvent::Kind::Close);
}

}  // namespace orvanta
