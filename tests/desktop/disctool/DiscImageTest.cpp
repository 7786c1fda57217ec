// Images of discs, the friendly and the hostile ones.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QByteArray>
#include <algorithm>
#include <functional>

#include "desktop/support/Processes.h"
#include "desktop/support/Programs.h"
#include "disctool/image/DiscCache.h"
#include "support/TestDisc.h"

namespace orvanta::test {

namespace fs = std::filesystem;

/// A disc, an image of it made by xorriso, and a cache.
struct DiscImage : testing::Test {
  void Burn(const std::string& options = "-R") const {
    const std::string line = "xorriso -as mkisofs -quiet " + options + " -o " + image.string() + " " +
                             disc.Folder().string() + " >/dev/null 2>&1";
    fs::remove(image);
    ASSERT_EQ(std::system(line.c_str()), 0) << line;
  }
  OpenedDisc Open(const std::function<void(std::uintmax_t)>& progress = [](auto) {}) const {
    return cache.Open(image, [&](std::uintmax_t done, std::uintmax_t) { progress(done); });
  }
  /// How many copies lie in the cache, half-made ones too.
  std::ptrdiff_t Copies() const {
    return std::ranges::count_if(fs::directory_iterator(cacheFolder),
                                 [](const auto& entry) { return entry.is_directory(); });
  }
  void ExpectRefused(const std::string& why) const {
    const OpenedDisc opened = Open();
    EXPECT_NE(opened.problem.find(why), std::string::npos) << opened.problem;
    EXPECT_EQ(Copies(), 0);
  }
  void ExpectUnpacked() const {
    const OpenedDisc opened = Open();
    const std::string line = "diff -r " + opened.folder.string() + " " + disc.Folder().string();
    EXPECT_EQ(std::system(line.c_str()), 0) << opened.problem;
    EXPECT_EQ(Copies(), 1) << "an older or half-made copy is of no use any more";
  }

  TestDisc disc;
  const ScratchFolder scratch;
  const fs::path image = scratch.Path() / "disc.iso", cacheFolder = scratch.Path() / "home/orvanta";
  DiscCache cache{cacheFolder};
};

TEST_F(DiscImage, IsUnpackedWholeAndAgainOnlyWhenItHasChanged) {
  disc.File("Data/Zażółć gęślą jaźń.txt", "tekst");
  disc.File("empty.txt", "");
  fs::create_hard_link(disc.Data() / "main.gif", disc.Data() / "linked.gif");
  for (const char* options : {"-R", "-J -joliet-long", "-R -J"}) {
    Burn(options);
    const fs::path first = Open().folder;
    ExpectUnpacked();
    fs::remove(first / "Data/main.gif");
    EXPECT_EQ(Open().folder, first);
    EXPECT_FALSE(fs::exists(first / "Data/main.gif")) << "it was unpacked a second time";
    EXPECT_EQ(cache.Clear(), "");
    EXPECT_EQ(Copies(), 0);
  }
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
  fs::resize_file(image, fs::file_size(image) / 2);
  ExpectRefused("cannot be read");
}

TEST_F(DiscImage, ThatCannotBeUnpackedLeavesNothingThatIsUsed) {
  Burn();
  EXPECT_EQ(InAnotherProcess([this] {
              signal(SIGXFSZ, SIG_IGN);
              const rlimit limit{100'000, 100'000};
              setrlimit(RLIMIT_FSIZE, &limit);
              ExpectRefused("File too large");
              return HasFailure() ? 1 : 0;
            }),
            0);
  for (const int number : {SIGINT, SIGKILL}) {
    EXPECT_EQ(InAnotherProcess([&] {
                Open([&](std::uintmax_t done) { return done > 50'000 ? raise(number) : 0; });
                return 0;
              }),
              -1)
        << "it ends as it was told to";
    EXPECT_EQ(Copies(), number == SIGKILL ? 1 : 0);
  }
  ExpectUnpacked();
}

TEST_F(DiscImage, IsOpenedInTheShellOnce) {
  Burn();
  qputenv("XDG_CACHE_HOME", cacheFolder.parent_path().c_str());
  const Program shell({DiscToolProgram(), "open", image});
  EXPECT_TRUE(
      Soon([] { return std::system("xdotool search --name '^Płyta próbna$' >/dev/null 2>&1") == 0; }));
  EXPECT_EQ(Copies(), 1);
  // Through a pipe, so that it is printed and not shown in a window.
  const std::string line = " open " + disc.Folder().string() + " 2>&1 | cat";
  Program second({"bash", "-o", "pipefail", "-c", DiscToolProgram() + line});
  EXPECT_EQ(second.Ended(), 1);
  EXPECT_NE(second.Printed().find("running already"), std::string::npos) << second.Printed();
}

}  // namespace orvanta::test
