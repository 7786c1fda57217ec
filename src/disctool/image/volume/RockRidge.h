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
  std::optional<std::uint32_t> child;  ///< CL: the block of a folder that is stored elsewhere
  bool moved = false;                  ///< RE: it is stored here but belongs elsewhere
  bool compressed = false;             ///< ZF
};

/// How many bytes of each record's system use precede those of Rock Ridge (IEEE P1281, System Use Sharing
/// Protocol, 5.3), according to the system use of the root folder's first record. Nothing if the volume does
/// not have Rock Ridge.
std::optional<std::size_t> RockRidgeSkip(std::string_view systemUse);

/// Reads the system use of a record, including its continuations in other sectors.
RockRidge ReadRockRidge(std::string_view systemUse, const DataSectors& sectors);

}  // namespace orvanta
