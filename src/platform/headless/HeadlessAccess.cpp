// The scripted screen reader.

#include "platform/headless/HeadlessHost.h"

namespace orvanta {

namespace {

const AccessibleNode* FindByName(const AccessibleNode& tree, const std::string& name) {
  if (tree.name == name) return &tree;
  for (const AccessibleNode& child : tree.children)
    if (const AccessibleNode* found = FindByName(child, name)) return found;
  return nullptr;
}

}  // namespace

void HeadlessHost::Assist(const std::string& name, FormEvent::Kind kind, double value) {
  for (auto at = windows.rbegin(); at != windows.rend(); ++at) {
    const StackedWindow* window = *at;
    if (!window->visible) continue;
    const AccessibleNode tree = window->form.Accessible();
    const AccessibleNode* node = FindByName(tree, name);
    if (node) return Loop().Post({.kind = kind, .form = &window->form, .control = node->id, .value = value});
  }
}

}  // namespace orvanta
