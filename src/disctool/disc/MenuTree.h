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

/// A section of the tree. Items with the same caption are the same node, whatever blanks stand around it.
struct MenuNode {
  std::string name;
  NodeKind kind = NodeKind::Inert;
  std::vector<MenuItem> items;
  int shots = 0;
};

/// Everything that can be reached from MAINMENU. Nodes may be reached on several ways, and ways may go round
/// in circles.
struct MenuTree {
  std::vector<MenuNode> nodes;  ///< the root is the first

  /// The node of a section; null if it is not reached.
  const MenuNode* Find(std::string_view section) const;
  bool Has(NodeKind kind) const;

  std::unordered_map<std::string, std::size_t> byName;  ///< `FoldedName` to the node
};

MenuTree ReadMenuTree(const Catalogue& catalogue);

/// One line a node, indented, in the user's language; a menu's items are listed where it is met first.
std::string MenuTreeText(const MenuTree& tree);
/// `[{"id", "name", "kind", "items"}]` in one line; items are ids, and 0 is the root.
std::string MenuTreeJson(const MenuTree& tree);

}  // namespace orvanta
