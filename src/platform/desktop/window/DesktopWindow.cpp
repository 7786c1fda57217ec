#include "platform/desktop/window/DesktopWindow.h"

#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

#include "platform/desktop/DesktopHost.h"
#include "platform/desktop/window/Cursors.h"
#include "platform/desktop/window/PainterCanvas.h"
#include "platform/desktop/window/ShellIcon.h"
#include "platform/desktop/window/WindowAccess.h"
#include "platform/desktop/window/XWindow.h"

namespace orvanta {

namespace {

Qt::WindowFlags FlagsOf(WindowKind kind) {
  return (kind == WindowKind::Modal ? Qt::Dialog : Qt::Window) | Qt::FramelessWindowHint |
         (kind == WindowKind::Plain ? Qt::WindowDoesNotAcceptFocus : Qt::WindowFlags{});
}

QRect ToQt(const Rect& r) { return {r.left, r.top, r.width, r.height}; }

// A window that the window manager keeps elsewhere is not waited for any longer.
constexpr Milliseconds kExposurePatience = 1000;

}  // namespace

QString WindowTitle(const std::string& text) {
  return QString::fromStdString(text).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

DesktopWindow::DesktopWindow(DesktopHost& host, Form& form, WindowKind kind)
    : QWidget(nullptr, FlagsOf(kind)), host_(host), form_(form), kind_(kind) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_NoSystemBackground);
  setMouseTracking(true);
  if (kind == WindowKind::Modal || kind == WindowKind::FullScreen) setWindowModality(Qt::ApplicationModal);
  if (kind == WindowKind::Main) host_.SetMainWindow(this);
}

DesktopWindow::~DesktopWindow() {
  host_.StopExpecting(form_);
  if (kind_ == WindowKind::Main) host_.SetMainWindow(nullptr);
}

void DesktopWindow::SetPlace(const Rect& place) {
  place_ = asked_ = place;
  if (place.Empty()) return;
  const Rect shown = Shown();
  setFixedSize(shown.width, shown.height);
  move(shown.left, shown.top);
  if (kind_ == WindowKind::Plain) StayInPlace();
}

Rect DesktopWindow::Shown() const {
  const bool reachesEdge = kind_ == WindowKind::Plain || kind_ == WindowKind::FullScreen;
  return reachesEdge ? host_.Zoom().ToScreenAndEdge(place_) : host_.Zoom().ToScreen(place_);
}

WindowZoom DesktopWindow::Zoom() const {
  const Rect shown = Shown();
  return {{place_.width, place_.height}, {shown.width, shown.height}};
}

void DesktopWindow::FollowScreen() {
  const Rect before = place_;
  // Window managers push windows about, each by itself, when the screen changes.
  SetPlace(asked_);
  if (place_ != before) Post(FormEvent::Kind::Moved, {place_.left, place_.top});
  SetShape(shape_);
  SetPointer(pointer_);
  update();
}

void DesktopWindow::SetShape(const Region& shape) {
  shape_ = shape;
  const WindowZoom zoom = Zoom();
  QList<QRect> rects;
  for (const Rect& r : shape.Rects()) rects.append(ToQt(zoom.ToScreen(r)));
  QRegion mask;
  mask.setRects(rects.constData(), static_cast<int>(rects.size()));
  setMask(mask);
}

// A window manager may keep a strip off a panel, over the main window, or make it larger.
void DesktopWindow::StayInPlace() {
  setMask(ToQt(Shown()).translated(-pos()));
  update();
}

QPoint DesktopWindow::Pushed() const {
  return kind_ == WindowKind::Plain ? pos() - ToQt(Shown()).topLeft() : QPoint();
}

void DesktopWindow::SetCaption(const std::string& caption) { setWindowTitle(WindowTitle(caption)); }

void DesktopWindow::SetPointer(Pointer pointer) {
  pointer_ = pointer;
  setCursor(CursorOf(pointer, host_.Zoom().factor));
  FlushToScreen();
}

void DesktopWindow::SetOwner(Form& owner) {
  winId();  // makes the native window, which is what has a transient parent
  const auto& window = static_cast<DesktopWindow&>(owner.Window());
  windowHandle()->setTransientParent(window.windowHandle());
}

void DesktopWindow::SetVisible(bool visible) {
  if (visible == isVisible()) return;
  if (!visible) {
    if (isActiveWindow() && form_.Owner()) host_.ExpectActivation(*form_.Owner());
    return hide();
  }
  SetPlace(form_.Place());
  ShowNow();
}

void DesktopWindow::SetHints() {
  if (kind_ != WindowKind::Main) SkipTaskBar(*this);
  if (kind_ == WindowKind::Main || kind_ == WindowKind::Plain) ForbidMoving(*this);
  if (kind_ == WindowKind::Plain) RefuseFocus(*this);
  // Decoding the icon is slow; windows that no list of windows shows skip it.
  if (kind_ != WindowKind::Plain && kind_ != WindowKind::Splash) setWindowIcon(ShellIcon());
}

void DesktopWindow::ShowNow() {
  // Shown while Qt takes it for minimised, it would come up so.
  setWindowState(windowState() & ~Qt::WindowMinimized);
  SetHints();
  // A window manager that frames the window takes it to the screen's corner for a moment.
  showing_ = true;
  if (kind_ == WindowKind::FullScreen) {
    showFullScreen();
  } else {
    show();
  }
  // Painting reaches the screen only from the exposure on.
  const Milliseconds end = host_.Now() + kExposurePatience;
  while (host_.Now() < end && !isMinimized() && !(windowHandle() && windowHandle()->isExposed()))
    host_.WaitForQt(end);
  showing_ = false;
  if (kind_ == WindowKind::Plain) host_.PutMainWindowOnTop();
  const QPoint wanted = ToQt(Shown()).topLeft();
  if (pos() == wanted) return;
  // Some window managers move a window that is larger than the screen.
  if (kind_ == WindowKind::Modal) return move(wanted);
  NoteMove(pos());
}

QRect DesktopWindow::OnScreen(const Rect& area) const {
  return ToQt(Zoom().ToScreen(area)).translated(mapToGlobal(QPoint()));
}

void DesktopWindow::FollowAccess() {
  // Music and films go on without a visible change.
  constexpr Milliseconds kGlance = 500;
  if (!access_ || (!std::exchange(changed_, false) && host_.Now() < lookAgain_)) return;
  lookAgain_ = host_.Now() + kGlance;
  access_->Follow();
}

void DesktopWindow::Invalidate(const Rect& area) {
  changed_ = true;
  const QRect shown = ToQt(Zoom().ToScreen(area));
  dirty_ += shown;
  update(shown);
}

void DesktopWindow::PaintNow() {
  if (!dirty_.isEmpty() && isVisible()) repaint(dirty_);
}

void DesktopWindow::paintEvent(QPaintEvent* event) {
  dirty_ -= event->region();
  QPainter painter(this);
  painter.translate(-Pushed());
  const QRegion dirty = event->region().translated(Pushed());
  const WindowZoom zoom = Zoom();
  PainterCanvas canvas(painter, zoom, host_.Pictures());
  const auto paint = [&](const QRect& r) {
    form_.Paint(canvas, zoom.Covering({r.x(), r.y(), r.width(), r.height()}));
  };
  // Many small parts cost more than the rectangle around them.
  constexpr int kMostParts = 8;
  if (dirty.rectCount() > kMostParts) return paint(dirty.boundingRect());
  for (const QRect& part : dirty) paint(part);
}

}  // namespace orvanta
