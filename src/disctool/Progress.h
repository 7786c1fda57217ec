#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>

namespace orvanta {

/// Called often while something runs, with how much of it is done.
using Progress = std::function<void(std::uintmax_t done, std::uintmax_t all)>;

/// Seconds that never go back.
using SecondsClock = std::function<double()>;
double SteadySeconds();

/// A progress bar in one line of a terminal, which is rewritten only when it changes. After some seconds it
/// shows how long the rest will take if it goes on as before.
class ProgressBar {
 public:
  ProgressBar(std::ostream& terminal, std::string title, SecondsClock clock = SteadySeconds)
      : terminal_(terminal), title_(std::move(title)), clock_(std::move(clock)), begin_(clock_()) {}
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  /// Ends the line.
  ~ProgressBar();

  void Show(std::uintmax_t done, std::uintmax_t all);
  /// Takes the bar away until it is shown again, so that something else can be written.
  void Hide();

 private:
  std::string TimeLeft(double part) const;

  std::ostream& terminal_;
  const std::string title_;
  const SecondsClock clock_;
  const double begin_;
  std::string shown_;
};

}  // namespace orvanta
