#include "config/NumberedKey.h"

namespace orvanta {

std::string NumberedKey(std::string_view prefix, int number) {
  return std::string(prefix).append(std::to_string(number));
}

std::int16_t CountRun(const INI_Read& ini, std::string_view section, std::string_view prefix) {
  std::int16_t count = 0;
  while (count < kLongestRun && !ini.IniRead(section, NumberedKey(prefix, count + 1), kMenuFile).empty())
    ++count;
  return count;
}

}  // namespace orvanta
