#include "platform/AccessibleChanges.h"

#include <unordered_map>

namespace orvanta {

namespace {

using Kind = AccessibleChange::Kind;
using Index = std::unordered_map<ControlId, const AccessibleNode*>;

void Fill(Index& index, const AccessibleNode& node) {
  index.emplace(node.id, &node);
  for (const AccessibleNode& child : node.children) Fill(index, child);
}

Index IndexOf(const AccessibleNode& tree) {
  Index index;
  Fill(index, tree);
  return index;
}

/// The nodes below `node` that `others` lacks, with this change; what they hold is not named.
void Missing(const AccessibleNode& node, const Index& others, Kind kind,
             std::vector<AccessibleChange>& changes) {
  for (const AccessibleNode& child : node.children) {
    if (others.contains(child.id)) {
      Missing(child, others, kind, changes);
    } else {
      changes.push_back({kind, child.id});
    }
  }
}

double ValueOf(const AccessibleNode& node) { return node.value ? node.value->now : 0; }

void Compare(const Index& before, const AccessibleNode& now, std::vector<AccessibleChange>& changes) {
  const auto found = before.find(now.id);
  if (found == before.end()) return;
  const AccessibleNode& then = *found->second;
  if (then.name != now.name) changes.push_back({Kind::Renamed, now.id});
  if (then.detail != now.detail) changes.push_back({Kind::Described, now.id});
  if (ValueOf(then) != ValueOf(now)) changes.push_back({Kind::Moved, now.id});
  if (then.pressed != now.pressed) changes.push_back({Kind::Pressed, now.id});
  if (then.unavailable != now.unavailable) changes.push_back({Kind::Enabled, now.id});
  for (const AccessibleNode& child : now.children) Compare(before, child, changes);
}

const AccessibleNode* Hovered(const AccessibleNode& node) {
  if (node.hovered) return &node;
  for (const AccessibleNode& child : node.children)
    if (const AccessibleNode* found = Hovered(child)) return found;
  return nullptr;
}

bool SameView(const AccessibleNode& one, const AccessibleNode& other) {
  if (one.children.empty() || other.children.empty()) return false;
  const AccessibleNode &a = one.children.front(), &b = other.children.front();
  return a.id == b.id && a.name == b.name;
}

}  // namespace

std::vector<AccessibleChange> AccessibleChanges(const AccessibleNode& before, const AccessibleNode& after) {
  const Index old = IndexOf(before), fresh = IndexOf(after);
  std::vector<AccessibleChange> changes;
  Missing(before, fresh, Kind::Gone, changes);
  Missing(after, old, Kind::Came, changes);
  Compare(old, after, changes);
  return changes;
}

ControlId AccessibleFocus(const AccessibleNode& shown, ControlId last, const AccessibleNode& now) {
  if (const AccessibleNode* hovered = Hovered(now)) return hovered->id;
  if (last != kWholeForm && SameView(shown, now) && FindAccessible(now, last)) return last;
  return now.children.empty() ? kWholeForm : now.children.front().id;
}

}  // namespace orvanta
