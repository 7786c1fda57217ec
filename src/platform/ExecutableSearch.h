#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace orvanta {

/// The first program called `name` in the folders of `searchPath`, which is written as in `$PATH`: separated
/// by colons; an empty one is the current folder. A name with a slash is not searched for but used as it is.
std::optional<std::filesystem::path> FindExecutable(std::string_view name, std::string_view searchPath);

}  // namespace orvanta
