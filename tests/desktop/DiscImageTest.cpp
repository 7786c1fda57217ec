// Images of discs, the friendly and the hostile ones.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <random>

#include "desktop/Processes.h"
#include "disctool/desktop/DiscCache.h"
#include "support/TestDisc.h"

namespace orvanta::test {

namespace fs = std::filesystem;

/// A disc, an image of it made by xorriso, and a cache.
struct DiscImage : testing::Test {
  void Burn(const std::string& options = "-R") const {
    fs::remove(image);
    const std::string line = "xorriso -as mkisofs -quiet " + options + " -o " + image.string() + " " +
                             disc.Folder().string() + " >/dev/null 2>&1";
    ASSERT_EQ(std::system(line.c_str()), 0) << line;
  }
  OpenedDisc Open() const {
    return cache.Open(image, [](std::uintmax_t, std::uintmax_t) {});
  }
  /// What lies in the cache but its lock.
  std::vector<std::string> Copies() const {
    std::vector<std::string> names;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(cacheFolder, none))
      if (entry.path().filename() != "lock") names.push_back(entry.path().filename().string());
    return names;
  }
  void ExpectRefused(const std::string& why) const {
    const OpenedDisc opened = Open();
    EXPECT_NE(opened.problem.find(why), std::string::npos) << opened.problem;
    EXPECT_EQ(Copies(), std::vector<std::string>{});
  }
  void ExpectUnpacked() const {
    const OpenedDisc opened = Open();
    ASSERT_EQ(opened.problem, "");
    const std::string line = "diff -r " + opened.folder.string() + " " + disc.Folder().string();
    EXPECT_EQ(std::system(line.c_str()), 0);
    EXPECT_EQ(Copies().size(), 1U) << "an older or half-made copy is of no use any more";
  }

  TestDisc disc;
  const ScratchFolder scratch;
  const fs::path image = scratch.Path() / "disc.iso", cacheFolder = scratch.Path() / "home/orvanta";
  DiscCache cache{cacheFolder};
};

TEST_F(DiscImage, IsUnpackedWholeAndAgainOnlyWhenItHasChanged) {
  disc.File("Data/Zażółć gęślą jaźń.txt", "tekst");
  for (const char* same : {"Data/same1.bin", "Data/same2.bin"}) disc.File(same, std::string(5000, 'x'));
  disc.File("empty.txt", "");
  fs::create_hard_link(disc.Data() / "same1.bin", disc.Data() / "linked.bin");
  for (const char* options : {"-R", "-J -joliet-long", "-R -J"}) {
    SCOPED_TRACE(options);
    Burn(options);
    const fs::path first = Open().folder;
    ExpectUnpacked();
    fs::remove(first / "Data/main.gif");
    EXPECT_EQ(Open().folder, first);
    EXPECT_FALSE(fs::exists(first / "Data/main.gif")) << "it was unpacked a second time";
    EXPECT_EQ(cache.Clear(), "");
    EXPECT_EQ(Copies().size(), 0U);
  }
  EXPECT_EQ(fs::status(cacheFolder).permissions(), fs::perms::owner_all) << "the user's alone";
  const OpenedDisc open = Open();
  disc.File("new.txt", "new");
  Burn();
  EXPECT_TRUE(fs::exists(Open().folder / "new.txt"));
  EXPECT_TRUE(fs::exists(open.folder / "empty.txt")) << "a copy that a shell has open stays";
  EXPECT_NE(cache.Clear(), "");
}

TEST_F(DiscImage, OfHarmIsRefused) {
  disc.File("QQ/evil.txt", "evil");
  Burn();
  std::string bytes = ContentOf(image);
  for (auto at = bytes.find("QQ"); at != bytes.npos; at = bytes.find("QQ")) bytes.replace(at, 2, "..");
  scratch.File("disc.iso", bytes);
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
  if (mknod((disc.Folder() / "disk").c_str(), S_IFBLK | 0600, makedev(8, 0)) == 0) {
    Burn();
    ExpectRefused("neither file nor folder: 'disk'");
  }
  fs::resize_file(image, fs::file_size(image) / 2);
  ExpectRefused("cannot be read");
  for (const fs::path& none :
       {scratch.File("text", "no image at all"), scratch.Path() / "none.iso", fs::path("/dev/null")})
    EXPECT_NE(cache.Open(none, [](std::uintmax_t, std::uintmax_t) {}).problem, "");
}

// Whatever stands in the directory of an image, nothing is written beside the cache and nothing crashes.
TEST_F(DiscImage, DamagedAtRandomDoesNoHarm) {
  Burn();
  const std::string whole = ContentOf(image);
  std::mt19937 random(7);
  for (int round = 0; round < 60; ++round) {
    std::string bytes = whole;
    // The descriptors and the directories stand at the beginning.
    for (int i = 0; i < 40; ++i) bytes[0x8000 + random() % 0x8000] = static_cast<char>(random());
    scratch.File("disc.iso", bytes);
    const OpenedDisc opened = Open();
    EXPECT_NE(opened.problem.empty(), opened.folder.empty());
    for (const auto& entry : fs::directory_iterator(scratch.Path()))
      EXPECT_TRUE(entry.path().filename() == "home" || entry.path() == image) << entry.path();
  }
  for (const std::string& name : Copies()) EXPECT_FALSE(name.ends_with(".part"));
}

TEST_F(DiscImage, ThatDoesNotFitOnTheDiskLeavesNothingBehind) {
  Burn();
  const auto told = [this](const char* why) {
    return Open().problem.find(why) != std::string::npos && Copies().empty() ? 0 : 1;
  };
  EXPECT_EQ(InAnotherProcess([&] {
              signal(SIGXFSZ, SIG_IGN);
              const rlimit limit{100'000, 100'000};
              setrlimit(RLIMIT_FSIZE, &limit);
              return told("File too large");
            }),
            0);
  // A small disk that only this process sees; not every machine lets a user mount one.
  const std::string small = "mount -t tmpfs -o size=64k,mode=700 none " + cacheFolder.string();
  const std::string inside = "unshare -rm sh -c '" + small;
  if (std::system((inside + "' 2>&1").c_str()) != 0) GTEST_SKIP() << "no disk can be mounted";
  const std::string open =
      "; XDG_CACHE_HOME=" + cacheFolder.parent_path().string() + " " ORVANTA_DISC_TOOL " open ";
  EXPECT_EQ(std::system((inside + open + image.string() + "' 2>&1 | grep -q left").c_str()), 0);
}

TEST_F(DiscImage, LeavesNothingHalfMadeWhenItsUnpackingIsInterrupted) {
  Burn();
  EXPECT_EQ(InAnotherProcess([this] {
              cache.Open(image, [](std::uintmax_t, std::uintmax_t) { raise(SIGINT); });
              return 0;
            }),
            -1)
      << "it ends as it was told to";
  EXPECT_EQ(Copies(), std::vector<std::string>{});
}

TEST_F(DiscImage, IsOpenedInTheShellOnceAndWhenItsUnpackingWasCutShort) {
  Burn();
  EXPECT_EQ(InAnotherProcess([this] {
              cache.Open(image, [](std::uintmax_t done, std::uintmax_t) {
                if (done > 50'000) raise(SIGKILL);
              });
              return 0;
            }),
            -1);
  ASSERT_EQ(Copies().size(), 1U) << "something half-made is there, to be not used";
  ExpectUnpacked();
  fs::remove_all(cacheFolder);
  const std::vector<std::string> home{"XDG_CACHE_HOME=" + (scratch.Path() / "home").string()};
  const Program shell({ORVANTA_DISC_TOOL, "open", image}, "/", home);
  EXPECT_TRUE(
      Soon([] { return std::system("xdotool search --name '^Płyta próbna$' >/dev/null 2>&1") == 0; }));
  EXPECT_EQ(Copies().size(), 1U);
  // Through a pipe, so that it is printed and not shown in a window.
  const std::string line =
      "set -o pipefail; " ORVANTA_DISC_TOOL " open " + disc.Folder().string() + " 2>&1 | cat";
  Program second({"bash", "-c", line}, "/", home);
  EXPECT_EQ(second.Ended(), 1);
  EXPECT_NE(second.Printed().find("running already"), std::string::npos) << second.Printed();
}

}  // namespace orvanta::test
