#include "disctool/disc/NearestName.h"

#include <algorithm>
#include <vector>

#include "config/Windows1250.h"

namespace orvanta {
namespace {

/// Longer names are hardly mistyped, and comparing them takes time with the square of their length.
constexpr std::size_t kLongest = 64;

std::size_t Distance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> before(b.size() + 1), last(b.size() + 1), row(b.size() + 1);
  for (std::size_t k = 0; k <= b.size(); ++k) last[k] = k;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (std::size_t k = 1; k <= b.size(); ++k) {
      row[k] = std::min({last[k] + 1, row[k - 1] + 1, last[k - 1] + (a[i - 1] != b[k - 1])});
      if (i > 1 && k > 1 && a[i - 1] == b[k - 2] && a[i - 2] == b[k - 1])
        row[k] = std::min(row[k], before[k - 2] + 1);
    }
    before.swap(last);
    last.swap(row);
  }
  return last[b.size()];
}

}  // namespace

std::string_view NearestName(std::string_view name, std::span<const std::string_view> known) {
  if (name.size() > kLongest) return {};
  const std::string wanted = FoldedName(name);
  std::string_view best;
  std::size_t least = std::max<std::size_t>(1, name.size() / 3) + 1;
  for (const std::string_view candidate : known) {
    const std::string other = FoldedName(candidate);
    const std::size_t apart =
        other.size() > wanted.size() ? other.size() - wanted.size() : wanted.size() - other.size();
    if (apart >= least) continue;
    const std::size_t distance = Distance(wanted, other);
    if (distance < least) least = distance, best = candidate;
  }
  return best;
}

}  // namespace orvanta
