#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// The environment of this process, `NAME=value` each.
std::vector<std::string> CurrentEnvironment();

/// Hears how a program ends, for as long as somebody listens.
class EndWatch {
 public:
  EndWatch() = default;
  explicit EndWatch(Descriptor reading) : reading_(std::move(reading)) {}

  /// The program ended with a failure, an exit status other than 0 or a signal, while it was watched.
  bool HasFailed();
  /// Nothing can be heard any more: the program has ended, or the time is over.
  bool IsOver() const { return !reading_; }

 private:
  Descriptor reading_;
  bool failed_ = false;
};

struct ProcessStart {
  int error = 0;  ///< the error number (errno(3)) that kept the program from being loaded, else 0
  EndWatch watch{};
};

/// Starts the program at the path `arguments[0]`, returns as soon as the system has loaded it, and watches it
/// for so long.
///
/// The program stands on its own: it is no child of this process, leads a session of its own, has default
/// signals and none blocked, and has nothing of this process open. Its input is empty and its output goes
/// nowhere (`/dev/null`), so that a pipe or a log file that takes this process's output ends with this
/// process. The current folder is this process's.
ProcessStart StartProcess(std::vector<std::string> arguments, std::vector<std::string> environment,
                          std::chrono::milliseconds watched = std::chrono::milliseconds(0));

}  // namespace orvanta
