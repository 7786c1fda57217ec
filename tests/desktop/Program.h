#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orvanta::test {

/// A program that a test started. What it prints is kept; it is killed with the object.
class Program {
 public:
  /// `command` is found as a shell finds it, through PATH if it has no slash; `folder` is its current one.
  Program(const std::string& command, const std::filesystem::path& folder,
          const std::vector<std::string>& environment = {});
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  pid_t Pid() const { return pid_; }
  bool Runs();
  /// Waits ten seconds at most; -1 if it still runs then, or was killed by a signal.
  int Ended();
  /// All that it has printed, to whichever output.
  std::string Printed() const;
  /// Processor time of all its threads, in seconds.
  double Processor() const;

 private:
  pid_t pid_ = -1;
  std::optional<int> status_;
  int output_ = -1;
};

}  // namespace orvanta::test
