#pragma once

#include <string_view>

#include "config/SchemaTable.h"

namespace orvanta {

/// The key of `section` with this very name; null if there is none. The number of a run is no part of the
/// name.
constexpr const SchemaKey* FindSchemaKey(std::string_view section, std::string_view name) {
  for (const SchemaKey& key : kSchema) {
    if (key.section == section && key.name == name) return &key;
  }
  return nullptr;
}

/// Names a key of a fixed section, such as `{"GLOBAL", "BackX"}`. Does not compile if the schema has no such
/// key of kind `K`. The keys of a node and those of a run have names that only the running program knows;
/// they are read by `INI_Read::IniRead`.
template <Kind K>
struct KeyRef {
  std::string_view section;
  std::string_view name;

  consteval KeyRef(std::string_view ofSection, std::string_view named) : section(ofSection), name(named) {
    const SchemaKey* key = FindSchemaKey(section, name);
    if (!key || key->kind != K || key->presence == Presence::Run) throw "no such key of this kind";
  }
};

}  // namespace orvanta
