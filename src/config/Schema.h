#pragma once

#include <string_view>

#include "config/SchemaTable.h"

namespace orvanta {

/// Whether a fixed section has a key of exactly this name and kind that is not a run.
constexpr bool IsSchemaKey(std::string_view section, std::string_view name, Kind kind) {
  for (const SchemaKey& key : kSchema) {
    if (key.section == section && key.name == name) return key.kind == kind && key.presence != Presence::Run;
  }
  return false;
}

/// Names a key of a fixed section, such as `{"GLOBAL", "BackX"}`. Does not compile if the schema has no such
/// key of kind `K`. The names of numbered keys and of keys of menu nodes are only known at run time;
/// `INI_Read::IniRead` reads those.
template <Kind K>
struct KeyRef {
  std::string_view section;
  std::string_view name;

  consteval KeyRef(std::string_view ofSection, std::string_view named) : section(ofSection), name(named) {
    if (!IsSchemaKey(section, name, K)) throw "no such key of this kind";
  }
};

}  // namespace orvanta
