#pragma once

#include <cstdint>
#include <string_view>

namespace orvanta {

/// Rounds to the nearest whole number, ties to even, and clamps it to the range of the result. NaN gives 0.
std::int16_t CInt(double value);
std::int32_t CLng(double value);

/// Convert the text of a setting. A number is plain decimal with an optional sign, decimal point or comma,
/// and exponent; blanks around it are ignored, and nothing else may be in the text. Empty text and text that
/// is not a number give 0; a number outside the range is clamped to it. The locale has no influence.
std::int16_t WholeOf(std::string_view text);
float SingleOf(std::string_view text);
double DoubleOf(std::string_view text);
/// Red in the low byte, then green, then blue.
std::int32_t ColourOf(std::string_view text);
/// "True" and "False" in any case, or a number, of which only 0 means false. Anything else is false.
bool BooleanOf(std::string_view text);

/// Whether the text is a number by the rules above; otherwise it counts as 0.
bool IsNumber(std::string_view text);

}  // namespace orvanta
