#include "disctool/Progress.h"

#include <algorithm>
#include <ostream>

namespace orvanta {

ProgressBar::~ProgressBar() {
  if (!shown_.empty()) terminal_ << '\n' << std::flush;
}

void ProgressBar::Show(std::uintmax_t done, std::uintmax_t all) {
  constexpr double kWidth = 40;
  const double part = all == 0 ? 1 : std::min(1.0, static_cast<double>(done) / static_cast<double>(all));
  std::string bar(static_cast<std::size_t>(part * kWidth), '#');
  bar.resize(static_cast<std::size_t>(kWidth), '.');
  std::string line = title_ + " [" + bar + "] " + std::to_string(static_cast<int>(part * 100)) + " %";
  if (line == shown_) return;
  terminal_ << '\r' << line << std::flush;
  shown_ = std::move(line);
}

}  // namespace orvanta
