#include <gtest/gtest.h>

#include <random>
#include <string_view>

#include "config/ProfileString.h"
#include "config/Settings.h"
#include "config/Windows1250.h"
#include "disctool/CheckedDisc.h"
#include "disctool/DiscFiles.h"

namespace orvanta::test {
namespace {

using namespace std::string_view_literals;

/// Every key of a file, by the tool's own reader.
template <class Action>
void ForEachKey(const Catalogue& catalogue, Action action) {
  for (const Catalogue::File& file : catalogue.Files())
    for (const IniSection& section : file.ini.sections)
      for (const IniEntry& entry : section.entries)
        action(FromWindows1250(section.name), FromWindows1250(entry.key));
}

TEST(Catalogue, FindsWhatTheShellFindsOnTheDemoDisc) {
  const std::filesystem::path folder = std::filesystem::path(ORVANTA_SOURCE_DIR) / "discs/demo";
  const Catalogue catalogue(folder);
  const INI_Read ini("D:\\", DiscDrive(folder));
  int keys = 0;
  ForEachKey(catalogue, [&](const std::string& section, const std::string& key) {
    ++keys;
    EXPECT_EQ(catalogue.Find(section, key).value, ini.IniRead(section, key, kMenuFile))
        << section << " " << key;
  });
  EXPECT_GT(keys, 100);
}

// The tool has a reader of its own, which must not drift from the shell's: texts made of the characters that
// decide, in thousands of orders.
TEST(Catalogue, FindsWhatTheShellFindsInWildTexts) {
  constexpr std::string_view kAlphabet = "[]==;\"' \t\x1a\v\r\n\nAaBb\xA3\xB3%:\0"sv;
  const std::vector<std::string> names = {"A", "a", "AB", "b", "\xB3", "A b", "", " a", ";a", "a]"};
  std::mt19937 random(1998);
  for (int round = 0; round < 3000; ++round) {
    std::string text(random() % 60, ' ');
    for (char& c : text) c = kAlphabet[random() % kAlphabet.size()];
    if (round % 2 == 0) text = "[a]\n" + text;
    const IniFile file = ParseIniFile(text);
    for (const std::string& section : names) {
      for (const std::string& key : names) {
        if (key.empty()) continue;  // a key without a name is never asked for
        const IniSection* in = file.Find(section);
        const IniEntry* entry = in ? in->Find(key) : nullptr;
        ASSERT_EQ(entry ? entry->value : "", ProfileStringOf(text, section, key))
            << testing::PrintToString(text) << " [" << section << "] " << key;
      }
    }
  }
}

TEST(DiscFiles, FindsWhatTheShellFinds) {
  GoodDisc disc;
  disc.File("Data/Żółw/OBRAZ.gif", "x");
  disc.File("Data/Żółw/Obraz.gif", "x");
  std::filesystem::create_symlink("nowhere", disc.Data() / "broken.gif");
  const DiscDrive drive(disc.Folder());
  FirstBytesProbe probe;
  DiscFiles files(disc.Folder(), probe);
  for (const std::string path :
       {"D:\\Data\\main.gif", "D:\\data\\MAIN.GIF", "D:\\Data\\żÓŁW\\obraz.GIF", "D:\\",
        "D:\\Data\\..\\..\\setup.exe", "D:/Data/./main.gif", "D:\\Data\\broken.gif",
        "D:\\Data\\none\\main.gif", "D:\\Data\\none.gif", "D:\\setup.exe\\x", "D:\\DATA"}) {
    const DiscFiles::Found& found = files.Find(path);
    EXPECT_EQ(found.host.path, drive.Find(path).path) << path;
    EXPECT_EQ(found.host.outcome, drive.Find(path).outcome) << path;
  }
  EXPECT_FALSE(files.Find("D:\\Data\\main.gif").otherCase);
  EXPECT_TRUE(files.Find("D:\\Data\\MAIN.gif").otherCase);
}

}  // namespace
}  // namespace orvanta::test
