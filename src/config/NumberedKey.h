#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "config/IniRead.h"

namespace orvanta {

/// The most keys in a numbered run; later ones are not read.
inline constexpr std::int16_t kLongestRun = 1001;

/// `NumberedKey("Menu", 3)` is "Menu3".
std::string NumberedKey(std::string_view prefix, int number);

/// How many of the keys prefix1, prefix2 and so on of Menu.ini come before the first empty one.
std::int16_t CountRun(const INI_Read& ini, std::string_view section, std::string_view prefix);

}  // namespace orvanta
