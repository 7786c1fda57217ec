#include "desktop/Program.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <ctime>
#include <stdexcept>

#include "desktop/ForkedShell.h"

namespace orvanta::test {

Program::Program(const std::string& command, const std::filesystem::path& folder,
                 const std::vector<std::string>& environment)
    : output_(memfd_create("printed", MFD_CLOEXEC)) {
  pid_ = fork();
  if (pid_ < 0) throw std::runtime_error("no process");
  if (pid_ > 0) return;
  for (const std::string& entry : environment) {
    const auto equals = entry.find('=');
    setenv(entry.substr(0, equals).c_str(), entry.substr(equals + 1).c_str(), 1);
  }
  dup2(output_, STDOUT_FILENO);
  dup2(output_, STDERR_FILENO);
  if (chdir(folder.c_str()) == 0) execlp(command.c_str(), command.c_str(), nullptr);
  _exit(127);
}

Program::~Program() {
  if (Runs()) {
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
  }
  close(output_);
}

bool Program::Runs() {
  int status = 0;
  if (!status_ && waitpid(pid_, &status, WNOHANG) == pid_)
    status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return !status_;
}

int Program::Ended() {
  return Eventually([this] { return !Runs(); }) ? *status_ : -1;
}

std::string Program::Printed() const {
  std::string text(static_cast<std::size_t>(lseek(output_, 0, SEEK_END)), '\0');
  if (pread(output_, text.data(), text.size(), 0) < 0) text = "unreadable";
  return text;
}

double Program::Processor() const {
  clockid_t clock{};
  timespec used{};
  if (clock_getcpuclockid(pid_, &clock) != 0 || clock_gettime(clock, &used) != 0) return -1;
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

}  // namespace orvanta::test
