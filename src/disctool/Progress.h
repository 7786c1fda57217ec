#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>

namespace orvanta {

/// Called often while something runs, with how much of it is done.
using Progress = std::function<void(std::uintmax_t done, std::uintmax_t all)>;

/// A progress bar in one line of a terminal, which is rewritten only when it changes.
class ProgressBar {
 public:
  ProgressBar(std::ostream& terminal, std::string title) : terminal_(terminal), title_(std::move(title)) {}
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  /// Ends the line.
  ~ProgressBar();

  void Show(std::uintmax_t done, std::uintmax_t all);

 private:
  std::ostream& terminal_;
  const std::string title_;
  std::string shown_;
};

}  // namespace orvanta
