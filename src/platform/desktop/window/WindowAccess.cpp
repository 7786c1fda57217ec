#include "platform/desktop/window/WindowAccess.h"

#include <utility>

#include "platform/AccessibleChanges.h"
#include "platform/desktop/window/DesktopWindow.h"
#include "platform/desktop/window/PartAccess.h"

namespace orvanta {

WindowAccess::WindowAccess(DesktopWindow& window)
    : QAccessibleWidget(&window, QAccessible::Window), window_(window) {
  window.SetAccess(this);
}

WindowAccess::~WindowAccess() {
  for (const auto& [id, part] : parts_) QAccessible::deleteAccessibleInterface(part);
}

const AccessibleNode& WindowAccess::Tree() const {
  if (!taken_) Take(window_.TheForm().Accessible());
  return tree_;
}

void WindowAccess::Take(AccessibleNode tree) const {
  taken_ = true;
  tree_ = std::move(tree);
  places_.clear();
  Index(tree_, kWholeForm);
}

void WindowAccess::Index(const AccessibleNode& node, ControlId holder) const {
  places_[node.id] = {&node, holder};
  for (const AccessibleNode& child : node.children) Index(child, node.id);
}

const AccessibleNode* WindowAccess::Find(ControlId id) const {
  Tree();
  const auto found = places_.find(id);
  return found == places_.end() ? nullptr : found->second.node;
}

QAccessibleInterface* WindowAccess::HolderOf(ControlId id) {
  const auto found = places_.find(id);
  return found == places_.end() ? this : Part(found->second.holder);
}

QAccessibleInterface* WindowAccess::Part(ControlId id) {
  if (id == kWholeForm) return this;
  if (!Find(id)) return nullptr;
  const auto [at, isNew] = parts_.try_emplace(id);
  if (isNew) at->second = QAccessible::registerAccessibleInterface(new PartAccess(*this, id));
  return QAccessible::accessibleInterface(at->second);
}

void WindowAccess::Follow() {
  if (!taken_) return;
  AccessibleNode now = window_.TheForm().Accessible();
  const auto changes = AccessibleChanges(tree_, now);
  const ControlId focus = AccessibleFocus(tree_, focus_, now);
  using Kind = AccessibleChange::Kind;
  // What goes is reported while its holder still knows it.
  for (const AccessibleChange& change : changes) {
    if (change.kind != Kind::Gone) continue;
    Report(QAccessible::ObjectDestroyed, change.id);
    Forget(*Find(change.id));
  }
  Take(std::move(now));
  for (const AccessibleChange& change : changes) {
    QAccessible::State changed;
    switch (change.kind) {
      case Kind::Gone: break;
      case Kind::Came: Report(QAccessible::ObjectCreated, change.id); break;
      case Kind::Renamed: Report(QAccessible::NameChanged, change.id); break;
      case Kind::Described: Report(QAccessible::DescriptionChanged, change.id); break;
      case Kind::Moved: {
        QAccessibleValueChangeEvent event(Part(change.id),
                                          Find(change.id)->value.value_or(AccessibleValue{}).now);
        QAccessible::updateAccessibility(&event);
        break;
      }
      case Kind::Pressed:
        changed.checked = true;
        ReportState(change.id, changed);
        break;
      case Kind::Enabled:
        changed.disabled = true;
        ReportState(change.id, changed);
        break;
    }
  }
  MoveFocus(focus);
}

void WindowAccess::MoveFocus(ControlId to) {
  const bool wasActive = std::exchange(active_, window_.isActiveWindow());
  const bool moved = std::exchange(focus_, to) != to;
  if (active_ && (moved || !wasActive)) Report(QAccessible::Focus, to);
}

void WindowAccess::Report(QAccessible::Event kind, ControlId id) {
  QAccessibleEvent event(Part(id), kind);
  QAccessible::updateAccessibility(&event);
}

void WindowAccess::ReportState(ControlId id, const QAccessible::State& changed) {
  QAccessibleStateChangeEvent event(Part(id), changed);
  QAccessible::updateAccessibility(&event);
}

void WindowAccess::Forget(const AccessibleNode& node) {
  for (const AccessibleNode& child : node.children) Forget(child);
  if (const auto part = parts_.extract(node.id)) QAccessible::deleteAccessibleInterface(part.mapped());
}

QRect WindowAccess::OnScreen(const Rect& place) const { return window_.OnScreen(place); }

bool WindowAccess::HasFocus(ControlId id) const { return id == focus_ && window_.isActiveWindow(); }

void WindowAccess::Invoke(ControlId id) { window_.Assist(FormEvent::Kind::Invoke, id); }

void WindowAccess::SetValue(ControlId id, double value) {
  window_.Assist(FormEvent::Kind::SetValue, id, value);
}

QAccessibleInterface* WindowAccess::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  return const_cast<WindowAccess*>(this)->Part(Tree().children[static_cast<std::size_t>(index)].id);
}

int WindowAccess::indexOfChild(const QAccessibleInterface* child) const {
  for (int i = 0; i < childCount(); ++i)
    if (this->child(i) == child) return i;
  return -1;
}

QAccessibleInterface* WindowAccess::childAt(int x, int y) const {
  for (int i = 0; i < childCount(); ++i)
    if (child(i)->rect().contains(x, y)) return child(i);
  return nullptr;
}

QAccessibleInterface* WindowAccess::focusChild() const {
  return window_.isActiveWindow() ? const_cast<WindowAccess*>(this)->Part(focus_) : nullptr;
}

QString WindowAccess::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? QString::fromStdString(Tree().name) : QString();
}

QStringList WindowAccess::actionNames() const {
  return Tree().clickable ? QStringList(pressAction()) : QStringList();
}

void WindowAccess::doAction(const QString& name) {
  if (name == pressAction()) Invoke(kWholeForm);
}

}  // namespace orvanta
