// Random users over random discs. ORVANTA_MONKEY_STEPS and ORVANTA_MONKEY_SEED change how many steps they
// make in all and which they are; a fault is told with the seed that brings it back in a run of few steps.

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "monkey/Monkey.h"

namespace orvanta::test {
namespace {

long Setting(const char* name, long otherwise) {
  const char* text = std::getenv(name);
  return text ? std::atol(text) : otherwise;
}

TEST(Monkey, LeavesTheProgramWhole) {
  constexpr long kStepsADisc = 4000;
  const long wanted = Setting("ORVANTA_MONKEY_STEPS", 100000);
  const auto seed = static_cast<std::uint32_t>(Setting("ORVANTA_MONKEY_SEED", 1));
  const auto begin = std::chrono::steady_clock::now();
  const std::clock_t busyBefore = std::clock();
  Figures f;
  while (f.steps < wanted) {
    const auto discSeed = seed + static_cast<std::uint32_t>(f.discs);
    std::mt19937 random(discSeed);
    const MonkeyDisc disc(random);
    ++f.discs;
    for (const long end = std::min(wanted, f.steps + kStepsADisc); f.steps < end;) {
      TestShell user(disc);
      disc.Furnish(user.host, random);
      Monkey monkey(user, disc, random, f);
      const long before = f.steps;
      ASSERT_NO_THROW(monkey.Live(std::min<long>(end - f.steps, 1500))) << "seed " << discSeed;
      ASSERT_EQ(monkey.Fault(), "") << "seed " << discSeed;
      ASSERT_GT(f.steps, before) << "seed " << discSeed << ": the program ended by itself";
    }
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
  const double busy = static_cast<double>(std::clock() - busyBefore) / CLOCKS_PER_SEC;
  std::printf("monkey: %ld steps in %.1f s, %.1f s of the processor (%.0f steps for each)\n", f.steps,
              took.count(), busy, static_cast<double>(f.steps) / busy);
  std::printf("        %ld discs, %ld shells, %ld exits, %ld programs, %ld messages\n", f.discs, f.shells,
              f.exits, f.starts, f.messages);
  std::printf("        steps in detail %ld, viewer %ld, cinema %ld, waits %ld, depth %d\n", f.details,
              f.viewers, f.films, f.nested, f.depth);
  // A monkey that never comes anywhere would find nothing.
  EXPECT_GT(f.details, 0);
  EXPECT_GT(f.nested, 0);
}

}  // namespace
}  // namespace orvanta::test
