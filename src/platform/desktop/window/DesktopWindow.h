#pragma once

#include <QRegion>
#include <QWidget>

#include "platform/Form.h"
#include "platform/FormWindow.h"
#include "platform/desktop/window/Zoom.h"

class QSinglePointEvent;

namespace orvanta {

class DesktopHost;
class WindowAccess;

/// `text` for Qt, which takes "[*]" for the place of a sign of its own unless it stands there twice.
QString WindowTitle(const std::string& text);

/// A form's window: one plain widget that is painted by the form. The form knows program pixels alone, Qt
/// the screen's.
class DesktopWindow : public QWidget, public FormWindow {
 public:
  DesktopWindow(DesktopHost& host, Form& form, WindowKind kind);
  ~DesktopWindow() override;

  Form& TheForm() const { return form_; }
  /// The screen has another size, place or zoom.
  void FollowScreen();
  /// Comes in front of the strips, without asking for the activation: soon if it is active, else when it
  /// next is.
  void ComeToTop();
  /// The main window is on another workspace; its strips go there too.
  void FollowWorkspace(std::uint32_t workspace);

  /// The place of an area of the form on the screen, in screen pixels.
  QRect OnScreen(const Rect& area) const;
  /// Called when an assistive technology asks for the window: `access` follows it from then on.
  void SetAccess(WindowAccess* access) { access_ = access; }
  void FollowAccess();
  /// Queues what an assistive technology does for the event loop.
  void Assist(FormEvent::Kind kind, ControlId control, double value = 0);

  void SetPlace(const Rect& place) override;
  void SetShape(const Region& shape) override;
  void SetCaption(const std::string& caption) override;
  void SetPointer(Pointer pointer) override;
  void SetOwner(Form& owner) override;
  void SetVisible(bool visible) override;
  void SetMinimised(bool minimised) override;
  void Raise() override;
  void Invalidate(const Rect& area) override;
  void PaintNow() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool nativeEvent(const QByteArray& kind, void* message, qintptr* result) override;

 private:
  void Post(FormEvent::Kind kind, Point place = {}, int button = 0, int held = 0);
  void PostMouse(FormEvent::Kind kind, const QMouseEvent& event);
  void SeeCursor(const QSinglePointEvent& event);
  void NoteMove(const QPoint& corner);
  void SetHints();
  void ShowNow();
  void StayInPlace();
  /// How far the window manager has pushed a strip from its place, in screen pixels.
  QPoint Pushed() const;
  void StateChanged();
  void TopIfActive();
  /// A strip: by any other program's window that is in front of it. The main window: by a strip.
  bool IsCovered() const;
  void TakeBackMinimising();
  void ComeBack();
  /// The window's place among all screens.
  Rect Shown() const;
  WindowZoom Zoom() const;

  DesktopHost& host_;
  Form& form_;
  const WindowKind kind_;
  Rect place_;
  Rect asked_;  // by the form; the window manager may have moved the window since
  Region shape_;
  Pointer pointer_ = Pointer::Default;
  QRegion dirty_;  // in screen pixels
  bool wasMinimised_ = false;
  bool showing_ = false;
  WindowAccess* access_ = nullptr;  // owned by Qt
  bool changed_ = false;
  Milliseconds lookAgain_ = 0;
  bool topDue_ = false;
};

}  // namespace orvanta
