#pragma once

#include <unistd.h>

#include <iostream>
#include <optional>
#include <string>

#include "disctool/Progress.h"

namespace orvanta {

/// Reports a problem and gives the exit status; an empty one is none.
int Outcome(const std::string& problem);

/// To be called before Qt starts: pictures and fonts need no display, and what Qt thinks of the machine is
/// not for the user. Gives `argc` back.
int& PreparedForNoDisplay(int& argc);

/// Calls `work` with a progress bar where somebody can see one.
template <class Work>
auto WithProgress(const std::string& title, Work work) {
  std::optional<ProgressBar> bar;
  if (isatty(STDERR_FILENO) != 0) bar.emplace(std::cerr, title);
  return work([&bar](std::uintmax_t done, std::uintmax_t all) {
    if (bar) bar->Show(done, all);
  });
}

}  // namespace orvanta
