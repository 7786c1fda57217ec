#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <csignal>
#include <cstdlib>
#include <map>
#include <random>

#include "desktop/DiscToolProcess.h"
#include "desktop/ForkedShell.h"
#include "desktop/ScratchFolder.h"
#include "disctool/desktop/DiscCache.h"
#include "support/TestDisc.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;
using test::TestDisc;

const Progress kNoProgress = [](std::uintmax_t, std::uintmax_t) {};

/// A disc, an image of it made by xorriso, and a cache.
struct Image : ::testing::Test {
  TestDisc disc;
  ScratchFolder scratch;
  fs::path image = scratch.path / "disc.iso";
  fs::path cacheFolder = scratch.path / "home/orvanta";
  DiscCache cache{cacheFolder};

  void Burn(const std::string& options = "-R") {
    fs::remove(image);
    const std::string line = "xorriso -as mkisofs -quiet " + options + " -o " + Quoted(image) + " " +
                             Quoted(disc.Folder()) + " >/dev/null 2>&1";
    ASSERT_EQ(std::system(line.c_str()), 0) << line;
  }
  /// Replaces bytes of the image everywhere.
  void Patch(const std::string& from, const std::string& to) {
    std::string bytes = ScratchFolder::contentOf(image);
    int count = 0;
    for (auto at = bytes.find(from); at != bytes.npos; at = bytes.find(from, at + 1), ++count)
      bytes.replace(at, from.size(), to);
    ASSERT_GT(count, 0);
    scratch.file("disc.iso", bytes);
  }
  OpenedDisc Open() const { return cache.Open(image, kNoProgress); }
  /// What lies in the cache but its lock.
  std::vector<std::string> Copies() const {
    std::vector<std::string> names;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(cacheFolder, none))
      if (entry.path().filename() != "lock") names.push_back(entry.path().filename().string());
    return names;
  }
  void ExpectRefused(const std::string& why) {
    const OpenedDisc opened = Open();
    EXPECT_NE(opened.problem.find(why), std::string::npos) << opened.problem;
    EXPECT_EQ(Copies(), std::vector<std::string>{});
  }
};

/// The files below a folder with what is in them.
std::map<std::string, std::string> Contents(const fs::path& folder) {
  std::map<std::string, std::string> contents;
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    contents[entry.path().lexically_relative(folder).string()] =
        entry.is_regular_file() ? ScratchFolder::contentOf(entry.path()) : "/";
  return contents;
}

TEST_F(Image, IsUnpackedWholeWithTheNamesOfRockRidgeAndJoliet) {
  disc.File("Data/Zażółć gęślą jaźń.txt", "tekst");
  disc.File("Data/same1.bin", std::string(5000, 'x'));
  disc.File("Data/same2.bin", std::string(5000, 'x'));
  disc.File("empty.txt", "");
  fs::create_hard_link(disc.Data() / "same1.bin", disc.Data() / "linked.bin");
  for (const char* options : {"-R", "-J -joliet-long", "-R -J"}) {
    Burn(options);
    const OpenedDisc opened = Open();
    ASSERT_EQ(opened.problem, "") << options;
    EXPECT_EQ(Contents(opened.folder), Contents(disc.Folder())) << options;
  }
  EXPECT_EQ(fs::status(cacheFolder).permissions(), fs::perms::owner_all) << "the user's alone";
}

TEST_F(Image, IsUnpackedAgainOnlyWhenItHasChanged) {
  Burn();
  const fs::path first = Open().folder;
  fs::remove(first / "Data/main.gif");
  EXPECT_EQ(Open().folder, first);
  EXPECT_FALSE(fs::exists(first / "Data/main.gif")) << "it was not unpacked a second time";

  disc.File("new.txt", "new");
  Burn();
  const OpenedDisc second = Open();
  EXPECT_TRUE(fs::exists(second.folder / "new.txt"));
  EXPECT_EQ(Copies().size(), 1U) << "the copy of the older state is of no use any more";

  disc.File("newer.txt", "newer");
  Burn();
  const OpenedDisc third = Open();
  EXPECT_TRUE(fs::exists(second.folder / "new.txt")) << "a copy that a shell has open stays";
  EXPECT_NE(cache.Clear(), "");
  EXPECT_TRUE(fs::exists(third.folder / "newer.txt"));
}

TEST_F(Image, CopiesAreRemovedWhenAskedFor) {
  Burn();
  ASSERT_EQ(Open().problem, "");
  EXPECT_EQ(Copies().size(), 1U);
  EXPECT_EQ(cache.Clear(), "");
  EXPECT_EQ(Copies().size(), 0U);
}

TEST_F(Image, OfHarmIsRefused) {
  disc.File("QQ/evil.txt", "evil");
  Burn();
  Patch("QQ", "..");
  ExpectRefused("leads out of it");
  EXPECT_FALSE(fs::exists(cacheFolder / "evil.txt"));

  fs::remove_all(disc.Folder() / "QQ");
  fs::create_symlink("/etc/passwd", disc.Folder() / "link");
  Burn();
  ExpectRefused("has a link in it: 'link'");
  fs::remove(disc.Folder() / "link");

  ASSERT_EQ(mkfifo((disc.Folder() / "pipe").c_str(), 0600), 0);
  Burn();
  ExpectRefused("neither file nor folder: 'pipe'");
  fs::remove(disc.Folder() / "pipe");

  // Only root may make one to begin with.
  if (mknod((disc.Folder() / "disk").c_str(), S_IFBLK | 0600, makedev(8, 0)) != 0) return;
  Burn();
  ExpectRefused("neither file nor folder: 'disk'");
}

TEST_F(Image, ThatCannotBeReadLeavesNothingBehind) {
  Burn();
  fs::resize_file(image, fs::file_size(image) / 2);
  ExpectRefused("cannot be read");
  scratch.file("disc.iso", "no image at all");
  ExpectRefused("cannot be read");
  EXPECT_NE(cache.Open(scratch.path / "none.iso", kNoProgress).problem, "");
  EXPECT_NE(cache.Open("/dev/null", kNoProgress).problem, "");
}

// Whatever stands in the directory of an image, nothing is written beside the cache and nothing crashes.
TEST_F(Image, DamagedAtRandomDoesNoHarm) {
  Burn();
  const std::string whole = ScratchFolder::contentOf(image);
  std::mt19937 random(7);
  for (int round = 0; round < 60; ++round) {
    std::string bytes = whole;
    // The descriptors and the directories stand at the beginning.
    for (int i = 0; i < 40; ++i) bytes[0x8000 + random() % 0x8000] = static_cast<char>(random());
    scratch.file("disc.iso", bytes);
    const OpenedDisc opened = Open();
    EXPECT_NE(opened.problem.empty(), opened.folder.empty());
    for (const auto& entry : fs::directory_iterator(scratch.path))
      EXPECT_TRUE(entry.path().filename() == "home" || entry.path() == image) << entry.path();
  }
  for (const std::string& name : Copies()) EXPECT_FALSE(name.ends_with(".part"));
}

TEST_F(Image, ThatDoesNotFitOnTheDiskLeavesNothingBehind) {
  Burn();
  const int status = InAnotherProcess([this] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{100'000, 100'000};
    setrlimit(RLIMIT_FSIZE, &limit);
    return Open().problem.find("File too large") != std::string::npos ? 0 : 1;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Copies(), std::vector<std::string>{});
}

TEST_F(Image, IsNotBegunWhereThereIsNoRoom) {
  Burn();
  fs::create_directories(cacheFolder);
  constexpr int kCannotMount = 77;
  const int status = InAnotherProcess([this] {
    // A small disk that only this process sees.
    const int spaces = geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER;
    if (unshare(spaces) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("none", cacheFolder.c_str(), "tmpfs", 0, "size=64k,mode=700") != 0)
      return kCannotMount;
    const bool told = Open().problem.find("left") != std::string::npos;
    return told && Copies().empty() ? 0 : 1;
  });
  if (status == kCannotMount) GTEST_SKIP() << "this machine lets nobody mount a disk of his own";
  EXPECT_EQ(status, 0);
}

TEST_F(Image, WhoseUnpackingWasCutShortIsUnpackedAnew) {
  Burn();
  const pid_t child = fork();
  if (child == 0) {
    cache.Open(image, [](std::uintmax_t done, std::uintmax_t) {
      if (done > 50'000) std::raise(SIGKILL);
    });
    _exit(0);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  ASSERT_EQ(Copies().size(), 1U) << "something half-made is there, to be not used";
  const OpenedDisc opened = Open();
  ASSERT_EQ(opened.problem, "");
  EXPECT_EQ(Contents(opened.folder), Contents(disc.Folder()));
  EXPECT_EQ(Copies().size(), 1U);
}

TEST_F(Image, IsOpenedInTheShell) {
  disc.Menu("MAINMENU", {"Gra"});
  Burn();
  const pid_t shell = fork();
  if (shell == 0) {
    setenv("XDG_CACHE_HOME", (scratch.path / "home").c_str(), 1);
    execl(ORVANTA_DISC_TOOL, ORVANTA_DISC_TOOL, "open", image.c_str(), nullptr);
    _exit(99);
  }
  EXPECT_TRUE(
      Eventually([] { return std::system("xdotool search --name '^Płyta próbna$' >/dev/null 2>&1") == 0; }));
  EXPECT_EQ(Copies().size(), 1U);
  const ToolRun second = RunTool("open " + Quoted(disc.Folder()));
  EXPECT_EQ(second.status, 1);
  EXPECT_NE(second.output.find("running already"), std::string::npos) << second.output;
  kill(shell, SIGTERM);
  waitpid(shell, nullptr, 0);
}

TEST(DiscTool, TellsMisuseFromFaults) {
  const TestDisc disc;
  const std::string folder = Quoted(disc.Folder());
  for (const std::string& misuse :
       {std::string(), std::string("bogus"), std::string("tree"), "tree " + folder + " x",
        "tree --strict " + folder, "check --bogus " + folder, "get " + folder + " GLOBAL",
        "gallery --clear-cache " + folder + " x"})
    EXPECT_EQ(RunTool(misuse).status, 2) << misuse;
  EXPECT_EQ(RunTool("tree " + folder).status, 0);
  EXPECT_EQ(RunTool("tree /nowhere").status, 1);
  EXPECT_EQ(RunTool("get " + folder + " HEADLINE Caption").output, "Płyta próbna\n");
  EXPECT_EQ(RunTool("--version").status, 0);
  const ToolRun help = RunTool("--help");
  EXPECT_EQ(help.status, 0);
  for (const char* command : {"open", "check", "tree", "gallery", "get"})
    EXPECT_NE(help.output.find(std::string("\n  ") + command + " "), std::string::npos) << command;
  const ToolRun blind = RunTool("open " + folder, "-u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM");
  EXPECT_EQ(blind.status, 1);
  EXPECT_NE(blind.output.find("no display"), std::string::npos);
  EXPECT_EQ(RunTool("tree " + folder + " >/dev/full").status, 1) << "what was not written is no success";
}

}  // namespace
}  // namespace orvanta
