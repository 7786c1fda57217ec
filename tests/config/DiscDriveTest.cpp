#include <gtest/gtest.h>

#include "config/DiscDrive.h"
#include "config/Windows1250.h"
#include "support/TemporaryFolder.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;
using Outcome = HostPath::Outcome;

/// A disc with a few files, and a file outside it that no path of the drive may reach.
class DriveTest : public ::testing::Test {
 protected:
  DriveTest() {
    folder.File("disc/Data/Menu.ini", "");
    folder.File("disc/Data/Żaba/Gęś.GIF", "");
    folder.File("disc/Programy/Setup.exe", "");
    folder.File("outside.txt", "");
  }
  ~DriveTest() override { fs::current_path(fs::temp_directory_path()); }

  /// Relative to the disc's folder, or the outcome in brackets.
  std::string Found(std::string_view path) const {
    const HostPath found = drive.Find(path);
    if (found) return found.path.lexically_relative(root).string();
    return found.outcome == Outcome::FileMissing ? "(file)" : "(folder)";
  }

  TemporaryFolder folder;
  const fs::path root = folder.Path() / "disc";
  const DiscDrive drive{root};
};

TEST_F(DriveTest, FindsNamesWithoutRegardToCase) {
  EXPECT_EQ(Found("D:\\Data\\Menu.ini"), "Data/Menu.ini");
  EXPECT_EQ(Found("d:\\DATA\\menu.INI"), "Data/Menu.ini");
  EXPECT_EQ(Found("D:/data/ŻABA\\gęŚ.gif"), "Data/Żaba/Gęś.GIF");
  EXPECT_EQ(Found("D:\\Data"), "Data");
  for (const char* path : {"D:\\", "D:", "\\"}) EXPECT_EQ(Found(path), ".") << path;
}

TEST_F(DriveTest, PrefersTheExactNameAndThenTheFirst) {
  folder.File("disc/Data/MENU.INI", "");
  folder.File("disc/Data/menu.ini", "");
  EXPECT_EQ(Found("D:\\Data\\Menu.ini"), "Data/Menu.ini");
  EXPECT_EQ(Found("D:\\data\\menu.ini"), "Data/menu.ini");
  EXPECT_EQ(Found("D:\\Data\\mENU.ini"), "Data/MENU.INI");
}

TEST_F(DriveTest, TellsAMissingFileFromAMissingFolder) {
  EXPECT_EQ(Found("D:\\Data\\None.ini"), "(file)");
  EXPECT_EQ(Found("D:\\none.exe"), "(file)");
  EXPECT_EQ(Found(""), "(file)");
  EXPECT_EQ(Found("D:\\None\\Menu.ini"), "(folder)");
  EXPECT_EQ(Found("D:\\Data\\Menu.ini\\x"), "(folder)");
  for (const char* path :
       {"E:\\Data\\Menu.ini", "1:\\x", "::", "\\\\server\\share\\x", "//server/x", "\\:\\x"}) {
    EXPECT_EQ(Found(path), "(folder)") << path;
  }
}

TEST_F(DriveTest, NeverClimbsAboveItsRoot) {
  EXPECT_EQ(Found("D:\\..\\..\\Data\\.\\Żaba\\..\\Menu.ini"), "Data/Menu.ini");
  EXPECT_EQ(Found("D:..\\outside.txt"), "(file)");
  EXPECT_EQ(Found("\\..\\outside.txt"), "(file)");
  EXPECT_EQ(Found("D:\\None\\..\\Data\\\\Menu.ini"), "Data/Menu.ini");
  fs::current_path(root / "Data");
  EXPECT_EQ(Found("..\\..\\outside.txt"), "(file)");
}

TEST_F(DriveTest, BeginsAtTheCurrentDirectoryWithoutADrive) {
  fs::current_path(root / "Programy");
  EXPECT_EQ(Found("setup.EXE"), "Programy/Setup.exe");
  EXPECT_EQ(Found("..\\data\\menu.ini"), "Data/Menu.ini");
  EXPECT_EQ(Found("\\Data\\Menu.ini"), "Data/Menu.ini");
  EXPECT_EQ(Found("D:Data\\Menu.ini"), "Data/Menu.ini");
  fs::current_path(folder.Path());
  EXPECT_EQ(Found("OUTSIDE.txt"), "../outside.txt");
  EXPECT_EQ(Found("DISC\\data"), "Data");
}

TEST_F(DriveTest, FollowsLinksAsTheHostDoes) {
  fs::create_directory_symlink("Data", root / "Linked");
  fs::create_symlink("nowhere", root / "Broken");
  fs::create_directory_symlink("Round", root / "Round");
  EXPECT_EQ(Found("D:\\linked\\menu.ini"), "Linked/Menu.ini");
  EXPECT_EQ(Found("D:\\broken"), "(file)");
  EXPECT_EQ(Found("D:\\broken\\x"), "(folder)");
  EXPECT_EQ(Found("D:\\round\\x"), "(folder)");
}

TEST_F(DriveTest, IsNotUpsetByAbsurdPaths) {
  EXPECT_FALSE(drive.Find(std::string_view("D:\\Data\\Menu.ini\0x", 18)));
  EXPECT_FALSE(drive.Find("D:\\" + std::string(300, 'x')));
  EXPECT_FALSE(drive.Find("D:\\" + std::string(1 << 20, '\\') + "Data"));
  std::string deep = "D:";
  for (int i = 0; i < 5000; ++i) deep += "\\x";
  EXPECT_EQ(Found(deep), "(folder)");
  for (int i = 0; i < 5000; ++i) deep += "\\..";
  EXPECT_EQ(Found(deep + "\\Data"), "Data");
  for (const char* path : {"D:\\\xFF\xFE", "D:\\*", "D:\\?", "D:\\ ", "D:\\Data\\Menu.ini:x", "D:\\\n"}) {
    EXPECT_FALSE(drive.Find(path)) << path;
  }
}

TEST_F(DriveTest, TakesAnotherLetter) {
  const DiscDrive other(root, 'g');
  EXPECT_TRUE(other.Find("G:\\Data\\Menu.ini"));
  EXPECT_FALSE(other.Find("D:\\Data\\Menu.ini"));
}

}  // namespace
}  // namespace orvanta::test
