#pragma once

#include <QAccessible>

#include "platform/Accessible.h"

namespace orvanta {

class WindowAccess;

/// A control, or a group of controls, for assistive technologies. Its window creates it, keeps it as long as
/// it is in the tree, and has all the data.
class PartAccess : public QAccessibleInterface,
                   public QAccessibleActionInterface,
                   public QAccessibleValueInterface,
                   public QAccessibleTextInterface {
 public:
  PartAccess(WindowAccess& window, ControlId id) : owner_(window), id_(id) {}

  ControlId Id() const { return id_; }

  bool isValid() const override { return Node() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int index) const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

  QVariant currentValue() const override { return Value().now; }
  void setCurrentValue(const QVariant& value) override;
  QVariant maximumValue() const override { return Value().most; }
  QVariant minimumValue() const override { return Value().least; }
  QVariant minimumStepSize() const override { return 1.0; }

  // Read-only text without a cursor.
  void selection(int, int* start, int* end) const override { *start = *end = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QString text(int start, int end) const override { return Words().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(Words().size()); }
  QRect characterRect(int) const override { return rect(); }
  int offsetAtPoint(const QPoint&) const override { return 0; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int* start, int* end) const override;

 private:
  const AccessibleNode* Node() const;
  AccessibleValue Value() const;
  QString Words() const { return text(QAccessible::Name); }

  WindowAccess& owner_;
  const ControlId id_;
};

}  // namespace orvanta
