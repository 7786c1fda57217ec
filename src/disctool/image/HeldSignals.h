#pragma once

#include <csignal>

namespace orvanta {

/// Blocks the signals with which a user ends a program. A signal that arrives meanwhile takes effect when
/// this object is destroyed, so that incomplete files can be removed before.
class HeldSignals {
 public:
  HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;
  ~HeldSignals();

 private:
  sigset_t before_{};
};

/// Whether such a signal is pending.
bool EndPending();

}  // namespace orvanta
