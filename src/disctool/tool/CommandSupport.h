#pragma once

#include <unistd.h>

#include <iostream>
#include <optional>
#include <string>

#include "disctool/Progress.h"

namespace orvanta {

/// Reports a problem, unless it is empty, and returns the exit status.
int Outcome(const std::string& problem);

/// Must be called before Qt starts: pictures and fonts need no display, and Qt's messages about the machine
/// are not for the user. Returns `argc`.
int& PreparedForNoDisplay(int& argc);

/// Calls `work` with a progress bar if somebody can see it.
template <class Work>
auto WithProgress(const std::string& title, Work work) {
  std::optional<ProgressBar> bar;
  if (isatty(STDERR_FILENO) != 0) bar.emplace(std::cerr, title);
  return work([&bar](std::uintmax_t done, std::uintmax_t all) {
    if (bar) bar->Show(done, all);
  });
}

}  // namespace orvanta
