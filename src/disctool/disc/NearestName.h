#pragma once

#include <span>
#include <string>
#include <string_view>

namespace orvanta {

/// The name among `known` that `name` was most likely meant to be, in UTF-8: the one with the fewest letters
/// added, left out, changed or swapped with a neighbour, ignoring case. Empty if none is close.
std::string_view NearestName(std::string_view name, std::span<const std::string_view> known);

}  // namespace orvanta
