#pragma once

#include <cstdint>
#include <string_view>

namespace orvanta {

/// The nearest whole number, ties to the even one, clamped to the range of the result. NaN gives 0.
std::int16_t CInt(double value);
std::int32_t CLng(double value);

/// How the text of a setting becomes a value. A number is plain decimal, with an optional sign, decimal point
/// or comma and exponent, and blanks around it; nothing else may stand in the text. Empty text and text that
/// is no number give 0, a number beyond the range is clamped to it. No locale takes part.
std::int16_t WholeOf(std::string_view text);
float SingleOf(std::string_view text);
double DoubleOf(std::string_view text);
/// Red in the low byte, then green, then blue.
std::int32_t ColourOf(std::string_view text);
/// "True" and "False" in any case, or a number, of which only 0 is false. Anything else is false.
bool BooleanOf(std::string_view text);

/// The text is a number by the rules above; what is none counts as 0.
bool IsNumber(std::string_view text);

}  // namespace orvanta
