#pragma once

#include <string_view>

#include "config/SchemaTable.h"

namespace orvanta {

/// The fixed section has a key of this very name and kind that is no run.
constexpr bool IsSchemaKey(std::string_view section, std::string_view name, Kind kind) {
  for (const SchemaKey& key : kSchema) {
    if (key.section == section && key.name == name) return key.kind == kind && key.presence != Presence::Run;
  }
  return false;
}

/// Names a key of a fixed section, such as `{"GLOBAL", "BackX"}`. Does not compile if the schema has no such
/// key of kind `K`. The keys of a node and those of a run have names that only the running program knows;
/// they are read by `INI_Read::IniRead`.
template <Kind K>
struct KeyRef {
  std::string_view section;
  std::string_view name;

  consteval KeyRef(std::string_view ofSection, std::string_view named) : section(ofSection), name(named) {
    if (!IsSchemaKey(section, name, K)) throw "no such key of this kind";
  }
};

}  // namespace orvanta
