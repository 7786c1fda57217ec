#include "disctool/check/FindingTable.h"

namespace orvanta {

std::string Explanation(std::string_view id) {
  const FindingInfo* info = FindFinding(id);
  if (!info) return {};
  return std::string(id) + ": " + Translated(info->meaning) + "\n" +
         Translated("Example: %1", Translated(info->example)) + "\n" +
         Translated("Remedy: %1", Translated(info->remedy)) + "\n";
}

}  // namespace orvanta
