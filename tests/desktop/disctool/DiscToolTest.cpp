// The tool for discs as its user runs it: its commands, the gallery and new discs.

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <sstream>

#include "desktop/media/MediaFiles.h"
#include "desktop/support/Processes.h"
#include "desktop/support/Programs.h"
#include "support/TestDisc.h"

namespace orvanta::test {

namespace fs = std::filesystem;

struct DiscTool : testing::Test {
  /// Runs the tool with arguments as a shell takes them, and gives its status; `environment` is for `env`.
  int Run(const std::string& arguments, const std::string& environment = "") {
    const fs::path said = scratch.Path() / "said";
    const std::string line = "(env " + environment + " " + DiscToolProgram() + " " + arguments + ") >'" +
                             said.string() + "' 2>&1 </dev/null";
    const int status = std::system(line.c_str());
    output = ContentOf(said);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  bool Told(const std::string& text) const { return output.find(text) != output.npos; }
  /// The pictures whose files begin so, as the page shows them: laid on their ground where they have one.
  std::vector<QImage> Pictures(const std::string& begin) const {
    const auto load = [this](const std::string& file) { return QImage(QString::fromStdString(out / file)); };
    std::vector<QImage> pictures;
    std::istringstream list(ContentOf(out / "gallery.list"));
    std::string line, file, width, height, ground;
    std::getline(list, line);
    while (std::getline(list, line)) {
      std::istringstream words(line);
      words >> file >> width >> height;
      if (!file.starts_with("pictures/" + begin)) continue;
      QImage picture =
          load(words >> ground ? ground : file).convertToFormat(QImage::Format_ARGB32_Premultiplied);
      QPainter(&picture).drawImage(0, 0, load(file));
      pictures.push_back(picture);
    }
    return pictures;
  }
  TestDisc disc;
  const ScratchFolder scratch;
  const fs::path out = scratch.Path() / "nowa płyta";
  const std::string there = "'" + out.string() + "'", folder = disc.Folder();
  std::string output;
};

TEST_F(DiscTool, TellsMisuseFromFaults) {
  for (const std::string& misuse :
       {std::string(), std::string("bogus"), std::string("tree"), "gallery " + folder,
        "tree --strict " + folder, "get " + folder + " GLOBAL"})
    EXPECT_EQ(Run(misuse), 2) << misuse;
  EXPECT_EQ(Run("tree /nowhere"), 4);
  EXPECT_EQ(Run("tree " + folder + " >/dev/full"), 1) << "what was not written is no success";
  EXPECT_EQ(Run("get " + folder + " HEADLINE Caption"), 0);
  EXPECT_EQ(output, "Płyta próbna\n");
  EXPECT_EQ(Run("--help"), 0);
  for (const char* command :
       {"open", "info", "check", "tree", "find", "diff", "gallery", "library", "export", "get", "new"})
    EXPECT_TRUE(Told(std::string("\n  ") + command + " "));
  EXPECT_EQ(Run("open " + folder, "-u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM"), 1);
  EXPECT_TRUE(Told("no display"));
  // Unpacking needs UTF-8 for the names, and must leave the language alone.
  const fs::path image = scratch.File("cut.iso", "CD001");
  EXPECT_EQ(Run("gallery " + image.string() + " " + there, "LC_ALL=C.UTF-8 LANGUAGE=pl"), 1);
  EXPECT_TRUE(Told("to nie jest obraz płyty")) << output;
}

// No display: what is there to see needs none.
TEST_F(DiscTool, TheGalleryShowsEveryViewOfADisc) {
  // Four seconds; the picture of the second one carries the number 50.
  const MediaFiles media;
  disc.File("film.avi", ContentOf(media.Film("film.avi", std::vector(8, 440), "-c:v mjpeg -c:a pcm_s16le")));
  disc.Menu("MAINMENU", {"Długa <lista>", "Film", "Nic"});
  std::vector<std::string> items(30, "Gra & spółka");
  items[29] = "MAINMENU";
  disc.Menu("Długa <lista>", items);
  disc.Entry("Gra & spółka", {{"Execute", "%:\\setup.exe"}});
  for (const char* shot : {"Shot2", "Shot3", "Shot4", "Shot5"}) disc.Set("Gra & spółka", shot, "shot.gif");
  disc.Entry("Film", {{"PlayAs", "MOVIE"}, {"Parameters", "%:\\film.avi"}});
  ASSERT_EQ(Run("gallery " + folder + " " + there, "-u DISPLAY -u WAYLAND_DISPLAY"), 0) << output;
  // The start screen, help in two parts, the other page, the first menu, a list of thirty, the film and its
  // cinema, what leads nowhere, an entry in two parts and the one file of all its screenshots.
  const std::size_t expected[] = {1, 2, 1, 1, 4, 2, 0, 3};
  for (std::size_t i = 0; i < 8; ++i)
    EXPECT_EQ(Pictures("0000" + std::to_string(i)).size(), expected[i]) << i;
  const QImage cinema = Pictures("00005-2").at(0);
  int number = 0;
  for (int bar = 0; bar < 8; ++bar) number |= qGray(cinema.pixel(230 + 20 * bar, 200)) > 128 ? 1 << bar : 0;
  EXPECT_NEAR(number, 50, 1) << "a picture of the film on the screen";
  const QImage menu = Pictures("00003-1").at(0);
  EXPECT_EQ(menu.pixelColor(0, 0).alpha(), 0) << "cut off by the outline";
  EXPECT_EQ(menu.pixelColor(300, 20), QColor(0x40, 0x60, 0x80)) << "the main picture";
  const auto list = Pictures("00004");
  for (std::size_t i = 1; i < list.size(); ++i) EXPECT_NE(list[i - 1], list[i]) << "not scrolled";
  output = ContentOf(out / "index.html");
  EXPECT_TRUE(Told("<title>Płyta próbna</title>") && Told("Gra &amp; spółka") && !Told("<lista>")) << output;
}

// Whoever is interrupted, or changes a disc, does not begin anew; whoever mistypes a folder loses nothing.
TEST_F(DiscTool, AGalleryGoesOnWhereItStoodAndTouchesNoOtherFolder) {
  ASSERT_EQ(Run("gallery " + folder + " " + there), 0) << output;
  const std::string list = ContentOf(out / "gallery.list"), page = ContentOf(out / "index.html");
  const fs::path kept = out / "pictures/00000-1.png", lost = out / "pictures/00003-1.png";
  const auto written = fs::last_write_time(kept);
  fs::remove(lost);
  std::ofstream(out / "pictures/half.png.part") << "x";
  ASSERT_EQ(Run("gallery " + folder + " " + there), 0) << output;
  EXPECT_EQ(ContentOf(out / "gallery.list"), list);
  EXPECT_EQ(ContentOf(out / "index.html"), page);
  EXPECT_TRUE(fs::exists(lost));
  EXPECT_FALSE(fs::exists(out / "pictures/half.png.part"));
  EXPECT_EQ(fs::last_write_time(kept), written);
  disc.Entry("Nowa", {{"Execute", "%:\\setup.exe"}, {"Note", "Opis nowej pozycji"}});
  disc.Menu("MAINMENU", {"Nowa"});
  ASSERT_EQ(Run("gallery " + folder + " " + there), 0) << output;
  EXPECT_NE(ContentOf(out / "index.html").find("Opis nowej pozycji"), std::string::npos);
  EXPECT_NE(fs::last_write_time(kept), written) << "another disc, other pictures";

  std::ofstream(scratch.Path() / "list") << "x";
  EXPECT_EQ(Run("gallery " + folder + " '" + scratch.Path().string() + "'"), 1);
  EXPECT_TRUE(Told("not empty")) << output;
  EXPECT_EQ(ContentOf(scratch.Path() / "list"), "x");
}

// A bad disc does not stop the others, and what has not changed is not made again.
TEST_F(DiscTool, ALibraryHoldsManyDiscsAndRenewsWhatHasChanged) {
  TestDisc second;
  second.Entry("Żółw", {{"Execute", "%:\\setup.exe"}});
  second.Menu("MAINMENU", {"Żółw"});
  const std::string other = second.Folder();
  EXPECT_EQ(Run("library " + there + " " + folder + " /nowhere " + other), 1);
  EXPECT_TRUE(Told("/nowhere")) << output;
  const std::string index = ContentOf(out / "search-index.js"), page = ContentOf(out / "index.html");
  EXPECT_NE(index.find("Żółw"), std::string::npos);
  EXPECT_NE(page.find("płyty: 2"), std::string::npos) << page;
  const auto galleries = [this] {
    std::vector<fs::file_time_type> times;
    for (const auto& gallery : fs::directory_iterator(out / "discs"))
      if (fs::exists(gallery.path() / "index.html"))
        times.push_back(fs::last_write_time(gallery.path() / "gallery.list"));
    return times;
  };
  const auto before = galleries();
  ASSERT_EQ(Run("library " + there + " " + other), 0) << output;
  EXPECT_EQ(ContentOf(out / "index.html"), page) << "a disc that is not named again stays";
  EXPECT_EQ(galleries(), before);
  second.Entry("Żółw", {{"Execute", "%:\\setup.exe"}, {"Note", "Powoli"}});
  ASSERT_EQ(Run("library " + there + " " + other), 0) << output;
  EXPECT_NE(ContentOf(out / "search-index.js").find("Powoli"), std::string::npos);
}

TEST_F(DiscTool, AnExportConvertsOnceWhatBrowsersCannotPlay) {
  disc.File("loop.au", ContentOf(MediaFiles().Sound("loop.au", {440}, "-c:a pcm_mulaw")));
  scratch.File("index.html", "<script src=\"page.js\"></script>script-src 'self'");
  scratch.File("page.js", "let end = '</script>';");
  scratch.File("page.css", "p {}");
  scratch.File("orvanta.wasm", "program");
  const std::string from = "export --page " + scratch.Path().string() + " ";
  ASSERT_EQ(Run(from + folder + " " + there), 0) << output;
  const std::string index = ContentOf(out / "disc.json");
  EXPECT_NE(index.find("\"Data/Menu.ini\": {\"size\": "), std::string::npos) << index;
  const auto at = index.find("media/");
  ASSERT_NE(at, std::string::npos) << index;
  const fs::path converted = out / index.substr(at, index.find('"', at) - at);
  EXPECT_EQ(ContentOf(converted).substr(0, 4), "OggS");
  EXPECT_FALSE(fs::exists(out / "disc" / "loop.au")) << "nobody plays the original";
  const auto made = fs::last_write_time(converted);
  ASSERT_EQ(Run(from + folder + " " + there), 0) << output;
  EXPECT_EQ(fs::last_write_time(converted), made);
  EXPECT_EQ(Run(from + folder + " " + scratch.Path().string()), 1) << "a folder of other things";
  ASSERT_EQ(Run(from + "--single-file " + folder + " " + there + ".html"), 0) << output;
  const std::string html = ContentOf(out.string() + ".html");
  EXPECT_EQ(html.find("src="), std::string::npos);
  EXPECT_NE(html.find("script-src 'sha256-"), std::string::npos) << html.substr(0, 400);
  EXPECT_NE(html.find("'<\\/script>'"), std::string::npos) << "the script would end there";
}

// Wide open numbers, missing art, a page of 40,000 pixels, a chain of menus deeper than the disc allows.
TEST_F(DiscTool, TheGalleryComesBackFromAHostileDisc) {
  disc.Remove("GLOBAL", "MainGfx");
  disc.Set("SLIDER", "YMax", "2147483647");
  disc.Picture("help.gif", 4, 40000);
  disc.Menu("MAINMENU", {"n0", "MAINMENU", "n0"});
  for (int i = 0; i < 40; ++i) disc.Menu("n" + std::to_string(i), {"n" + std::to_string(i + 1), "n0"});
  disc.Entry("n40", {{"PlayAs", "x"}});
  EXPECT_EQ(Run("gallery " + folder + " " + there, "-u DISPLAY -u WAYLAND_DISPLAY"), 0) << output;
  EXPECT_GT(Pictures("").size(), 43U);
  EXPECT_LT(Pictures("").size(), 250U);
}

// What is broken is found with the tool's own eyes and ears, not by its name.
TEST_F(DiscTool, ANewDiscIsWholeUntilItIsBroken) {
  ASSERT_EQ(Run("new " + there), 0);
  EXPECT_EQ(Run("check --strict " + there), 0);
  EXPECT_EQ(output, "");
  Run("tree " + there);
  EXPECT_TRUE(Told("[program]") && Told("[music]") && Told("[film]")) << output;
  EXPECT_EQ(Run("new " + there), 1) << "written over";
  for (const auto& [file, size] :
       {std::pair{"Data/help.gif", 2000}, {"Data/szyld.ttf", 1000}, {"film.avi", 100}})
    fs::resize_file(out / file, static_cast<std::uintmax_t>(size));
  fs::copy_file(out / "czytaj.txt", out / "Data/Sound/start.wav", fs::copy_options::overwrite_existing);
  EXPECT_EQ(Run("check " + there), 1);
  for (const char* fault :
       {"HelpB of [GLOBAL] cannot be read as a picture", "FontFile of [MENUITEM] cannot be read",
        "Parameters of [Film] cannot be played as a film", "Start of [VOICES] cannot be played"})
    EXPECT_TRUE(Told(fault)) << fault << "\n" << output;
}

}  // namespace orvanta::test
