#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <vector>

#include "desktop/ForkedShell.h"
#include "desktop/ScratchFolder.h"
#include "platform/desktop/InstanceLock.h"
#include "platform/desktop/ProcessStart.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

class Instances : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directory(runtime);
    ScratchFolder::mode(runtime, 0700);
    fs::create_directory(temporary);
  }

  bool another(const InstancePlace& where) const {
    return InAnotherProcess([&] { return InstanceLock::Acquire(where) ? 0 : 1; }) == 1;
  }
  fs::path lockFile(const std::string& display = ":0") const { return runtime / InstanceFileName(display); }
  fs::path ownTemporary() const { return temporary / ("orvanta-" + std::to_string(geteuid())); }

  const ScratchFolder scratch;
  const fs::path runtime = scratch.path / "runtime";
  const fs::path temporary = scratch.path / "temporary";
  const InstancePlace place{runtime, temporary, ":0"};
};

TEST_F(Instances, OnlyOneOfAUserOnADisplay) {
  auto first = InstanceLock::Acquire(place);
  ASSERT_TRUE(first);
  EXPECT_TRUE(another(place));
  EXPECT_TRUE(another({runtime, temporary, ":0.1"})) << "another screen of the same display";
  EXPECT_FALSE(another({runtime, temporary, ":1"}));
  first.reset();
  EXPECT_FALSE(another(place));
}

/// A start in a process of its own that waits for the end of `go`, tries, tells 'w'inner or 'l'oser to
/// `results` and stays until it is killed.
pid_t StartAtTheSignal(const InstancePlace& place, const std::array<int, 2>& go, int results) {
  const pid_t start = fork();
  if (start != 0) return start;
  char byte = 0;
  close(go[1]);
  if (read(go[0], &byte, 1) != 0) _exit(1);
  const auto lock = InstanceLock::Acquire(place);
  byte = lock ? 'w' : 'l';
  if (write(results, &byte, 1) == 1) pause();
  _exit(0);
}

// Eager users click twice. Of many starts at the same moment exactly one may win.
TEST_F(Instances, ARaceHasOneWinner) {
  for (int round = 0; round < 20; ++round) {
    fs::remove(lockFile());
    std::array<int, 2> go{};
    std::array<int, 2> results{};
    ASSERT_TRUE(pipe(go.data()) == 0 && pipe(results.data()) == 0);
    std::vector<pid_t> starts(24);
    for (pid_t& start : starts) start = StartAtTheSignal(place, go, results[1]);
    close(go[1]);
    close(results[1]);
    std::string told(starts.size(), ' ');
    for (char& result : told) EXPECT_EQ(read(results[0], &result, 1), 1);
    EXPECT_EQ(std::count(told.begin(), told.end(), 'w'), 1) << told;
    EXPECT_EQ(std::count(told.begin(), told.end(), 'l'), 23) << told;
    for (const pid_t start : starts) {
      kill(start, SIGKILL);
      waitpid(start, nullptr, 0);
    }
    close(go[0]);
    close(results[0]);
  }
}

// Lock files with a process id, and locks that children inherit, refuse every later start.
TEST_F(Instances, ACrashLeavesTheWayFreeEvenWhileAStartedProgramRuns) {
  const fs::path program =
      scratch.script("game", "echo $$ > '" + (scratch.path / "pid").string() + "'; exec sleep 60");
  InAnotherProcess([&] {
    const auto lock = InstanceLock::Acquire(place);
    StartProcess({program}, CurrentEnvironment());
    return raise(SIGKILL);
  });
  ASSERT_TRUE(Eventually([&] { return ScratchFolder::contentOf(scratch.path / "pid").ends_with('\n'); }));
  const pid_t started = std::stoi(ScratchFolder::contentOf(scratch.path / "pid"));
  EXPECT_EQ(kill(started, 0), 0) << "the program is gone, so this shows nothing";
  EXPECT_FALSE(another(place));
  kill(started, SIGKILL);
}

TEST_F(Instances, TheFileIsTheUsersAloneAndCleanersLeaveIt) {
  const auto lock = InstanceLock::Acquire(place);
  struct stat status {};
  ASSERT_EQ(stat(lockFile().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, static_cast<mode_t>(S_ISVTX | S_IRUSR | S_IWUSR));
}

TEST_F(Instances, WithoutARuntimeFolderTheyMeetInTheTemporaryOne) {
  for (const std::string& unusable : {std::string(), (scratch.path / "missing").string()}) {
    const auto lock = InstanceLock::Acquire({unusable, temporary, ":0"});
    ASSERT_TRUE(lock);
    EXPECT_TRUE(another({"", temporary, ":0"})) << unusable;
  }
  EXPECT_EQ(fs::status(ownTemporary()).permissions(), fs::perms::owner_all);
}

// A folder that others may write to could hold a stranger's lock, or a link to a file that he wants made.
TEST_F(Instances, FoldersThatOthersMayEnterAreNotTrusted) {
  ScratchFolder::mode(runtime, 0777);
  fs::create_directory(ownTemporary());
  ScratchFolder::mode(ownTemporary(), 0777);
  EXPECT_TRUE(InstanceLock::Acquire(place));
  EXPECT_TRUE(fs::is_empty(runtime));
  EXPECT_TRUE(fs::is_empty(ownTemporary()));

  fs::remove(ownTemporary());
  fs::create_directory_symlink(runtime, ownTemporary());
  ScratchFolder::mode(runtime, 0700);
  EXPECT_TRUE(InstanceLock::Acquire({"", temporary, ":0"}));
  EXPECT_TRUE(fs::is_empty(runtime));
}

TEST_F(Instances, AStrangersFolderIsNotTrusted) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can give a folder away";
  ASSERT_EQ(chown(runtime.c_str(), 65534, 65534), 0);
  EXPECT_TRUE(InstanceLock::Acquire(place));
  EXPECT_TRUE(fs::is_empty(runtime));
}

TEST_F(Instances, WhatStandsInTheFilesPlaceIsNeitherFollowedNorWaitedFor) {
  fs::create_symlink(scratch.path / "victim", lockFile(":1"));
  EXPECT_TRUE(InstanceLock::Acquire({runtime, temporary, ":1"}));
  EXPECT_FALSE(fs::exists(scratch.path / "victim"));

  ASSERT_EQ(mkfifo(lockFile(":2").c_str(), 0600), 0);
  EXPECT_TRUE(InstanceLock::Acquire({runtime, temporary, ":2"}));
  fs::create_directory(lockFile(":3"));
  EXPECT_TRUE(InstanceLock::Acquire({runtime, temporary, ":3"}));
}

TEST_F(Instances, WithNowhereToLockTheProgramStartsAllTheSame) {
  const InstancePlace nowhere{"", scratch.path / "missing", ":0"};
  const auto lock = InstanceLock::Acquire(nowhere);
  EXPECT_TRUE(lock);
  EXPECT_FALSE(another(nowhere));
}

TEST(InstanceFileName, TellsDisplaysApartAndIsAlwaysAFileName) {
  EXPECT_EQ(InstanceFileName(":0"), "orvanta-%3a0.lock");
  EXPECT_EQ(InstanceFileName(":0.0"), InstanceFileName(":0"));
  EXPECT_NE(InstanceFileName("wayland-0.5"), InstanceFileName("wayland-0"));
  EXPECT_NE(InstanceFileName("host.net:1"), InstanceFileName("host.net:11"));
  EXPECT_EQ(InstanceFileName("/run/x\n"), "orvanta-%2frun%2fx%0a.lock");
  EXPECT_LT(InstanceFileName(std::string(1000, '/')).size(), std::size_t{256});
}

}  // namespace
}  // namespace orvanta
