#include "disctool/command/FindCommand.h"

#include <algorithm>
#include <array>
#include <optional>

#include "disctool/JsonObject.h"
#include "disctool/OutputText.h"
#include "disctool/Translation.h"
#include "disctool/disc/PlainLetters.h"

namespace orvanta {
namespace {

/// Longer paths through the menus are cut in the middle; otherwise the output could grow with the square of
/// the depth.
constexpr std::size_t kLongestPath = 16;

/// For each node, the menu that leads to it on the shortest path; for the root, the root.
std::vector<std::size_t> ParentsIn(const MenuTree& tree) {
  std::vector<std::optional<std::size_t>> parents(tree.nodes.size());
  std::vector<std::size_t> queue{0};
  parents[0] = 0;
  for (std::size_t at = 0; at < queue.size(); ++at) {
    for (const MenuItem& item : tree.nodes[queue[at]].items) {
      if (parents[item.node]) continue;
      parents[item.node] = queue[at];
      queue.push_back(item.node);
    }
  }
  std::vector<std::size_t> known;
  for (const auto& parent : parents) known.push_back(parent.value_or(0));
  return known;
}

std::vector<std::string> PathTo(const MenuTree& tree, const std::vector<std::size_t>& parents,
                                std::size_t node) {
  std::vector<std::size_t> way;
  for (; node != 0; node = parents[node]) way.push_back(node);
  std::ranges::reverse(way);
  std::vector<std::string> path;
  for (std::size_t i = 0; i < way.size(); ++i) {
    const bool cut = way.size() > kLongestPath && i >= kLongestPath / 2 && i + kLongestPath / 2 < way.size();
    if (!cut) path.push_back(tree.nodes[way[i]].name);
    if (cut && i == kLongestPath / 2) path.emplace_back("...");
  }
  return path;
}

/// The keys of a node that are searched, apart from its name.
std::vector<std::string> SearchedKeys(NodeKind kind) {
  if (kind == NodeKind::Menu || kind == NodeKind::Inert) return {};
  return {"Note", "System", kind == NodeKind::Program ? "Execute" : "Parameters"};
}

/// The field that contains the first of the words; nothing unless each word is in some field.
std::optional<std::string> Match(const Catalogue& catalogue, const MenuNode& node,
                                 const std::vector<std::string>& words) {
  std::vector<std::string> keys = SearchedKeys(node.kind), texts{PlainLetters(node.name)};
  for (const std::string& key : keys) texts.push_back(PlainLetters(catalogue.Find(node.name, key).value));
  keys.insert(keys.begin(), "");
  std::optional<std::string> field;
  for (const std::string& word : words) {
    const auto has =
        std::ranges::find_if(texts, [&](const std::string& text) { return text.find(word) != text.npos; });
    if (has == texts.end()) return std::nullopt;
    if (!field) field = keys[static_cast<std::size_t>(has - texts.begin())];
  }
  return field;
}

std::string JsonOf(const Catalogue& catalogue, const MenuTree& tree, const FoundItem& found) {
  std::vector<std::string> path;
  for (const std::string& name : found.path) path.push_back(JsonText(name));
  const MenuNode& node = tree.nodes[found.node];
  JsonObject json;
  json.Text("name", node.name).Text("kind", NameOf(node.kind)).Value("path", JsonArray(path));
  json.Text("field", found.field);
  return json.Text("text", found.field.empty() ? node.name : catalogue.Find(node.name, found.field).value)
      .Done();
}

std::string TextOf(const Catalogue& catalogue, const MenuTree& tree, const FoundItem& found) {
  std::string text;
  for (const std::string& name : found.path) text += (text.empty() ? "" : " > ") + Printable(name);
  const MenuNode& node = tree.nodes[found.node];
  text += " [" + Translated(NameOf(node.kind)) + "]";
  if (found.field.empty()) return text;
  return text + " " + found.field + "=" + Printable(catalogue.Find(node.name, found.field).value);
}

}  // namespace

std::vector<FoundItem> FindItems(const Catalogue& catalogue, const MenuTree& tree, std::string_view words) {
  const std::vector<std::string> wanted = PlainWords(words);
  const std::vector<std::size_t> parents = ParentsIn(tree);
  std::vector<FoundItem> found;
  for (std::size_t i = 1; i < tree.nodes.size(); ++i)
    if (const auto field = Match(catalogue, tree.nodes[i], wanted))
      found.push_back({i, PathTo(tree, parents, i), *field});
  return found;
}

DiscReport FindReport(const DiscTree& disc, std::string_view words, bool json) {
  const Catalogue catalogue(disc);
  if (catalogue.Empty()) return {{}, NoDiscIn(disc.Name())};
  const MenuTree tree = ReadMenuTree(catalogue);
  std::string lines;
  std::vector<std::string> matches;
  const auto items = FindItems(catalogue, tree, words);
  for (const FoundItem& found : items) {
    if (json) matches.push_back(JsonOf(catalogue, tree, found));
    if (!json) lines += Printable(disc.Name().native()) + ": " + TextOf(catalogue, tree, found) + "\n";
  }
  if (json) lines = JsonLine(disc.Name().native()).Value("matches", JsonArray(matches)).Done() + "\n";
  return {std::move(lines), {}, items.empty()};
}

}  // namespace orvanta
