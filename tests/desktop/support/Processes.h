#pragma once

#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <chrono>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "support/TemporaryFolder.h"

namespace orvanta::test {

/// Waits until `happened` says so, for ten seconds at most; gives whether it did.
template <class Condition>
bool Soon(Condition happened, std::chrono::milliseconds patience = std::chrono::seconds(10)) {
  for (const auto deadline = std::chrono::steady_clock::now() + patience; !happened();
       std::this_thread::sleep_for(std::chrono::milliseconds(5)))
    if (std::chrono::steady_clock::now() > deadline) return false;
  return true;
}

/// Runs `work`, which gives a number from 0 to 255, in a process of its own that ends at once after it, and
/// gives the number. What must not touch the test's process (its environment, its rights, its caches) goes in
/// there.
template <class Work>
int InAnotherProcess(Work work) {
  const pid_t child = fork();
  if (child == 0) {
    alarm(30);
    _exit(work());
  }
  int status = 0;
  return waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

inline void Allow(const std::filesystem::path& file, int rights) {
  std::filesystem::permissions(file, static_cast<std::filesystem::perms>(rights));
}

inline std::string ContentOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// A folder that a user without root's rights may enter too.
struct ScratchFolder : TemporaryFolder {
  ScratchFolder() { Allow(Path(), 0755); }
  std::filesystem::path Executable(const std::string& name, const std::string& bytes) const {
    auto made = File(name, bytes);
    Allow(made, 0755);
    return made;
  }
  std::filesystem::path Script(const std::string& name, const std::string& body) const {
    return Executable(name, "#!/bin/sh\n" + body + "\n");
  }
};

/// A program that a test started. What it prints is kept; it is killed with the object.
class Program {
 public:
  /// The first word is found as a shell finds it.
  explicit Program(std::vector<std::string> words)
      : output_(memfd_create("printed", MFD_CLOEXEC)), pid_(fork()) {
    if (pid_ != 0) return;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (const int standard : {STDOUT_FILENO, STDERR_FILENO}) dup2(output_, standard);
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    execvp(pointers[0], pointers.data());
    _exit(127);
  }
  ~Program() {
    Signal(SIGKILL);
    Ended();
    close(output_);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  pid_t Pid() const { return pid_; }
  int Output() const { return output_; }
  void Signal(int number) const {
    if (pid_ > 0 && !status_) kill(pid_, number);
  }
  bool Runs() {
    int status = 0;
    if (!status_ && waitpid(pid_, &status, WNOHANG) == pid_)
      status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return !status_;
  }
  /// Waits ten seconds at most; -1 if it still runs then, or was killed by a signal.
  int Ended() {
    return Soon([this] { return !Runs(); }) ? *status_ : -1;
  }
  /// Processor time of all its threads, in seconds.
  double Processor() const {
    clockid_t clock{};
    timespec used{};
    if (clock_getcpuclockid(pid_, &clock) != 0 || clock_gettime(clock, &used) != 0) return -1;
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
  }
  /// The same of its main thread alone.
  double MainThread() const {
    return std::stod(ContentOf("/proc/" + std::to_string(pid_) + "/schedstat")) / 1e9;
  }
  /// All that it has printed, to whichever output.
  std::string Printed() const { return ContentOf("/proc/self/fd/" + std::to_string(output_)); }

 private:
  int output_;
  pid_t pid_;
  std::optional<int> status_;
};

}  // namespace orvanta::test
