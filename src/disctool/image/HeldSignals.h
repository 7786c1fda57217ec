#pragma once

#include <csignal>

namespace orvanta {

/// Holds back the signals with which a user ends a program, for as long as it lives; one that has come
/// meanwhile then ends the program as ever. What is half made can be removed in between.
class HeldSignals {
 public:
  HeldSignals();
  HeldSignals(const HeldSignals&) = delete;
  HeldSignals& operator=(const HeldSignals&) = delete;
  ~HeldSignals();

 private:
  sigset_t before_{};
};

/// Whether such a signal is being held back.
bool EndPending();

}  // namespace orvanta
