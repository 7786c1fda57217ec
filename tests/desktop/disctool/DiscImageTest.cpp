// Images of discs, the friendly and the hostile ones.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QByteArray>
#include <algorithm>
#include <chrono>
#include <functional>

#include "desktop/support/Processes.h"
#include "desktop/support/Programs.h"
#include "disctool/image/DiscCache.h"
#include "disctool/image/OpenTree.h"
#include "support/ImageKinds.h"
#include "support/ImageWriter.h"
#include "support/TestDisc.h"

namespace orvanta::test {

namespace fs = std::filesystem;

/// A disc, an image of it, and a cache.
struct DiscImage : testing::Test {
  void Burn(const ImageStyle& style = {true}) const {
    scratch.File("disc.iso", IsoImage(disc.Folder(), style));
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
  void ExpectUnpacked(const OpenedDisc& opened) const {
    const std::string line = "diff -r " + opened.folder.string() + " " + disc.Folder().string();
    EXPECT_EQ(std::system(line.c_str()), 0) << opened.problem;
  }

  TestDisc disc;
  const ScratchFolder scratch;
  const fs::path image = scratch.Path() / "disc.iso", cacheFolder = scratch.Path() / "home/orvanta";
  DiscCache cache{cacheFolder};
};

TEST_F(DiscImage, IsUnpackedWholeAndAgainOnlyWhenItHasChanged) {
  disc.File("Data/Zażółć gęślą jaźń.txt", "tekst");
  disc.File("empty.txt", "");
  fs::create_symlink("../empty.txt", disc.Data() / "link.txt");
  Burn();
  const fs::path first = Open().folder;
  ExpectUnpacked(Open());
  EXPECT_EQ(Copies(), 1);
  fs::remove(disc.Data() / "link.txt");
  for (const auto& [kind, named] : WriteImages(scratch, IsoImage(disc.Folder()), AudioTrack(2))) {
    const OpenedDisc opened = cache.Open(named, [](auto, auto) {});
    ExpectUnpacked(opened);
    EXPECT_EQ(access((opened.folder / "empty.txt").c_str(), X_OK | W_OK), 0) << kind;
  }
  const OpenedDisc open = Open();
  disc.File("new.txt", "new");
  Burn();
  EXPECT_TRUE(fs::exists(Open().folder / "new.txt"));
  EXPECT_TRUE(fs::exists(open.folder / "empty.txt")) << "a copy that a shell has open stays";
  EXPECT_NE(cache.Clear(), "");
  EXPECT_EQ(Copies(), 1);
}

// An old program saves beside itself, and another one destroys what it should only read.
TEST_F(DiscImage, PutsBackWhatProgramsHaveChanged) {
  disc.File("gra/poziom.dat", "level");
  Burn();
  const fs::path copy = Open().folder, lost = copy / "Data/main.gif", changed = copy / "gra/poziom.dat";
  std::ofstream(copy / "gra/wyniki.txt") << "saved";
  const auto destroy = [&] {
    fs::remove(lost);
    std::ofstream(changed) << "LEVEL";
  };
  destroy();
  EXPECT_EQ(Open().folder, copy);
  fs::remove(copy / "gra/wyniki.txt");
  ExpectUnpacked(Open());
  const OpenedDisc other = Open();
  destroy();
  Open();
  EXPECT_EQ(ContentOf(changed), "LEVEL") << "another shell is at work there";
}

// The cache stays within its limit by the copies used longest ago, except those that are open.
TEST_F(DiscImage, IsForgottenWhenTheCacheIsFull) {
  Burn();
  const std::uintmax_t size = fs::file_size(image);
  const DiscCache small(cacheFolder, size * 5 / 2);
  const auto open = [&](const std::string& name) {
    const fs::path named = scratch.Path() / name;
    if (!fs::exists(named)) fs::copy_file(image, named);
    return small.Open(named, [](auto, auto) {});
  };
  const OpenedDisc held = open("a");
  const fs::path b = open("b").folder;
  const auto longAgo = fs::last_write_time(b) - std::chrono::hours(1);
  fs::last_write_time(held.folder, longAgo - std::chrono::hours(1));
  fs::last_write_time(b, longAgo);
  const fs::path c = open("c").folder;
  EXPECT_TRUE(fs::exists(held.folder) && fs::exists(c));
  EXPECT_FALSE(fs::exists(b));
}

// Any packer's archive with one disc in it, be it a folder or an image; and sentences for those with none or
// several.
TEST_F(DiscImage, MayComeInAnArchive) {
  Burn();
  const std::string folder = disc.Folder().string(), in = "cd " + scratch.Path().string() + " && ";
  const std::string lines[] = {"7z a -bd a.7z " + folder, "7z a -bd b.zip " + folder + "/Data",
                               "7z a -bd c.zip disc.iso"};
  for (const std::string& line : lines)
    ASSERT_EQ(std::system((in + line + " >/dev/null").c_str()), 0) << line;
  for (const char* name : {"a.7z", "b.zip", "c.zip"}) {
    const fs::path named = scratch.Path() / name;
    EXPECT_TRUE(fs::exists(cache.Open(named, [](auto, auto) {}).folder / "Data/Menu.ini")) << name;
    ExpectUnpacked(cache.Open(named, [](auto, auto) {}));
    std::string problem;
    qputenv("XDG_CACHE_HOME", cacheFolder.parent_path().c_str());
    const auto tree = OpenTree(named, problem);
    ASSERT_TRUE(tree) << problem;
    EXPECT_TRUE(tree->EntryAt("Data/main.gif").size > 0 && tree->Name().native().starts_with(named.native()));
  }
  ASSERT_EQ(std::system((in + "cp disc.iso e.iso && 7z a -bd two.zip disc.iso e.iso >/dev/null").c_str()), 0);
  EXPECT_NE(cache.Open(scratch.Path() / "two.zip", [](auto, auto) {}).problem.find("several discs"),
            std::string::npos);
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
  Burn();
  fs::resize_file(image, fs::file_size(image) / 2);
  ExpectRefused("cannot be read");
  fs::create_symlink("/etc/passwd", disc.Folder() / "link");
  Burn();
  EXPECT_FALSE(fs::exists(fs::symlink_status(Open().folder / "link")));
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
  ExpectUnpacked(Open());
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
  EXPECT_NE(second.Printed().find("already running"), std::string::npos) << second.Printed();
}

}  // namespace orvanta::test
