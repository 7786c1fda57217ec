// Shortcuts that a disc brings from the Windows on which it was made.

#include <gtest/gtest.h>

#include "launcher/RequestFor.h"
#include "launcher/Shortcut.h"
#include "support/TemporaryFolder.h"

namespace orvanta::test {
namespace {

std::string Number(std::size_t value, std::size_t bytes) {
  std::string number;
  for (; number.size() < bytes; value >>= 8) number += static_cast<char>(value & 0xFF);
  return number;
}

std::string Wide(const std::string& ascii) {
  std::string text = Number(ascii.size(), 2);
  for (const char c : ascii) text += {c, '\0'};
  return text;
}

/// A link with an item list, the place where its target was, a relative path, a folder and arguments.
std::string Link(const std::string& local, const std::string& relative, const std::string& arguments) {
  const std::string mark("L\0\0\0\1\x14\2\0\0\0\0\0\xC0\0\0\0\0\0\0F", 20), items(20, 'x');
  const std::string info = Number(28, 4) + Number(1, 4) + Number(0, 4) + Number(28, 4) + Number(0, 4) +
                           Number(28 + local.size(), 4) + local + std::string(2, '\0');
  return mark + Number(0xBB, 4) + std::string(52, '\0') + Number(items.size(), 2) + items +
         Number(info.size() + 4, 4) + info + Wide(relative) + Wide("C:\\") + Wide(arguments);
}

struct Shortcuts : testing::Test {
  /// What an entry that executes the file asks the host for.
  StartRequest Asked(const std::string& name, const std::string& bytes) const {
    disc.File("links/" + name, bytes);
    return RequestFor("D:\\LINKS\\" + name, "/x", DiscDrive(disc.Path()));
  }
  const TemporaryFolder disc;
  const std::filesystem::path game = disc.File("Gry/Gra.exe", ""), text = disc.File("Docs/a b.txt", "");
};

TEST_F(Shortcuts, LeadToTheirTargetOnTheDiscWhereverItWasMade) {
  const StartRequest found =
      Asked("a.lnk", Link("E:\\gry\\gra.exe", "..\\none.exe", "\"D:\\docs\\A B.txt\""));
  EXPECT_EQ(found.file, game);
  ASSERT_EQ(found.arguments.size(), 2U);
  EXPECT_EQ(found.arguments[0].file, text);
  EXPECT_EQ(found.arguments[1].text, "/x");
  EXPECT_EQ(Asked("b.LNK", Link("F:\\none", "..\\GRY\\gra.exe", "")).file, game);
  EXPECT_EQ(Asked("c.url", "[DEFAULT]\r\nURL=x\r\n[internetshortcut]\r\nurl=file:///E:/docs/a%20b.txt").file,
            text);
  EXPECT_EQ(Asked("d.url", "[InternetShortcut]\nURL= http://example.org/?a=b \n").name,
            "http://example.org/?a=b");
}

TEST_F(Shortcuts, ThatLeadNowhereOrAreCutAreLeftToTheHost) {
  const std::string link = Link("E:\\none.exe", "none.exe", "");
  for (std::size_t size = 0; size <= link.size(); ++size)
    EXPECT_EQ(Asked("a.lnk", link.substr(0, size)).file, disc.Path() / "links/a.lnk") << size;
  for (const char* nothing : {"", "[InternetShortcut]\nURL=\n", "URL=http://example.org"})
    EXPECT_EQ(Asked("a.url", nothing).file, disc.Path() / "links/a.url") << nothing;
}

}  // namespace
}  // namespace orvanta::test
