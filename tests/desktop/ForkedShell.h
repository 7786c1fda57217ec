#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <thread>

namespace orvanta {

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
  if (child < 0 || waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

/// Waits until `happened` says so, for ten seconds at most; gives whether it did.
template <class Condition>
bool Eventually(Condition happened) {
  using namespace std::chrono_literals;
  for (const auto deadline = std::chrono::steady_clock::now() + 10s; !happened();
       std::this_thread::sleep_for(5ms))
    if (std::chrono::steady_clock::now() > deadline) return false;
  return true;
}

/// Gives up the rights of root, which would read the unreadable; a plain user keeps his.
inline void BecomePlainUser() {
  constexpr uid_t Nobody = 65534;
  if (geteuid() == 0 && (setgid(Nobody) != 0 || setuid(Nobody) != 0)) _exit(99);
}

}  // namespace orvanta
