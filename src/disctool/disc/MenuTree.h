#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "disctool/disc/Catalogue.h"

namespace orvanta {

enum class NodeKind { Menu, Program, Music, Film, Inert };

inline constexpr std::size_t kNodeKinds = 5;

/// "menu", "program", "music", "film" or "inert"; `Translated` knows these words.
const char* NameOf(NodeKind kind);

struct MenuItem {
  std::size_t node = 0;
  DiscPlace place;  ///< the line that names it
};

/// A section of the tree. Items with the same caption lead to the same node.
struct MenuNode {
  std::string name;
  NodeKind kind = NodeKind::Inert;
  std::vector<MenuItem> items;
  int shots = 0;
};

/// Everything that can be reached from MAINMENU. A node may be reached in several ways, even in circles.
struct MenuTree {
  std::vector<MenuNode> nodes;  ///< the first is the root

  /// The node of a section; null if it cannot be reached.
  const MenuNode* Find(std::string_view section) const;
  bool Has(NodeKind kind) const;

  std::unordered_map<std::string, std::size_t> byName;  ///< maps a `FoldedName` to its node
};

MenuTree ReadMenuTree(const Catalogue& catalogue);

/// One line for each node, indented; the items of a menu are listed where it first occurs.
std::string MenuTreeText(const MenuTree& tree);
/// `[{"id", "name", "kind", "items"}]` in one line; items are ids, and 0 is the root.
std::string MenuTreeJson(const MenuTree& tree);

}  // namespace orvanta
