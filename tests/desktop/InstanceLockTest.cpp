#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>

#include "desktop/Processes.h"
#include "platform/desktop/InstanceLock.h"
#include "platform/desktop/ProcessStart.h"

namespace orvanta::test {

namespace fs = std::filesystem;

class Instances : public testing::Test {
 protected:
  Instances() {
    fs::create_directories(own);
    fs::create_directories(runtime);
    for (const fs::path& folder : {runtime, own}) Allow(folder, 0700);
  }
  static bool Another(const InstancePlace& where) {
    return InAnotherProcess([&] { return InstanceLock::Acquire(where) ? 0 : 1; }) == 1;
  }
  fs::path LockFile(const std::string& display) const { return runtime / InstanceFileName(display); }

  const ScratchFolder scratch;
  const fs::path runtime = scratch.Path() / "runtime", temporary = scratch.Path() / "temporary",
                 own = temporary / ("orvanta-" + std::to_string(geteuid()));
  const InstancePlace place{runtime, temporary, ":0"};
};

TEST_F(Instances, OnlyOneOfAUserOnADisplay) {
  auto first = InstanceLock::Acquire(place);
  ASSERT_TRUE(first);
  EXPECT_TRUE(Another(place));
  EXPECT_TRUE(Another({runtime, temporary, ":0.1"})) << "another screen of the same display";
  EXPECT_FALSE(Another({runtime, temporary, ":1"}));
  struct stat status {};
  ASSERT_EQ(stat(LockFile(":0").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, static_cast<mode_t>(S_ISVTX | S_IRUSR | S_IWUSR)) << "cleaners leave it";
  first.reset();
  EXPECT_FALSE(Another(place));
  const InstancePlace nowhere{"", scratch.Path() / "missing", ":0"};
  EXPECT_TRUE(InstanceLock::Acquire(nowhere)) << "with nowhere to lock the program starts all the same";
  for (const std::string& unusable : {std::string(), (scratch.Path() / "missing").string()}) {
    const auto lock = InstanceLock::Acquire({unusable, temporary, ":0"});
    EXPECT_TRUE(Another({"", temporary, ":0"})) << "without a runtime folder they meet in the temporary one";
  }
}

// Eager users click twice. Of many starts at the same moment exactly one may win.
TEST_F(Instances, ARaceHasOneWinner) {
  for (int round = 0; round < 20; ++round) {
    fs::remove(LockFile(":0"));
    std::array<int, 2> go{}, results{};
    ASSERT_TRUE(pipe(go.data()) == 0 && pipe(results.data()) == 0);
    std::array<pid_t, 24> starts{};
    for (pid_t& start : starts) {
      if ((start = fork()) != 0) continue;
      // Waits for the end of `go`, tries, tells whether it won and stays until it is killed.
      char byte = 0;
      close(go[1]);
      if (read(go[0], &byte, 1) != 0) _exit(1);
      const auto lock = InstanceLock::Acquire(place);
      if (write(results[1], lock ? "w" : "l", 1) == 1) pause();
      _exit(0);
    }
    close(go[1]);
    close(results[1]);
    std::string told(starts.size(), ' ');
    for (char& result : told) EXPECT_EQ(read(results[0], &result, 1), 1);
    EXPECT_EQ(std::ranges::count(told, 'w'), 1) << told;
    EXPECT_EQ(std::ranges::count(told, 'l'), 23) << told;
    for (const pid_t start : starts) kill(start, SIGKILL), waitpid(start, nullptr, 0);
    for (const int end : {go[0], results[0]}) close(end);
  }
}

// Lock files with a process id, and locks that children inherit, refuse every later start.
TEST_F(Instances, ACrashLeavesTheWayFreeEvenWhileAStartedProgramRuns) {
  const fs::path told = scratch.Path() / "pid";
  InAnotherProcess([&] {
    const auto lock = InstanceLock::Acquire(place);
    StartProcess({scratch.Script("game", "echo $$ > '" + told.string() + "'; exec sleep 60")},
                 CurrentEnvironment());
    return raise(SIGKILL);
  });
  ASSERT_TRUE(Soon([&] { return ContentOf(told).ends_with('\n'); }));
  const pid_t started = std::stoi(ContentOf(told));
  EXPECT_EQ(kill(started, 0), 0) << "the program is gone, so this shows nothing";
  EXPECT_FALSE(Another(place));
  kill(started, SIGKILL);
}

// A folder that others may write to could hold a stranger's lock, or a link to a file that he wants made.
TEST_F(Instances, WhatIsNotTheUsersAloneIsNeitherTrustedNorFollowedNorWaitedFor) {
  for (const fs::path& folder : {runtime, own}) Allow(folder, 0777);
  EXPECT_TRUE(InstanceLock::Acquire(place));
  EXPECT_TRUE(fs::is_empty(runtime) && fs::is_empty(own));
  Allow(runtime, 0700);
  fs::remove(own);
  fs::create_directory_symlink(runtime, own);
  EXPECT_TRUE(InstanceLock::Acquire({"", temporary, ":0"}));
  EXPECT_TRUE(fs::is_empty(runtime));

  fs::create_symlink(scratch.Path() / "victim", LockFile(":1"));
  ASSERT_EQ(mkfifo(LockFile(":2").c_str(), 0600), 0);
  fs::create_directory(LockFile(":3"));
  for (const char* display : {":1", ":2", ":3"})
    EXPECT_TRUE(InstanceLock::Acquire({runtime, temporary, display}));
  EXPECT_FALSE(fs::exists(scratch.Path() / "victim"));
  if (geteuid() != 0) GTEST_SKIP() << "only root can give a folder away";
  ASSERT_EQ(chown(runtime.c_str(), 65534, 65534), 0);
  EXPECT_TRUE(InstanceLock::Acquire(place));
  EXPECT_FALSE(fs::exists(LockFile(":0"))) << "a stranger's folder";
}

TEST(InstanceFileName, TellsDisplaysApartAndIsAlwaysAFileName) {
  EXPECT_EQ(InstanceFileName(":0"), "orvanta-%3a0.lock");
  EXPECT_NE(InstanceFileName("wayland-0.5"), InstanceFileName("wayland-0"));
  EXPECT_NE(InstanceFileName("host.net:1"), InstanceFileName("host.net:11"));
  EXPECT_EQ(InstanceFileName("/run/x\n"), "orvanta-%2frun%2fx%0a.lock");
  EXPECT_LT(InstanceFileName(std::string(1000, '/')).size(), std::size_t{256});
}

}  // namespace orvanta::test
