#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "disctool/command/DiscCommands.h"
#include "disctool/disc/MenuTree.h"

namespace orvanta {

/// An item of a disc's menus that matches all words.
struct FoundItem {
  std::size_t node = 0;
  std::vector<std::string> path;  ///< the names from the first menu to the item
  std::string field;              ///< the first key in which a word was found; empty for the name
};

/// The items whose name, description, requirements or program contain every word, ignoring case and the marks
/// of letters, in the order in which the menus list them.
std::vector<FoundItem> FindItems(const Catalogue& catalogue, const MenuTree& tree, std::string_view words);

/// The output of `find` for a disc: "DISC: MENU > ITEM [KIND]", a line for each item. Faults if nothing was
/// found.
DiscReport FindReport(const DiscTree& disc, std::string_view words, bool json);

}  // namespace orvanta
