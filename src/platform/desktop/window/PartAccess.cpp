#include "platform/desktop/window/PartAccess.h"

#include "platform/desktop/window/WindowAccess.h"

namespace orvanta {

const AccessibleNode* PartAccess::Node() const { return owner_.Find(id_); }

QWindow* PartAccess::window() const { return owner_.window(); }

QAccessibleInterface* PartAccess::parent() const { return owner_.HolderOf(id_); }

int PartAccess::childCount() const { return Node() ? static_cast<int>(Node()->children.size()) : 0; }

QAccessibleInterface* PartAccess::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  return owner_.Part(Node()->children[static_cast<std::size_t>(index)].id);
}

int PartAccess::indexOfChild(const QAccessibleInterface* child) const {
  const auto* part = dynamic_cast<const PartAccess*>(child);
  for (int i = 0; part && i < childCount(); ++i)
    if (Node()->children[static_cast<std::size_t>(i)].id == part->id_) return i;
  return -1;
}

QAccessibleInterface* PartAccess::childAt(int x, int y) const {
  for (int i = 0; i < childCount(); ++i)
    if (child(i)->rect().contains(x, y)) return child(i);
  return nullptr;
}

QString PartAccess::text(QAccessible::Text kind) const {
  const AccessibleNode* node = Node();
  if (node && kind == QAccessible::Name) return QString::fromStdString(node->name);
  if (node && kind == QAccessible::Description) return QString::fromStdString(node->detail);
  return {};
}

QRect PartAccess::rect() const {
  const AccessibleNode* node = Node();
  return node && !node->place.Empty() ? owner_.OnScreen(node->place) : QRect();
}

QAccessible::Role PartAccess::role() const {
  switch (Node() ? Node()->role : AccessibleRole::Decoration) {
    case AccessibleRole::Window: return QAccessible::Window;
    case AccessibleRole::Decoration: return QAccessible::NoRole;
    case AccessibleRole::List: return QAccessible::List;
    case AccessibleRole::ListItem: return QAccessible::ListItem;
    case AccessibleRole::Button: return QAccessible::Button;
    case AccessibleRole::Slider: return QAccessible::Slider;
    case AccessibleRole::Heading: return QAccessible::Heading;
    case AccessibleRole::Text: return QAccessible::StaticText;
    case AccessibleRole::Picture:
    case AccessibleRole::Page: return QAccessible::Graphic;
    case AccessibleRole::ProgressBar: return QAccessible::ProgressBar;
  }
  return QAccessible::NoRole;
}

QAccessible::State PartAccess::state() const {
  QAccessible::State state;
  const AccessibleNode* node = Node();
  if (!node) {
    state.invalid = true;
    return state;
  }
  state.disabled = node->unavailable;
  state.hotTracked = node->hovered;
  state.checkable = node->pressed.has_value();
  state.checked = state.pressed = node->pressed.value_or(false);
  state.offscreen = node->place.Empty();
  state.focusable = true;
  state.focused = owner_.HasFocus(id_);
  state.readOnly = node->role == AccessibleRole::Heading || node->role == AccessibleRole::Text;
  return state;
}

void* PartAccess::interface_cast(QAccessible::InterfaceType type) {
  const AccessibleNode* node = Node();
  if (!node) return nullptr;
  const bool isText = node->role == AccessibleRole::Heading || node->role == AccessibleRole::Text;
  if (type == QAccessible::ActionInterface && node->clickable)
    return static_cast<QAccessibleActionInterface*>(this);
  if (type == QAccessible::ValueInterface && node->value)
    return static_cast<QAccessibleValueInterface*>(this);
  if (type == QAccessible::TextInterface && isText) return static_cast<QAccessibleTextInterface*>(this);
  return nullptr;
}

QStringList PartAccess::actionNames() const {
  return Node() && Node()->clickable ? QStringList(pressAction()) : QStringList();
}

void PartAccess::doAction(const QString& name) {
  if (name == pressAction()) owner_.Invoke(id_);
}

AccessibleValue PartAccess::Value() const {
  return Node() && Node()->value ? *Node()->value : AccessibleValue{};
}

void PartAccess::setCurrentValue(const QVariant& value) {
  if (Node() && Node()->settable) owner_.SetValue(id_, value.toDouble());
}

QString PartAccess::attributes(int, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

}  // namespace orvanta
