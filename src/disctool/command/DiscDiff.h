#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "disctool/disc/MenuTree.h"

namespace orvanta {

class DiscProbe;

/// The changes from one state of a disc to another. An empty text means that something is not there.
struct DiscDiff {
  struct Value {
    std::string section, key, before, after;
  };
  struct Menu {
    std::string name;
    std::vector<std::string> removed, added;
    bool reordered = false;  ///< whether the common items are in another order
  };
  struct File {
    std::string path;                             ///< as spelled on the later disc, if it has the file
    std::optional<std::uintmax_t> before, after;  ///< sizes in bytes
    /// For two pictures of the same size: how many pixels differ.
    std::optional<std::uintmax_t> pixels{};
  };
  std::vector<Value> settings;  ///< those of the fixed sections
  std::vector<Menu> menus;
  std::vector<Value> texts;  ///< of the menus' entries
  std::vector<File> files;

  bool Empty() const { return settings.empty() && menus.empty() && texts.empty() && files.empty(); }
};

/// Compares two discs. The case of file names is ignored. Configuration files are compared by their settings.
DiscDiff Compare(const DiscTree& before, const DiscTree& after, DiscProbe& probe);

}  // namespace orvanta
