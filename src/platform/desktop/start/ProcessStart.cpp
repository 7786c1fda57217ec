#include "platform/desktop/start/ProcessStart.h"

#include <fcntl.h>
#include <linux/close_range.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace orvanta {
namespace {

constexpr int FirstOwnDescriptor = 3;

/// A pipe for reports from a child. The system closes it when all processes that could write to it have ended
/// or have become other programs.
struct Pipe {
  Descriptor reading;
  Descriptor writing;
};

/// Everything that a child needs, made before the fork: another thread may hold the lock of the allocator at
/// that moment, so the child must not allocate memory or call anything that signal-safety(7) does not list.
struct Plan {
  int report;  ///< for the error that prevented the program from being loaded
  int end;     ///< for a failure of the program while it is watched
  int rounds;  ///< for how many times `Round` milliseconds the program is watched
  bool anyEnd;
  char* const* arguments;
  char* const* environment;
};

constexpr int Round = 10;

/// Blocks all signals of this thread, so that no handler of this program runs in its children.
class BlockedSignals {
 public:
  BlockedSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
  }
  BlockedSignals(const BlockedSignals&) = delete;
  BlockedSignals& operator=(const BlockedSignals&) = delete;
  ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }

 private:
  sigset_t before{};
};

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

/// The child's end has a number above the standard descriptors, which the child is going to replace.
Pipe MakePipe(int& error) {
  std::array<int, 2> ends{-1, -1};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    error = errno;
    return {};
  }
  const Descriptor writing(ends[1]);
  Pipe made{Descriptor(ends[0]), Descriptor(fcntl(writing.get(), F_DUPFD_CLOEXEC, FirstOwnDescriptor))};
  error = made.writing ? 0 : errno;
  return made;
}

void Report(int pipe, int number) {
  // There is nobody left to report a failed write to.
  [[maybe_unused]] const ssize_t written = write(pipe, &number, sizeof number);
}

[[noreturn]] void Fail(const Plan& plan, int error) {
  Report(plan.report, error);
  _exit(EXIT_FAILURE);
}

void ConnectToNothing() {
  const int nothing = open("/dev/null", O_RDWR);
  for (int standard = 0; standard < FirstOwnDescriptor; ++standard)
    if (nothing >= 0 && nothing != standard) dup2(nothing, standard);
}

/// Some libraries open files without the close-on-exec flag, so it is set on all open files.
void CloseAllWithExec() {
  if (close_range(FirstOwnDescriptor, ~0U, CLOSE_RANGE_CLOEXEC) == 0) return;
  rlimit limit{};
  getrlimit(RLIMIT_NOFILE, &limit);
  for (int number = FirstOwnDescriptor; static_cast<rlim_t>(number) < limit.rlim_cur; ++number)
    fcntl(number, F_SETFD, FD_CLOEXEC);
}

void ResetSignals() {
  struct sigaction standard {};
  standard.sa_handler = SIG_DFL;
  for (int number = 1; number < NSIG; ++number) sigaction(number, &standard, nullptr);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void BecomeProgram(const Plan& plan) {
  setsid();
  ConnectToNothing();
  CloseAllWithExec();
  ResetSignals();
  execve(plan.arguments[0], plan.arguments, plan.environment);
  Fail(plan, errno);
}

/// The locks and connections of this program must not stay open in the process that watches another.
void CloseAllBut(int kept) {
  const int lowest = dup2(kept, FirstOwnDescriptor);
  if (close_range(static_cast<unsigned>(lowest) + 1, ~0U, 0) == 0) return;
  rlimit limit{};
  getrlimit(RLIMIT_NOFILE, &limit);
  for (int number = lowest + 1; static_cast<rlim_t>(number) < limit.rlim_cur; ++number) close(number);
}

/// Waits for the program's end while it is watched, and reports a failure.
[[noreturn]] void Watch(pid_t program, const Plan& plan) {
  setsid();
  ConnectToNothing();
  CloseAllBut(plan.end);
  for (int round = 0; round < plan.rounds; ++round) {
    int status = 0;
    if (waitpid(program, &status, WNOHANG) == program) {
      if (status != 0 || plan.anyEnd) Report(FirstOwnDescriptor, status);
      break;
    }
    poll(nullptr, 0, Round);
  }
  _exit(EXIT_SUCCESS);
}

/// The child starts the program as its own child and exits at once, or leaves a process that exits soon. Then
/// the program belongs to the system's first process, which reaps it when it ends.
[[noreturn]] void StartAndLeave(const Plan& plan) {
  if (plan.rounds > 0) {
    const pid_t watcher = fork();
    if (watcher < 0) Fail(plan, errno);
    if (watcher > 0) _exit(EXIT_SUCCESS);
  }
  const pid_t program = fork();
  if (program < 0) Fail(plan, errno);
  if (program == 0) BecomeProgram(plan);
  if (plan.rounds > 0) Watch(program, plan);
  _exit(EXIT_SUCCESS);
}

int ForkAndLeave(const Plan& plan, pid_t& child) {
  const BlockedSignals blocked;
  child = fork();
  if (child == 0) StartAndLeave(plan);
  return child < 0 ? errno : 0;
}

int Reported(const Descriptor& reading) {
  int error = 0;
  ssize_t got = 0;
  do got = read(reading.get(), &error, sizeof error);
  while (got < 0 && errno == EINTR);
  return got == sizeof error ? error : 0;
}

}  // namespace

std::vector<std::string> CurrentEnvironment() {
  std::vector<std::string> variables;
  for (char** variable = environ; variable && *variable; ++variable) variables.emplace_back(*variable);
  return variables;
}

bool EndWatch::HasFailed() {
  if (IsOver()) return failed_;
  int status = 0;
  const ssize_t got = read(reading_.get(), &status, sizeof status);
  if (got < 0 && (errno == EAGAIN || errno == EINTR)) return false;
  failed_ = got == sizeof status;
  reading_.reset();
  return failed_;
}

ProcessStart StartProcess(std::vector<std::string> arguments, std::vector<std::string> environment,
                          const Watching& watching) {
  int error = 0;
  Pipe report = MakePipe(error);
  if (error != 0) return {error};
  Pipe end = MakePipe(error);
  if (error != 0) return {error};
  fcntl(end.reading.get(), F_SETFL, O_NONBLOCK);
  const std::vector<char*> argumentPointers = Pointers(arguments);
  const std::vector<char*> environmentPointers = Pointers(environment);
  pid_t child = -1;
  error =
      ForkAndLeave({report.writing.get(), end.writing.get(), static_cast<int>(watching.time.count() / Round),
                    watching.anyEnd, argumentPointers.data(), environmentPointers.data()},
                   child);
  if (error != 0) return {error};
  report.writing.reset();
  while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) continue;
  error = Reported(report.reading);
  return {error, EndWatch(error == 0 ? std::move(end.reading) : Descriptor())};
}

}  // namespace orvanta
