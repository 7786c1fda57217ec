// Random users of random discs, and of discs with one fault. ORVANTA_MONKEY_STEPS sets how many steps the
// first test makes in all, ORVANTA_MONKEY_SEED where it starts. A failure reports the seed that repeats it in
// a short run.

#include <gtest/gtest.h>

#include <cstdlib>

#include "monkey/Monkey.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

long Setting(const char* name, long otherwise) {
  const char* text = std::getenv(name);
  return text ? std::atol(text) : otherwise;
}

TEST(Monkey, LeavesTheProgramWhole) {
  const long wanted = Setting("ORVANTA_MONKEY_STEPS", 100000);
  Figures figures;
  for (long seed = Setting("ORVANTA_MONKEY_SEED", 1); figures.steps < wanted; ++seed) {
    Random random(static_cast<std::uint32_t>(seed));
    const bool isWellFormed = Below(random, 2) == 0;
    MonkeyDisc disc(random, isWellFormed);
    if (!isWellFormed) disc.Spoil(random);
    for (const long end = std::min(wanted, figures.steps + 4000); figures.steps < end;) {
      const long before = figures.steps;
      ASSERT_NO_THROW(ASSERT_EQ(LiveAsAMonkey(disc, random, 1500, figures), "")) << "seed " << seed;
      ASSERT_GT(figures.steps, before) << "seed " << seed << ": the program ended by itself";
    }
  }
  // A monkey that gets nowhere would find nothing.
  EXPECT_GT(figures.windows, 0);
  EXPECT_GT(figures.waits, 0);
}

/// A disc with an entry of each kind and a list that needs the slider.
struct BadDisc : testing::Test {
  BadDisc() {
    disc.Menu("MAINMENU", {"Szachy", "Walc", "Kino", "Gry"});
    disc.Menu("Gry", std::vector<std::string>(14, "Szachy"));
    disc.Entry("Szachy", {{"Execute", "%:\\gra.exe"}, {"Parameters", "-x"}, {"Note", "Gra"}});
    disc.Shots("Szachy", 4);
    disc.Entry("Walc", {{"PlayAs", "MUSIC"}, {"Parameters", "%:\\Data\\Sound\\song.wav"}});
    disc.Entry("Kino", {{"PlayAs", "FILM"}, {"Parameters", "%:\\film.avi"}});
  }
  /// A short run on the disc as it is now, which must end without a violation.
  void Use(const std::string& fault) {
    Figures figures;
    ASSERT_NO_THROW(ASSERT_EQ(LiveAsAMonkey(disc, random, 100, figures), "")) << fault;
    ASSERT_GT(figures.steps, 0) << fault;
  }

  Random random;
  MonkeyDisc disc{random, false};
};

TEST_F(BadDisc, LacksAnyOneKeyOrHasGarbageInIt) {
  for (const auto& [section, key] : disc.Keys()) {
    const std::string value = disc.Value(section, key);
    disc.Remove(section, key);
    Use("no " + key);
    // Text that is not a number counts the same as a missing key.
    const bool number = value.find_first_not_of("0123456789") == value.npos;
    for (const std::string garbage : {number ? "-99999999999" : "%:\\..\\żółw*?<>|\\", "99999999999"}) {
      disc.Set(section, key, garbage);
      Use(key + "=" + garbage);
    }
    disc.Set(section, key, value);
  }
}

TEST_F(BadDisc, HasAnyOneFileCutOffGoneOrReplaced) {
  EXPECT_GT(disc.Files().size(), 60U);
  std::vector<fs::path> files = disc.Files();
  files.emplace_back("Data/Menu.ini");
  for (const fs::path& file : files) {
    const fs::path place = disc.Folder() / file, kept = disc.Folder() / "kept";
    fs::rename(place, kept);
    Use("no " + file.string());
    fs::create_directory(place);
    Use("a folder in place of " + file.string());
    fs::remove(place);
    fs::create_symlink(place, place);
    Use("nothing to be read in place of " + file.string());
    fs::remove(place);
    disc.File(file, "GIF89a\x20");
    Use("no more of " + file.string());
    fs::rename(kept, place);
  }
  disc.File("Data/Menu.ini", std::string(100000, '\0'));
  Use("zeros for settings");
  fs::remove_all(disc.Data());
  Use("no Data");
}

}  // namespace
}  // namespace orvanta::test
