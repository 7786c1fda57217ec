#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "disctool/command/DiscCommands.h"
#include "disctool/disc/MenuTree.h"

namespace orvanta {

/// An item of a disc's menus in which all words were found.
struct FoundItem {
  std::size_t node = 0;
  std::vector<std::string> path;  ///< the names from the first menu down to it
  std::string field;              ///< the key in which a word stands first; empty for the name
};

/// The items whose name, description, requirements or program have every word somewhere, small or capital,
/// with or without marks; in the order in which the menus are met.
std::vector<FoundItem> FindItems(const Catalogue& catalogue, const MenuTree& tree, std::string_view words);

/// What `find` says of a disc: "DISC: MENU > ITEM [KIND]", a line each. Faults if nothing was found.
DiscReport FindReport(const DiscTree& disc, std::string_view words, bool json);

}  // namespace orvanta
