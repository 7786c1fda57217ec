#pragma once

#include <QAccessibleWidget>
#include <unordered_map>

#include "platform/Accessible.h"

namespace orvanta {

class DesktopWindow;
class PartAccess;

/// A form's window for assistive technologies. It is created when one asks for it and deleted with the
/// window. It answers from the form's tree as of the last call of `Follow`, so no question runs code of the
/// shell.
class WindowAccess : public QAccessibleWidget {
 public:
  explicit WindowAccess(DesktopWindow& window);

  /// Brings the tree up to date and reports what has changed.
  void Follow();
  /// Whether the window is left out, as the strips are.
  bool IsDecoration() { return Tree().role == AccessibleRole::Decoration; }

  const AccessibleNode* Find(ControlId id) const;
  /// The part that contains another one, or the window itself.
  QAccessibleInterface* HolderOf(ControlId id);
  QAccessibleInterface* Part(ControlId id);
  /// The place of a part on the screen, in screen pixels.
  QRect OnScreen(const Rect& place) const;
  bool HasFocus(ControlId id) const;
  /// Queue a press of a part, or a new value, for the event loop.
  void Invoke(ControlId id);
  void SetValue(ControlId id, double value);

  int childCount() const override { return static_cast<int>(Tree().children.size()); }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;
  QString text(QAccessible::Text kind) const override;
  QAccessible::Role role() const override { return QAccessible::Window; }
  QStringList actionNames() const override;
  void doAction(const QString& name) override;

 protected:
  ~WindowAccess() override;

 private:
  struct Place {
    const AccessibleNode* node;
    ControlId holder;
  };
  const AccessibleNode& Tree() const;
  void Take(AccessibleNode tree) const;
  void Index(const AccessibleNode& node, ControlId holder) const;
  void Report(QAccessible::Event event, ControlId id);
  void ReportState(ControlId id, const QAccessible::State& changed);
  void Forget(const AccessibleNode& node);
  void MoveFocus(ControlId to);

  DesktopWindow& window_;
  // Filled by the first question; Qt asks constant objects.
  mutable bool taken_ = false;
  mutable AccessibleNode tree_;
  mutable std::unordered_map<ControlId, Place> places_;
  std::unordered_map<ControlId, QAccessible::Id> parts_;
  ControlId focus_ = kWholeForm;
  bool active_ = false;
};

}  // namespace orvanta
