#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <span>

#include "config/LookupCases.h"
#include "config/ProfileScanner.h"
#include "config/ProfileString.h"
#include "config/ReferenceLookup.h"
#include "support/TemporaryFolder.h"

namespace orvanta::test {
namespace {

/// Supplies a text in pieces of at most `most` bytes and counts what it was asked for.
class SlowText {
 public:
  SlowText(std::string_view text, std::size_t most) : text_(text), most_(most) {}
  std::size_t operator()(std::span<char> into) {
    const std::size_t count =
        text_.substr(given, std::min(into.size(), most_)).copy(into.data(), into.size());
    given += count;
    return count;
  }
  std::size_t given = 0;

 private:
  std::string_view text_;
  std::size_t most_;
};

std::string InPieces(std::string_view text, std::size_t most, std::string_view section,
                     std::string_view key) {
  SlowText slow(text, most);
  return StreamedProfileString(std::ref(slow), section, key);
}

TEST(ProfileString, AgreesWithThePlatformOnKnownFiles) {
  for (const auto& known : kLookupCases) {
    SCOPED_TRACE(known.name);
    EXPECT_EQ(ProfileStringOf(known.file, known.section, known.key), known.expected);
    for (const unsigned most : {1U, 2U, 7U}) {
      EXPECT_EQ(InPieces(known.file, most, known.section, known.key), known.expected);
    }
    EXPECT_EQ(ReferenceLookup(known.file, known.section, known.key), known.expected);
  }
}

TEST(ProfileString, CutsAValueButNotAKey) {
  const std::string x(300, 'x');
  EXPECT_EQ(ProfileStringOf("[s]\r\nk=" + x + "\r\n", "s", "k"), x.substr(0, 254));
  EXPECT_EQ(ProfileStringOf("[s]\r\nk=\"" + x.substr(0, 253) + "\"\r\n", "s", "k"), x.substr(0, 253));
  EXPECT_EQ(ProfileStringOf("[s]\r\n" + x + "=v\r\n", "s", x), "v");
}

TEST(ProfileString, TellsLettersFromSigns) {
  // Bytes whose distance is that of capital and small letters, but which are no letters.
  for (const auto& [asked, written] :
       {std::pair{"\xD7", "\xF7"}, {"@", "`"}, {"[k", "{k"}, {"\xDF", "\xFF"}}) {
    EXPECT_EQ(ProfileStringOf(std::string("[s]\nx") + written + "=v", "s", std::string("x") + asked), "");
  }
  EXPECT_EQ(ProfileStringOf("[\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF]\nk=v",
                            "\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF", "k"),
            "v");
}

/// Text in which everything that means something to the reader is frequent.
std::string NastyText(std::mt19937& random) {
  static constexpr std::string_view kBytes[] = {
      "[", "]", "=", ";", "\r", "\n", " ",    "\t",   "\v",   "\f",   "\x1a", "\0"sv, "\"",
      "'", "s", "S", "k", "K",  "v",  "\xB9", "\xA5", "\xD7", "\xF7", "@",    "`",    "\xEF\xBB\xBF"};
  static constexpr std::string_view kLines[] = {
      "\n[s]",    "\r[ S\t]\r\n", "\nk=v",
      "\r\n K =", "\n;k=",        "\nk k=",
      "\n=",      "\n\xA5='",     "\n[]",
      "\n[\xB9",  "\nk1=\"\"",    "\npadding, long enough to fill a vector or two of the fast search"};
  std::string text = random() % 2 ? "[s]" : "";
  for (std::size_t parts = random() % 40; parts != 0; --parts) {
    text += random() % 3 ? kLines[random() % std::size(kLines)] : kBytes[random() % std::size(kBytes)];
  }
  return text;
}

TEST(ProfileString, AgreesWithTheReferenceOnNastyTexts) {
  constexpr std::string_view kNames[] = {"s",    "k", "K1", "\xB9", "",    "k k",
                                         "\xF7", "v", "[s", "k1 ",  "'k'", "`"};
  std::mt19937 random(20240607);
  const auto name = [&](std::string_view usual) {
    return random() % 2 ? usual : kNames[random() % std::size(kNames)];
  };
  int found = 0;
  for (int i = 0; i < 20000; ++i) {
    const std::string text = NastyText(random);
    const std::string_view section = name("s"), key = name("k");
    const std::string expected = ReferenceLookup(text, section, key);
    found += !expected.empty();
    ASSERT_EQ(ProfileStringOf(text, section, key), expected) << ::testing::PrintToString(text);
    ASSERT_EQ(InPieces(text, 1 + random() % 40, section, key), expected) << ::testing::PrintToString(text);
  }
  EXPECT_GT(found, 1000);
}

TEST(ProfileString, SurvivesLinesLongerThanItsBuffer) {
  const std::string x(5 * kPiece, 'x');
  const std::string text =
      "[s]\n" + x + "\n;" + x + "\nq=\"" + x + "\"\nk= v " + std::string(3 * kPiece, ' ') + "\n[t";
  for (std::size_t most : {kPiece, kPiece / 3}) {
    EXPECT_EQ(InPieces(text, most, "s", "k"), "v");
    EXPECT_EQ(InPieces(text, most, "s", "q"), x.substr(0, 254));
    EXPECT_EQ(InPieces(text, most, "s", "x"), "");
  }
}

TEST(ProfileString, StopsReadingAtTheAnswer) {
  const std::string text = "[s]\nk=v\n[t]\n" + std::string(10 * kPiece, '\n');
  for (std::string_view key : {"k", "missing"}) {
    SlowText slow(text, text.size());
    StreamedProfileString(std::ref(slow), "s", key);
    EXPECT_LE(slow.given, kPiece);
  }
}

TEST(ProfileString, ReadsTheFileAnewAtEachCall) {
  const TemporaryFolder folder;
  const auto file = folder.File("a.ini", "[s]\nk=1\n");
  EXPECT_EQ(ProfileString(file, "s", "k"), "1");
  folder.File("a.ini", std::string(3 * kPiece, '\n') + "[s]\nk=2");
  EXPECT_EQ(ProfileString(file, "s", "k"), "2");
  folder.File("a.ini", std::string(4096 * 1024, '\n') + "[s]\nk=3");
  EXPECT_EQ(ProfileString(file, "s", "k"), "3");
  std::filesystem::remove(file);
  EXPECT_EQ(ProfileString(file, "s", "k"), "");
}

TEST(ProfileString, NeverHangsOnWhatIsNoFile) {
  const TemporaryFolder folder;
  const auto pipe = folder.Path() / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const auto loop = folder.Path() / "loop";
  std::filesystem::create_symlink(loop, loop);
  for (const std::filesystem::path& path :
       {pipe, loop, folder.Path(), std::filesystem::path("/dev/zero"), std::filesystem::path("/dev/null"),
        std::filesystem::path("/dev/tty"), std::filesystem::path()}) {
    EXPECT_EQ(ProfileString(path, "s", "k"), "") << path;
  }
}

}  // namespace
}  // namespace orvanta::test
