#pragma once

#include <span>
#include <string>
#include <string_view>

namespace orvanta {

/// The name in UTF-8 among `known` that `name` was most likely meant to be: fewest letters added, left out,
/// changed or swapped with their neighbour, capitals aside. Empty if none is close.
std::string_view NearestName(std::string_view name, std::span<const std::string_view> known);

}  // namespace orvanta
