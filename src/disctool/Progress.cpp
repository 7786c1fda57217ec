#include "disctool/Progress.h"

#include <algorithm>
#include <chrono>
#include <ostream>

#include "disctool/Translation.h"

namespace orvanta {

namespace {
/// Back to the line's beginning, and the rest of the line cleared (ECMA-48, EL).
constexpr const char *kLineBegin = "\r", *kClear = "\x1B[K";
}  // namespace

double SteadySeconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

ProgressBar::~ProgressBar() {
  if (!shown_.empty()) terminal_ << '\n' << std::flush;
}

void ProgressBar::Show(std::uintmax_t done, std::uintmax_t all) {
  constexpr double kWidth = 40;
  const double part = all == 0 ? 1 : std::min(1.0, static_cast<double>(done) / static_cast<double>(all));
  std::string bar(static_cast<std::size_t>(part * kWidth), '#');
  bar.resize(static_cast<std::size_t>(kWidth), '.');
  std::string line = title_ + " [" + bar + "] " + std::to_string(static_cast<int>(part * 100)) + " %";
  line += TimeLeft(part);
  if (line == shown_) return;
  terminal_ << kLineBegin << line << kClear << std::flush;
  shown_ = std::move(line);
}

void ProgressBar::Hide() {
  if (!shown_.empty()) terminal_ << kLineBegin << kClear << std::flush;
  shown_.clear();
}

std::string ProgressBar::TimeLeft(double part) const {
  // Before that it would be a guess, and short work is soon over.
  constexpr double kSoon = 3, kMinute = 60;
  const double taken = clock_() - begin_;
  if (taken < kSoon || part <= 0 || part >= 1) return {};
  const double left = taken * (1 - part) / part;
  if (left > 2 * kMinute) return Translated(", %1 min left", static_cast<int>(left / kMinute + 0.5));
  return Translated(", %1 s left", static_cast<int>(left + 0.5));
}

}  // namespace orvanta
