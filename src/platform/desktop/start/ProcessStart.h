#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// The environment of this process, as `NAME=value`.
std::vector<std::string> CurrentEnvironment();

/// Learns how a program ends, while the program is watched.
class EndWatch {
 public:
  EndWatch() = default;
  explicit EndWatch(Descriptor reading) : reading_(std::move(reading)) {}

  /// Whether the program has failed while it was watched: its exit status was not 0, or a signal ended it.
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

/// Starts the program with the path `arguments[0]`, returns as soon as the system has loaded it, and watches
/// it for the given time.
///
/// The program is independent: it is not a child of this process, has its own session, default signal
/// handlers and no blocked signals, and inherits no open files. Its input is empty and its output is
/// discarded (`/dev/null`), so that a pipe or a log file that takes the output of this process ends with this
/// process. It starts in the current folder of this process.
ProcessStart StartProcess(std::vector<std::string> arguments, std::vector<std::string> environment,
                          std::chrono::milliseconds watched = std::chrono::milliseconds(0));

}  // namespace orvanta
