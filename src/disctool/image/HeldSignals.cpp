#include "disctool/image/HeldSignals.h"

namespace orvanta {
namespace {

constexpr int kEnds[] = {SIGINT, SIGTERM, SIGHUP};

}  // namespace

HeldSignals::HeldSignals() {
  sigset_t ends;
  sigemptyset(&ends);
  for (const int end : kEnds) sigaddset(&ends, end);
  pthread_sigmask(SIG_BLOCK, &ends, &before_);
}

HeldSignals::~HeldSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

bool EndPending() {
  sigset_t pending;
  sigemptyset(&pending);
  sigpending(&pending);
  for (const int end : kEnds)
    if (sigismember(&pending, end) == 1) return true;
  return false;
}

}  // namespace orvanta
