#include <gtest/gtest.h>

#include <QImage>
#include <set>

#include "desktop/DiscToolProcess.h"
#include "desktop/MediaFiles.h"
#include "desktop/ScratchFolder.h"
#include "support/TestDisc.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;
using test::TestDisc;

// No display: what is there to see needs none.
constexpr const char* kNoDisplay = "-u DISPLAY -u WAYLAND_DISPLAY";

std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++count;
  return count;
}

/// The names of the pictures whose files begin so.
std::vector<std::string> Pictures(const fs::path& folder, const std::string& begin = {}) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder))
    if (const auto name = entry.path().filename().string(); name.starts_with(begin) && name.ends_with(".png"))
      names.insert(name);
  return {names.begin(), names.end()};
}

QImage PictureIn(const fs::path& folder, const std::string& name) {
  return QImage(QString::fromStdString((folder / name).string()));
}

TEST(DiscToolGallery, ShowsEveryViewOfADisc) {
  TestDisc disc;
  // Four seconds long; the picture of the second one carries the number 50.
  const MediaFiles media;
  const auto film = media.Film("film.avi", "-c:v mjpeg -c:a pcm_s16le", MediaFiles::Tones(8, kA4));
  disc.File("film.avi", ScratchFolder::contentOf(film));
  disc.Menu("MAINMENU", {"Długa <lista>", "Film", "Nic"});
  std::vector<std::string> items(30, "Gra & spółka");
  items[29] = "MAINMENU";
  disc.Menu("Długa <lista>", items);
  disc.Entry("Gra & spółka", {{"Execute", "%:\\setup.exe"},
                              {"Shot2", "shot.gif"},
                              {"Shot3", "shot.gif"},
                              {"Shot4", "shot.gif"},
                              {"Shot5", "shot.gif"}});
  disc.Entry("Film", {{"PlayAs", "MOVIE"}, {"Parameters", "%:\\film.avi"}});
  const ScratchFolder scratch;
  const fs::path out = scratch.path / "gallery";
  const ToolRun run = RunTool("gallery " + Quoted(disc.Folder()) + " " + Quoted(out), kNoDisplay);
  ASSERT_EQ(run.status, 0) << run.output;

  EXPECT_EQ(PictureIn(out, "00000-1.png").size(), QSize(640, 478)) << "the start screen";
  EXPECT_EQ(Pictures(out, "00001").size(), 2U) << "600 pixels of help through 309 of the window";
  EXPECT_EQ(Pictures(out, "00002").size(), 1U) << "the other page";
  EXPECT_EQ(Pictures(out, "00003").size(), 1U) << "the first menu";
  EXPECT_EQ(Pictures(out, "00004").size(), 4U) << "a list of thirty";
  EXPECT_EQ(Pictures(out, "00005").size(), 3U) << "the film, its screenshot and its cinema";
  EXPECT_EQ(Pictures(out, "00006").size(), 0U) << "nothing to see";
  EXPECT_EQ(Pictures(out, "00007").size(), 7U) << "an entry and its five screenshots, shown once";
  const QImage cinema = PictureIn(out, "00005-3.png");
  ASSERT_EQ(cinema.size(), QSize(600, 450));
  int number = 0;
  for (int bar = 0; bar < kFrameBars; ++bar)
    number |= qGray(cinema.pixel(220 + 20 * bar + 10, 200)) > 128 ? 1 << bar : 0;
  EXPECT_NEAR(number, 50, 1) << "a picture of the film on the screen";
  const QImage menu = PictureIn(out, "00003-1.png");
  EXPECT_EQ(menu.size(), QSize(667, 496));
  EXPECT_EQ(menu.pixelColor(0, 0).alpha(), 0) << "cut off by the outline";
  EXPECT_EQ(menu.pixelColor(300, 20), QColor(0x40, 0x60, 0x80)) << "the main picture";

  // No two positions of a scrolled list look the same.
  const auto list = Pictures(out, "00004");
  for (std::size_t i = 1; i < list.size(); ++i)
    EXPECT_NE(PictureIn(out, list[i - 1]), PictureIn(out, list[i]));

  const std::string page = ScratchFolder::contentOf(out / "index.html");
  EXPECT_NE(page.find("<title>Płyta próbna</title>"), page.npos);
  EXPECT_EQ(Count(page, "<img "), Pictures(out).size());
  EXPECT_EQ(page.find("<lista>"), page.npos) << "captions are text, not markup";
  EXPECT_NE(page.find("Gra &amp; spółka"), page.npos);
}

TEST(DiscToolGallery, GoesDownAHostileDiscAndComesBack) {
  TestDisc disc;
  // Wide open numbers, missing art, a page of 2^16 pixels, a chain of menus deeper than the disc allows.
  disc.Remove("GLOBAL", "MainGfx");
  disc.Set("SLIDER", "YMax", "2147483647");
  disc.Picture("help.gif", 4, 40000);
  disc.Menu("MAINMENU", {"n0", "MAINMENU", "n0"});
  for (int i = 0; i < 40; ++i) disc.Menu("n" + std::to_string(i), {"n" + std::to_string(i + 1), "n0"});
  disc.Entry("n40", {{"PlayAs", "x"}});
  const ScratchFolder scratch;
  const ToolRun run = RunTool("gallery " + Quoted(disc.Folder()) + " " + Quoted(scratch.path), kNoDisplay);
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_GT(Pictures(scratch.path).size(), 43U);
  EXPECT_LT(Pictures(scratch.path).size(), 250U);
}

TEST(DiscToolGallery, TouchesNoFolderThatHoldsSomething) {
  const TestDisc disc;
  const ScratchFolder scratch;
  scratch.file("mine.txt", "mine");
  EXPECT_EQ(RunTool("gallery " + Quoted(disc.Folder()) + " " + Quoted(scratch.path)).status, 1);
  EXPECT_EQ(RunTool("gallery " + Quoted(scratch.path) + " " + Quoted(scratch.path / "new")).status, 1);
  EXPECT_EQ(std::distance(fs::directory_iterator(scratch.path), fs::directory_iterator()), 1);
}

}  // namespace
}  // namespace orvanta
