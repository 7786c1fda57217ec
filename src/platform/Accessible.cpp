#include "platform/Accessible.h"

#include <array>
#include <cstdio>
#include <utility>

#include "platform/Form.h"

namespace orvanta {

namespace {

/// The part of a control that its containers do not clip, in pixels of the form.
Rect InSight(const Control& control) {
  Rect area = control.Bounds();
  for (const Container* holder = &control.Parent();;) {
    area = Intersection(area, holder->ClientArea());
    const auto* box = dynamic_cast<const Control*>(holder);
    if (area.Empty() || !box) return area;
    area = area.Moved({box->Bounds().left, box->Bounds().top});
    holder = &box->Parent();
  }
}

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == text.npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Number(double number) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%g", number);
  return text.data();
}

const char* RoleName(AccessibleRole role) {
  switch (role) {
    case AccessibleRole::Window: return "window";
    case AccessibleRole::Decoration: return "decoration";
    case AccessibleRole::List: return "list";
    case AccessibleRole::ListItem: return "item";
    case AccessibleRole::Button: return "button";
    case AccessibleRole::Slider: return "slider";
    case AccessibleRole::Heading: return "heading";
    case AccessibleRole::Text: return "text";
    case AccessibleRole::Picture: return "picture";
    case AccessibleRole::Page: return "page";
    case AccessibleRole::ProgressBar: return "progress bar";
  }
  return "";
}

void List(const AccessibleNode& node, const std::string& indent, std::string& lines) {
  lines += indent + RoleName(node.role) + " \"" + node.name + "\"";
  if (!node.detail.empty()) lines += " (" + node.detail + ")";
  if (node.value)
    lines +=
        " " + Number(node.value->now) + " of " + Number(node.value->least) + ".." + Number(node.value->most);
  for (const auto& [holds, word] : {std::pair{node.pressed.value_or(false), " pressed"},
                                    {node.unavailable, " unavailable"},
                                    {node.hovered, " hovered"},
                                    {node.place.Empty(), " out of sight"}})
    if (holds) lines += word;
  lines += '\n';
  for (const AccessibleNode& child : node.children) List(child, indent + "  ", lines);
}

}  // namespace

AccessibleNode AccessibleOf(const Control& control, AccessibleRole role, const std::string& name) {
  const auto* box = dynamic_cast<const BoxControl*>(&control);
  return {.id = control.Id,
          .role = role,
          .name = Trimmed(name),
          .place = InSight(control),
          .unavailable = box && !box->Enabled,
          .clickable = role != AccessibleRole::List && control.Click,
          .settable = static_cast<bool>(control.SetValue)};
}

const AccessibleNode* FindAccessible(const AccessibleNode& tree, ControlId id) {
  if (tree.id == id) return &tree;
  for (const AccessibleNode& child : tree.children)
    if (const AccessibleNode* found = FindAccessible(child, id)) return found;
  return nullptr;
}

std::string AccessibleListing(const AccessibleNode& tree) {
  std::string lines;
  List(tree, "", lines);
  return lines;
}

}  // namespace orvanta
