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
  /// Gives it faults of every kind.
  void Spoil(Random& random);
};

/// What the monkeys of a run have seen and done, in steps.
struct Figures {
  long steps = 0, windows = 0, waits = 0;
};

/// The life of a user who does anything at any time, also while the program waits inside something, and who
/// looks after each step whether what must always hold does hold. Steps come in bursts; after a burst the
/// monkey only closes what stands open, and the program must come to rest. The life ends after so many steps,
/// with the program, or with the first thing that is wrong, which it gives; empty if nothing was.
std::string LiveAsAMonkey(const MonkeyDisc& disc, Random& random, long steps, Figures& figures);

}  // namespace orvanta::test
