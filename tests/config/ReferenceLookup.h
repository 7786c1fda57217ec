#pragma once

#include <string>
#include <string_view>

namespace orvanta::test {

/// The rules of `ProfileString` written down as slowly and plainly as can be, for comparison.
std::string ReferenceLookup(std::string_view text, std::string_view section, std::string_view key);

}  // namespace orvanta::test
