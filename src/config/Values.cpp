#include "config/Values.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>

#include "config/Windows1250.h"
#include "platform/AsciiText.h"

namespace orvanta {
namespace {

template <class Whole>
Whole Rounded(double value) {
  if (std::isnan(value)) return 0;
  value = std::clamp<double>(value, std::numeric_limits<Whole>::min(), std::numeric_limits<Whole>::max());
  // Written out, because std::nearbyint depends on a rounding mode that any library may change.
  const double below = std::floor(value);
  const double rest = value - below;
  const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0);
  return static_cast<Whole>(up ? below + 1 : below);
}

constexpr std::string_view kBlanks = " \t\v\f";

/// Whether a number is too small for its type rather than too large; std::from_chars does not distinguish
/// them.
bool IsTiny(std::string_view number) {
  const auto exponent = number.find_first_of("eE");
  if (exponent != number.npos) return number.substr(exponent + 1).starts_with('-');
  const auto first = number.find_first_not_of("-0");
  return first != number.npos && number[first] == '.';
}

#ifdef __cpp_lib_to_chars
template <class Real>
std::from_chars_result ReadNumber(const std::string& number, Real& value) {
  return std::from_chars(number.data(), number.data() + number.size(), value);
}
#else
/// For libraries whose std::from_chars knows whole numbers alone. The locale must be that of C.
template <class Real>
std::from_chars_result ReadNumber(const std::string& number, Real& value) {
  char* stop = nullptr;
  errno = 0;
  value = static_cast<Real>(std::is_same_v<Real, float> ? std::strtof(number.c_str(), &stop)
                                                        : std::strtod(number.c_str(), &stop));
  const bool none = stop == number.c_str() || number.starts_with('+');
  return {stop, none ? std::errc::invalid_argument : static_cast<std::errc>(errno)};
}
#endif

template <class Real>
std::optional<Real> Parsed(std::string_view text) {
  std::string number(Trimmed(text, kBlanks));
  // Rejects the words and the hexadecimal digits that std::from_chars would accept.
  if (number.find_first_not_of("0123456789+-.,eE") != number.npos) return std::nullopt;
  std::replace(number.begin(), number.end(), ',', '.');
  if (number.starts_with('+') && !number.starts_with("+-")) number.erase(0, 1);
  Real value = 0;
  const char* end = number.data() + number.size();
  const auto [stop, error] = ReadNumber(number, value);
  if (stop != end || error == std::errc::invalid_argument) return std::nullopt;
  if (error != std::errc::result_out_of_range) return value;
  if (IsTiny(number)) return Real{0};
  return number.starts_with('-') ? std::numeric_limits<Real>::lowest() : std::numeric_limits<Real>::max();
}

template <class Real>
Real NumberOf(std::string_view text) {
  return Parsed<Real>(text).value_or(Real{0});
}

}  // namespace

std::int16_t CInt(double value) { return Rounded<std::int16_t>(value); }
std::int32_t CLng(double value) { return Rounded<std::int32_t>(value); }

std::int16_t WholeOf(std::string_view text) { return CInt(NumberOf<double>(text)); }
float SingleOf(std::string_view text) { return NumberOf<float>(text); }
double DoubleOf(std::string_view text) { return NumberOf<double>(text); }
std::int32_t ColourOf(std::string_view text) { return CLng(NumberOf<double>(text)); }

bool BooleanOf(std::string_view text) {
  return EqualNoCase(Trimmed(text, kBlanks), "True") || NumberOf<double>(text) != 0.0;
}

bool IsNumber(std::string_view text) { return Parsed<double>(text).has_value(); }

}  // namespace orvanta
