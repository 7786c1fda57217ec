#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <latch>

#include "desktop/support/Processes.h"
#include "platform/desktop/InstanceLock.h"
#include "platform/desktop/start/ProcessStart.h"

namespace orvanta::test {

namespace fs = std::filesystem;

struct Instances : testing::Test {
  Instances() {
    fs::create_directory(runtime);
    Allow(runtime, 0700);
  }
  const ScratchFolder scratch;
  const fs::path runtime = scratch.Path() / "runtime", file = runtime / InstanceFileName(":0");
  const InstancePlace place{runtime, scratch.Path() / "none", ":0"};
};

// Eager users click twice. Of many starts at the same moment exactly one may win.
TEST_F(Instances, OnlyOneOfAUserOnADisplay) {
  for (int round = 0; round < 20; ++round) {
    std::array<std::optional<InstanceLock>, 24> locks;
    {
      fs::remove(file);
      std::latch go(std::ssize(locks));
      std::vector<std::jthread> starts;
      starts.reserve(locks.size());
      for (auto& lock : locks)
        starts.emplace_back([&] {
          go.arrive_and_wait();
          lock = InstanceLock::Acquire(place);
        });
    }
    EXPECT_EQ(std::ranges::count_if(locks, [](const auto& lock) { return lock.has_value(); }), 1);
    EXPECT_TRUE(InstanceLock::Acquire({runtime, place.temporaryFolder, ":1"})) << "another display";
  }
}

// Lock files with a process id, and locks that children inherit, refuse every later start.
TEST_F(Instances, ACrashLeavesTheWayFreeEvenWhileAStartedProgramRuns) {
  const fs::path told = scratch.Path() / "pid";
  const std::string game = scratch.Script("game", "echo $$ > '" + told.string() + "'; exec sleep 60");
  InAnotherProcess([&] {
    const auto lock = InstanceLock::Acquire(place);
    return StartProcess({game}, CurrentEnvironment(), {.time = std::chrono::seconds(5)}).error +
           raise(SIGKILL);
  });
  ASSERT_TRUE(Soon([&] { return ContentOf(told).ends_with('\n'); }));
  EXPECT_TRUE(InstanceLock::Acquire(place));
  EXPECT_EQ(kill(std::stoi(ContentOf(told)), SIGKILL), 0) << "it was gone, so this shows nothing";
}

// A folder that others may write to could hold a stranger's lock, or a link to a file that he wants made.
TEST_F(Instances, WhatIsNotTheUsersAloneIsNeitherTrustedNorFollowed) {
  Allow(runtime, 0777);
  EXPECT_TRUE(InstanceLock::Acquire(place)) << "with nowhere to lock the program starts all the same";
  EXPECT_TRUE(fs::is_empty(runtime));
  Allow(runtime, 0700);
  fs::create_symlink(scratch.Path() / "victim", file);
  EXPECT_TRUE(InstanceLock::Acquire(place));
  EXPECT_FALSE(fs::exists(scratch.Path() / "victim"));
}

}  // namespace orvanta::test
