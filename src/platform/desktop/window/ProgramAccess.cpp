#include "platform/desktop/window/ProgramAccess.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>

#include "platform/desktop/window/DesktopWindow.h"
#include "platform/desktop/window/WindowAccess.h"

namespace orvanta {

namespace {

/// The program: its visible windows without the strips.
class ProgramAccess : public QAccessibleApplication {
 public:
  int childCount() const override { return static_cast<int>(Windows().size()); }
  QAccessibleInterface* child(int index) const override { return Windows().value(index); }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(Windows().indexOf(child));
  }
  QAccessibleInterface* focusChild() const override {
    QWidget* active = QApplication::activeWindow();
    QAccessibleInterface* window = active ? QAccessible::queryAccessibleInterface(active) : nullptr;
    return window ? window->focusChild() : nullptr;
  }

 private:
  static QList<QAccessibleInterface*> Windows() {
    QList<QAccessibleInterface*> windows;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      QAccessibleInterface* window =
          widget->isVisible() ? QAccessible::queryAccessibleInterface(widget) : nullptr;
      auto* ours = dynamic_cast<WindowAccess*>(window);
      if (window && !(ours && ours->IsDecoration())) windows.append(window);
    }
    return windows;
  }
};

QAccessibleInterface* Make(const QString&, QObject* object) {
  if (object == qApp) return new ProgramAccess;
  auto* window = dynamic_cast<DesktopWindow*>(object);
  return window ? new WindowAccess(*window) : nullptr;
}

}  // namespace

void OfferAccess() { QAccessible::installFactory(Make); }

void FollowAccess() {
  if (!QAccessible::isActive()) return;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* window = dynamic_cast<DesktopWindow*>(widget)) window->FollowAccess();
}

}  // namespace orvanta
