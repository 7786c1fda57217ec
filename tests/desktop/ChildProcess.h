#pragma once

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace orvanta {

/// A program that runs beside the test and ends with it.
class ChildProcess {
 public:
  explicit ChildProcess(const std::vector<std::string>& command) {
    int ends[2];
    if (pipe(ends) != 0) return;
    output = ends[0];
    pid_ = fork();
    if (pid_ == 0) Become(command, ends[1]);
    close(ends[1]);
  }
  ~ChildProcess() {
    Signal(SIGCONT);
    Signal(SIGKILL);
    if (pid_ > 0) waitpid(pid_, nullptr, 0);
    close(output);
  }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  void Signal(int number) const {
    if (pid_ > 0) kill(pid_, number);
  }

  int output = -1;  ///< What it writes, to be read.

 private:
  [[noreturn]] static void Become(const std::vector<std::string>& command, int out) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(out, STDOUT_FILENO);
    std::vector<char*> words;
    for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    execvp(words[0], words.data());
    _exit(127);
  }

  pid_t pid_ = -1;
};

}  // namespace orvanta
