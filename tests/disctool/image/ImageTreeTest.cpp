// Discs that are images, read in place.

#include <gtest/gtest.h>

#include <sstream>

#include "config/Windows1250.h"
#include "disctool/check/CheckedDisc.h"
#include "disctool/command/DiscCommands.h"
#include "disctool/image/volume/OpenImage.h"
#include "support/ImageWriter.h"

namespace orvanta::test {

namespace fs = std::filesystem;

struct ImageTreeTest : testing::Test {
  std::unique_ptr<DiscTree> Open(const std::string& bytes) {
    return OpenImage(folder.File("disc.iso", bytes), problem);
  }
  /// Everything that is reported about a disc, without its name.
  static std::string SaidOf(const DiscTree& tree) {
    FirstBytesProbe probe;
    std::ostringstream said;
    said << CheckReport(tree, probe, {}).text << TreeReport(tree, false, false).text;
    GetCommand(tree, "HEADLINE", "Caption", said);
    std::string text = said.str(), name = tree.Name();
    for (auto at = text.find(name); at != text.npos; at = text.find(name, at)) text.erase(at, name.size());
    return text;
  }
  GoodDisc disc;
  const TemporaryFolder folder;
  std::string problem;
};

// Whatever the faults of a disc, its image has the same ones at the same places.
TEST_F(ImageTreeTest, IsReportedLikeItsFolder) {
  disc.Set("Gra", "Shot2", "nowhere.gif");
  disc.Set("Muzyka", "Parameters", "%:\\data\\sound\\LOOP.wav");
  const std::string expected = SaidOf(FolderTree(disc.Folder()));
  ASSERT_NE(expected.find("/Data/Menu.ini:"), expected.npos);
  for (const auto& [rockRidge, joliet] : {std::pair(false, false), {true, false}, {false, true}})
    EXPECT_EQ(SaidOf(*Open(IsoImage(disc.Folder(), {rockRidge, joliet}))), expected) << rockRidge << joliet;
  const std::string iso = IsoImage(disc.Folder());
  for (const auto& [stride, userData] : {std::pair(2352U, 16U), {2352, 24}, {2336, 8}, {2448, 16}})
    EXPECT_EQ(SaidOf(*Open(InSectors(iso, stride, userData, userData == 24 ? 150 : 0))), expected) << stride;
}

// Installers recognise their disc by it.
TEST_F(ImageTreeTest, HasTheSerialNumberThatWindowsWouldShow) {
  constexpr std::size_t kBlock = 2048, kPrimary = 16 * kBlock, kJoliet = 17 * kBlock;
  for (const bool joliet : {false, true}) {
    std::string iso = IsoImage(disc.Folder(), {.joliet = joliet});
    const std::size_t at = joliet ? kJoliet : kPrimary;
    const std::uint32_t before = Open(iso)->Serial().value();
    iso[at + 1201] = static_cast<char>(iso[at + 1201] + 1);
    EXPECT_EQ(Open(iso)->Serial().value() >> 16 & 0xFF, ((before >> 16) + 1) & 0xFF);
    iso[at + 1204] = static_cast<char>(iso[at + 1204] + 0xFF);
    EXPECT_EQ(Open(iso)->Serial().value() >> 24, ((before >> 24) + 0xFF) & 0xFF) << "no carry";
  }
}

// Polish discs have their names in any of three encodings, and the settings name files in a fourth.
TEST_F(ImageTreeTest, FindsPolishNamesHoweverTheyAreWritten) {
  const std::string name = "Zażółć GĘŚLĄ jaźń.txt";
  const std::string cp852 = "Za\xBE\xA2\x88\x86 G\xA8\x97L\xA4 ja\xAB\xE4.txt";
  disc.File(name, "tekst");
  const auto in1250 = [](const std::string& utf8) { return ToWindows1250(utf8).value(); };
  const auto in852 = [&](const std::string& utf8) { return utf8 == name ? cp852 : utf8; };
  const auto damaged = [&](const std::string& utf8) {
    return utf8 == name ? "Za____ G__L_ ja__\xFF.txt" : utf8;
  };
  const ImageStyle styles[] = {{false, false},        {true, false},         {false, false, in1250},
                               {true, false, in1250}, {true, false, in852},  {false, false, in852},
                               {true, true, damaged}, {false, true, damaged}};
  for (const ImageStyle& style : styles)
    EXPECT_EQ(Open(IsoImage(disc.Folder(), style))->Read(name), "tekst") << &style - styles;
}

TEST_F(ImageTreeTest, FollowsLinksWithinTheImageAlone) {
  for (const auto& [link, target] : {std::pair("again.gif", "../Data/./main.gif"),
                                     {"Data/deep", ".."},
                                     {"out", "../../../etc/passwd"},
                                     {"root", "/etc/passwd"},
                                     {"loop", "loop"}})
    fs::create_symlink(target, disc.Folder() / (link == std::string("again.gif") ? "Data/again.gif" : link));
  const auto tree = Open(IsoImage(disc.Folder(), {true}));
  EXPECT_EQ(tree->Read("Data/deep/Data/again.gif"), TextOf(disc.Data() / "main.gif"));
  for (const char* link : {"out", "root", "loop", "Data/deep/../.."})
    EXPECT_EQ(tree->EntryAt(link).kind, DiscTree::Kind::Missing) << link;
}

// The host gets complete copies with the same extensions, which are removed with the disc.
TEST_F(ImageTreeTest, LendsFilesToTheHost) {
  disc.File("long.bin", std::string(3'000'001, 'x'));
  auto tree = Open(InSectors(IsoImage(disc.Folder()), 2352, 16));
  const fs::path copy = tree->OnHost("long.bin");
  EXPECT_EQ(copy.extension(), ".bin");
  EXPECT_EQ(TextOf(copy), TextOf(disc.Folder() / "long.bin"));
  EXPECT_EQ(tree->Read("long.bin", 2'999'999), "xx");
  EXPECT_EQ(tree->OnHost("Data"), fs::path());
  tree.reset();
  EXPECT_FALSE(fs::exists(copy.parent_path()));
}

// A truncated image, or one with impossible values, is read as far as possible.
TEST_F(ImageTreeTest, SurvivesADamagedImage) {
  const TemporaryFolder small;
  small.File("Data/Menu.ini", "[HEADLINE]\r\nCaption=x\r\n");
  const std::string iso = IsoImage(small.Path(), {true, true});
  std::size_t read = 0;
  const auto tell = [&](const std::string& image) {
    const auto tree = Open(image);
    if (tree && tree->List("Data").size() == 1) read += Catalogue(*tree).Empty() ? 0 : 1;
  };
  for (std::size_t size = iso.size(); size > 0; size -= 2048) tell(iso.substr(0, size));
  for (std::size_t at = 16 * 2048; at + 4 < iso.size(); at += 23) {
    std::string hurt = iso;
    tell(hurt.replace(at, 4, "\xFF\xFF\xFF\xFF"));
  }
  EXPECT_GT(read, 10U);
  EXPECT_FALSE(Open("no image"));
  EXPECT_NE(problem.find("disc.iso: "), problem.npos);
}

}  // namespace orvanta::test
