#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "disctool/image/sectors/DataSectors.h"

namespace orvanta {

/// What Rock Ridge adds to a directory record (IEEE P1282, Rock Ridge Interchange Protocol 1.12).
struct RockRidge {
  std::optional<std::string> name;     ///< NM, in bytes
  std::optional<std::uint32_t> mode;   ///< PX, as of stat()
  std::optional<std::string> target;   ///< SL
  std::optional<std::uint32_t> child;  ///< CL: the block of a folder that is kept elsewhere
  bool moved = false;                  ///< RE: it is kept here for another place
  bool compressed = false;             ///< ZF
};

/// How many bytes of each record's system use come before Rock Ridge's (IEEE P1281, System Use Sharing
/// Protocol, 5.3), by the system use of the root folder's first record. Nothing if the volume has none.
std::optional<std::size_t> RockRidgeSkip(std::string_view systemUse);

/// Reads the system use of a record, with its continuations among the sectors.
RockRidge ReadRockRidge(std::string_view systemUse, const DataSectors& sectors);

}  // namespace orvanta
