// Which windows are minimised, active and in front, and on which workspace: what is asked of the window
// manager, and what it does.

#include <QEvent>
#include <QTimer>
#include <algorithm>

#include "platform/desktop/DesktopHost.h"
#include "platform/desktop/window/DesktopWindow.h"
#include "platform/desktop/window/XWindow.h"

namespace orvanta {

namespace {

// Longer than any window manager takes to minimise a window or to bring back all of a program's.
constexpr int kPatience = 1000;  // milliseconds

// Until a window manager has done what it was asked for, in most cases.
constexpr int kSettling = 100;  // milliseconds

}  // namespace

void DesktopWindow::SetMinimised(bool minimised) {
  wasMinimised_ = minimised;
  if (!minimised) return showNormal();
  showMinimized();
  QTimer::singleShot(kPatience, this, &DesktopWindow::TakeBackMinimising);
}

// Some window managers minimise nothing, and a program whose window is seen must not act as if it were not.
void DesktopWindow::TakeBackMinimising() {
  if (!wasMinimised_ || !IsOnScreen(*this)) return;
  wasMinimised_ = false;
  setWindowState(windowState() & ~Qt::WindowMinimized);
  Post(FormEvent::Kind::Restore);
}

void DesktopWindow::Raise() {
  if (kind_ != WindowKind::Plain || IsCovered()) raise();
  // The main window stays on top of its strips, and alone takes the activation.
  if (kind_ == WindowKind::Plain) return host_.PutMainWindowOnTop();
  activateWindow();
}

void DesktopWindow::changeEvent(QEvent* event) {
  host_.Cursor().Lose();
  changed_ = true;
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
    if (topDue_) ComeToTop();
    host_.StopExpecting(form_);
    Post(FormEvent::Kind::Activate);
  }
  if (event->type() == QEvent::WindowStateChange) StateChanged();
  QWidget::changeEvent(event);
}

void DesktopWindow::StateChanged() {
  if (kind_ == WindowKind::Plain) {
    if (isMinimized()) QTimer::singleShot(kPatience, this, &DesktopWindow::ComeBack);
    return;
  }
  if (isMinimized() == wasMinimised_) return;
  wasMinimised_ = isMinimized();
  Post(wasMinimised_ ? FormEvent::Kind::Minimise : FormEvent::Kind::Restore);
  // Restored so soon that Qt has not noticed the loss of the activation, it tells of no new one either.
  if (!wasMinimised_ && isActiveWindow()) Post(FormEvent::Kind::Activate);
}

// A strip has no task-bar entry by which the user could bring it back alone.
void DesktopWindow::ComeBack() {
  if (isVisible() && isMinimized()) ShowNow();
}

void DesktopWindow::ComeToTop() { QTimer::singleShot(kSettling, this, &DesktopWindow::TopIfActive); }

void DesktopWindow::TopIfActive() {
  topDue_ = !isActiveWindow() || isMinimized();
  if (isVisible() && !topDue_ && IsCovered()) raise();
}

// Some window managers take a needless raise for a call for attention.
bool DesktopWindow::IsCovered() const {
  const auto above = WindowsAbove(*this);
  if (!above) return true;
  return std::ranges::any_of(*above, [this](std::uint32_t id) {
    const auto* window = dynamic_cast<const DesktopWindow*>(QWidget::find(id));
    return kind_ == WindowKind::Main ? window && window->kind_ == WindowKind::Plain : !window;
  });
}

bool DesktopWindow::nativeEvent(const QByteArray& kind, void* message, qintptr* result) {
  if (kind_ == WindowKind::Main)
    if (const auto workspace = NewWorkspace(*this, message)) host_.FollowWorkspace(*workspace);
  return QWidget::nativeEvent(kind, message, result);
}

void DesktopWindow::FollowWorkspace(std::uint32_t workspace) {
  if (kind_ == WindowKind::Plain && isVisible()) SendToWorkspace(*this, workspace);
}

}  // namespace orvanta
