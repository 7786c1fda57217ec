#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// The environment of this process, as `NAME=value`.
std::vector<std::string> CurrentEnvironment();

/// For how long a started program is watched, and what counts as its failure.
struct Watching {
  std::chrono::milliseconds time{0};
  bool anyEnd = false;  ///< every end, not only an exit status other than 0 or a signal
};

/// Learns whether a program fails while it is watched.
class EndWatch {
 public:
  EndWatch() = default;
  explicit EndWatch(Descriptor reading) : reading_(std::move(reading)) {}

  bool HasFailed();
  /// Whether nothing more can be learned: the program has ended, or the time is over.
  bool IsOver() const { return !reading_; }

 private:
  Descriptor reading_;
  bool failed_ = false;
};

struct ProcessStart {
  int error = 0;  ///< the error number (errno(3)) that prevented the program from being loaded; 0 for none
  EndWatch watch{};
};

/// Starts the program with the path `arguments[0]` and returns as soon as the system has loaded it.
///
/// The program is independent: it is not a child of this process, has its own session, default signal
/// handlers and no blocked signals, and inherits no open files. Its input is empty and its output is
/// discarded (`/dev/null`), so that a pipe or a log file that takes the output of this process ends with this
/// process. It starts in the current folder of this process.
ProcessStart StartProcess(std::vector<std::string> arguments, std::vector<std::string> environment,
                          const Watching& watching = {});

}  // namespace orvanta
