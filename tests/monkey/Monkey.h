#pragma once

#include <random>

#include "support/TestShell.h"

namespace orvanta::test {

using Random = std::mt19937;
/// 0 to n - 1.
inline int Below(Random& random, int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }

/// A disc with a random tree.
struct MonkeyDisc : TestDisc {
  MonkeyDisc(Random& random, bool isWellFormed);
  /// Adds faults of every kind.
  void Spoil(Random& random);
};

/// How much the monkeys of a run have seen and done, counted in steps.
struct Figures {
  long steps = 0, windows = 0, waits = 0;
};

/// Simulates a user who does anything at any time, even during nested waits, and checks the invariants after
/// each step. Steps come in bursts. After a burst the monkey only closes what is open, and the program must
/// come to rest. The run ends after `steps` steps, when the program ends, or at the first violation, which is
/// returned; empty if there was none.
std::string LiveAsAMonkey(const MonkeyDisc& disc, Random& random, long steps, Figures& figures);

}  // namespace orvanta::test
