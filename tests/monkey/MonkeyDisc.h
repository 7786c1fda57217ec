#pragma once

#include <random>

#include "support/TestDisc.h"
#include "support/TestShell.h"

namespace orvanta::test {

/// A disc with a random tree. Half of them are well-formed; the others have faults of every kind.
class MonkeyDisc : public TestDisc {
 public:
  explicit MonkeyDisc(std::mt19937& random);

  bool Sound() const { return sound_; }
  using TestDisc::Sound;
  /// Gives the host a random machine for it: the screen, the sound card and how long files take.
  void Furnish(HeadlessHost& host, std::mt19937& random) const;

 private:
  void Tree(std::mt19937& random);
  void Leaf(const std::string& name, std::mt19937& random);
  void Spoil(std::mt19937& random);

  bool sound_;
};

/// 0 to n - 1.
inline int Below(std::mt19937& random, int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); }

}  // namespace orvanta::test
