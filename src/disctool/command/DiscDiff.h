#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "disctool/disc/MenuTree.h"

namespace orvanta {

class DiscProbe;

/// What changed from one state of a disc to another. An empty text stands for what is not there.
struct DiscDiff {
  struct Value {
    std::string section, key, before, after;
  };
  struct Menu {
    std::string name;
    std::vector<std::string> removed, added;
    bool reordered = false;  ///< items that stayed stand in another order
  };
  struct File {
    std::string path;                             ///< as the later disc spells it, if it has the file
    std::optional<std::uintmax_t> before, after;  ///< sizes in bytes
    /// Of two pictures of one size: how many pixels differ.
    std::optional<std::uintmax_t> pixels{};
  };
  std::vector<Value> settings;  ///< of the fixed sections
  std::vector<Menu> menus;
  std::vector<Value> texts;  ///< of the menus' entries
  std::vector<File> files;

  bool Empty() const { return settings.empty() && menus.empty() && texts.empty() && files.empty(); }
};

/// Files match whatever the capitals in their names. Configuration files are compared by what they say.
DiscDiff Compare(const DiscTree& before, const DiscTree& after, DiscProbe& probe);

}  // namespace orvanta
