#include <gtest/gtest.h>

#include <QImage>
#include <random>

#include "desktop/DiscToolProcess.h"
#include "desktop/ScratchFolder.h"
#include "disctool/GifFile.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

TEST(DiscToolNew, MakesADiscInWhichNothingIsToBeMended) {
  const ScratchFolder scratch;
  const std::string disc = Quoted(scratch.path / "nowa płyta");
  ASSERT_EQ(RunTool("new " + disc).status, 0);
  const ToolRun check = RunTool("check --strict " + disc);
  EXPECT_EQ(check.status, 0) << check.output;
  EXPECT_EQ(check.output, "");
  EXPECT_EQ(RunTool("get " + disc + " HEADLINE Caption").output, "Nowa płyta\n");
  const ToolRun tree = RunTool("tree " + disc);
  for (const char* kind : {"[program]", "[music]", "[film]"})
    EXPECT_NE(tree.output.find(kind), std::string::npos);
  const ToolRun again = RunTool("new " + disc);
  EXPECT_EQ(again.status, 1) << "what is there is not written over";
  EXPECT_EQ(RunTool("new /dev/null/x").status, 1);
}

// What is broken is found with the tool's own eyes and ears, not by its name.
TEST(DiscToolNew, MakesADiscWhoseBrokenFilesAreFound) {
  const ScratchFolder scratch;
  const fs::path disc = scratch.path / "disc";
  ASSERT_EQ(RunTool("new " + Quoted(disc)).status, 0);
  fs::resize_file(disc / "Data/help.gif", fs::file_size(disc / "Data/help.gif") / 2);
  fs::resize_file(disc / "Data/szyld.ttf", 1000);
  fs::resize_file(disc / "film.avi", 100);
  fs::copy_file(disc / "czytaj.txt", disc / "Data/Sound/start.wav", fs::copy_options::overwrite_existing);
  const ToolRun check = RunTool("check " + Quoted(disc));
  EXPECT_EQ(check.status, 1);
  for (const char* fault :
       {"HelpB of [GLOBAL] cannot be read as a picture", "FontFile of [MENUITEM] cannot be read",
        "Parameters of [Film] cannot be played as a film", "Start of [VOICES] cannot be played"})
    EXPECT_NE(check.output.find(fault), std::string::npos) << fault << "\n" << check.output;
}

TEST(GifFile, IsReadAsItWasWritten) {
  std::mt19937 random(5);
  for (const Size size : {Size{1, 1}, Size{3, 2}, Size{300, 200}}) {
    for (const unsigned variety :
         {1U, 2U, 256U}) {  // noise fills the table of codes, one colour makes them long
      std::vector<std::uint8_t> pixels(static_cast<std::size_t>(size.width * size.height));
      std::vector<GifColour> colours(256);
      for (auto& colour : colours)
        for (auto& part : colour) part = static_cast<std::uint8_t>(random());
      for (auto& pixel : pixels) pixel = static_cast<std::uint8_t>(random() % variety);
      const std::string file = GifFile(size, pixels, colours);
      const QImage read = QImage::fromData(QByteArray::fromStdString(file), "GIF");
      ASSERT_EQ(read.size(), QSize(size.width, size.height));
      for (std::size_t i = 0; i < pixels.size(); ++i) {
        const int at = static_cast<int>(i);
        const GifColour& c = colours[pixels[i]];
        ASSERT_EQ(read.pixel(at % size.width, at / size.width), qRgb(c[0], c[1], c[2]))
            << variety << " " << i;
      }
      EXPECT_EQ(WholeGifSize(file), size);
    }
  }
}

TEST(GifFile, CutAnywhereIsNotWhole) {
  const std::vector<std::uint8_t> pixels(40 * 30, 1);
  const std::string file = GifFile({40, 30}, pixels, {{1, 2, 3}, {4, 5, 6}});
  for (std::size_t length = 0; length + 1 < file.size(); ++length)
    EXPECT_FALSE(WholeGifSize(std::string_view(file).substr(0, length))) << length;
  EXPECT_FALSE(WholeGifSize("GIF89a" + std::string(7, '\xFF') + ","));
}

}  // namespace
}  // namespace orvanta
