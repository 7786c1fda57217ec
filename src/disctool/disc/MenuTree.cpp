#include "disctool/disc/MenuTree.h"

#include <algorithm>

#include "config/IniText.h"
#include "config/NumberedKey.h"
#include "config/Windows1250.h"
#include "disctool/JsonObject.h"
#include "disctool/OutputText.h"
#include "disctool/Translation.h"

namespace orvanta {
namespace {

constexpr std::string_view kRoot = "MAINMENU";
/// Deeper lines are not indented any further; otherwise the output could grow with the square of the depth.
constexpr std::size_t kDeepestIndent = 40;

NodeKind KindOf(const Catalogue& catalogue, const MenuNode& node) {
  if (!node.items.empty()) return NodeKind::Menu;
  if (catalogue.Find(node.name, "Execute")) return NodeKind::Program;
  const Setting playAs = catalogue.Find(node.name, "PlayAs");
  if (!playAs) return NodeKind::Inert;
  return EqualNoCase(playAs.value, "MUSIC") ? NodeKind::Music : NodeKind::Film;
}

class Builder {
 public:
  explicit Builder(const Catalogue& catalogue) : catalogue_(catalogue) {}

  MenuTree Build() {
    Add(kRoot);
    for (std::size_t i = 0; i < tree_.nodes.size(); ++i) Fill(i);
    return std::move(tree_);
  }

 private:
  std::size_t Add(std::string_view caption) {
    const std::string name(IniName(caption));
    const auto [at, isNew] = tree_.byName.try_emplace(FoldedName(name), tree_.nodes.size());
    if (isNew) tree_.nodes.push_back({name, NodeKind::Inert, {}, 0});
    return at->second;
  }

  void Fill(std::size_t index) {
    const std::string name = tree_.nodes[index].name;
    for (int number = 1; number <= kLongestRun; ++number) {
      const Setting item = catalogue_.Find(name, NumberedKey("Menu", number));
      if (!item) break;
      const std::size_t child = Add(item.value);
      tree_.nodes[index].items.push_back({child, item.place});
    }
    MenuNode& node = tree_.nodes[index];
    while (node.shots < kLongestRun && catalogue_.Find(name, NumberedKey("Shot", node.shots + 1)))
      ++node.shots;
    node.kind = KindOf(catalogue_, node);
  }

  const Catalogue& catalogue_;
  MenuTree tree_;
};

}  // namespace

const char* NameOf(NodeKind kind) {
  switch (kind) {
    case NodeKind::Menu: return Translatable("menu");
    case NodeKind::Program: return Translatable("program");
    case NodeKind::Music: return Translatable("music");
    case NodeKind::Film: return Translatable("film");
    case NodeKind::Inert: break;
  }
  return Translatable("inert");
}

const MenuNode* MenuTree::Find(std::string_view section) const {
  const auto found = byName.find(FoldedName(section));
  return found == byName.end() ? nullptr : &nodes[found->second];
}

bool MenuTree::Has(NodeKind kind) const {
  return std::ranges::any_of(nodes, [kind](const MenuNode& node) { return node.kind == kind; });
}

MenuTree ReadMenuTree(const Catalogue& catalogue) { return Builder(catalogue).Build(); }

std::string MenuTreeText(const MenuTree& tree) {
  struct Step {
    std::size_t node, depth;
  };
  std::string text;
  std::vector<bool> listed(tree.nodes.size());
  std::vector<Step> steps{{0, 0}};
  while (!steps.empty()) {
    const Step step = steps.back();
    steps.pop_back();
    const MenuNode& node = tree.nodes[step.node];
    const bool again = node.kind == NodeKind::Menu && listed[step.node];
    text.append(2 * std::min(step.depth, kDeepestIndent), ' ') += Printable(node.name);
    text += " [" + Translated(NameOf(node.kind)) + (again ? Translated(", see above") : "") + "]\n";
    if (listed[step.node]) continue;
    listed[step.node] = true;
    for (auto item = node.items.rbegin(); item != node.items.rend(); ++item)
      steps.push_back({item->node, step.depth + 1});
  }
  return text;
}

std::string MenuTreeJson(const MenuTree& tree) {
  std::vector<std::string> nodes;
  for (const MenuNode& node : tree.nodes) {
    std::vector<std::string> items;
    for (const MenuItem& item : node.items) items.push_back(std::to_string(item.node));
    JsonObject json;
    json.Number("id", nodes.size()).Text("name", node.name).Text("kind", NameOf(node.kind));
    nodes.push_back(json.Value("items", JsonArray(items)).Done());
  }
  return JsonArray(nodes);
}

}  // namespace orvanta
