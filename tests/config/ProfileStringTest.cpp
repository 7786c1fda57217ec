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

/// Supplies a text in pieces of at most `most` bytes and counts how much was read.
struct SlowText {
  std::size_t operator()(std::span<char> into) {
    const std::size_t count = text.substr(given, std::min(into.size(), most)).copy(into.data(), into.size());
    given += count;
    return count;
  }
  std::string_view text;
  std::size_t most, given = 0;
};

std::string InPieces(std::string_view text, std::size_t most, std::string_view section,
                     std::string_view key) {
  return StreamedProfileString(SlowText{text, most}, section, key);
}

TEST(ProfileString, AgreesWithThePlatformOnKnownFiles) {
  for (const auto& known : kLookupCases) {
    EXPECT_EQ(ProfileStringOf(known.file, known.section, known.key), known.expected) << known.name;
    EXPECT_EQ(InPieces(known.file, 1, known.section, known.key), known.expected) << known.name;
    EXPECT_EQ(ReferenceLookup(known.file, known.section, known.key), known.expected) << known.name;
  }
}

/// A text made of random pieces in which the characters that the reader interprets are frequent.
std::string NastyText(std::mt19937& random) {
  constexpr std::string_view kText =
      "\n[s]\nk=v\r[ S\t]\r\n K =v\n;k=\nk "
      "k=\x1a\n=\n\xA5='\n[]\n[\xB9\nk1=\"\"\n\v\f\0\xD7=\xF7[s]k=@`\"v\"\n'k'=V"
      "\xEF\xBB\xBF\n[s]\nk=v\npadding, long enough to fill a vector or two of the fast search"sv;
  std::string text = random() % 2 ? "[s]" : "";
  for (std::size_t parts = random() % 40; parts != 0; --parts)
    text += kText.substr(random() % kText.size(), random() % 20 ? random() % 6 : kText.size());
  return text;
}

TEST(ProfileString, AgreesWithTheReferenceOnNastyTexts) {
  constexpr std::string_view kNames[] = {"s", "k", "K1", "\xB9", "", "k k", "\xF7", "[s", "k1 ", "'k'", "`"};
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

TEST(ProfileString, CutsValuesAndReadsLinesLongerThanItsBuffer) {
  const std::string x(5 * kPiece, 'x');
  const std::string text = "[s]\n" + x + "\n;" + x + "\nq=\"" + x + "\"\nk= v " +
                           std::string(3 * kPiece, ' ') + "\ne=\"" + x.substr(0, 253) + "\"\n" + x + "=w\n[t";
  for (const std::size_t most : {kPiece, kPiece / 3}) {
    EXPECT_EQ(InPieces(text, most, "s", "k"), "v");
    EXPECT_EQ(InPieces(text, most, "s", "q"), x.substr(0, 254));
    EXPECT_EQ(InPieces(text, most, "s", "e"), x.substr(0, 253));
    EXPECT_EQ(InPieces(text, most, "s", "x"), "");
  }
  EXPECT_EQ(ProfileStringOf(text, "s", x), "w") << "a key is not cut";
  const std::string answers = "[s]\nk=v\n[t]\n" + std::string(10 * kPiece, '\n');
  for (std::string_view key : {"k", "missing"}) {
    SlowText slow{answers, answers.size()};
    StreamedProfileString(std::ref(slow), "s", key);
    EXPECT_LE(slow.given, kPiece) << "nothing is read after the answer";
  }
}

TEST(ProfileString, ReadsTheFileAnewAtEachCallAndNeverHangsOnWhatIsNotAFile) {
  const TemporaryFolder folder;
  for (const std::size_t lines : {kPiece, 3 * kPiece, 256 * kPiece}) {
    const auto file = folder.File("a.ini", std::string(lines, '\n') + "[s]\nk=" + std::to_string(lines));
    EXPECT_EQ(ProfileString(file, "s", "k"), std::to_string(lines));
  }
  const auto pipe = folder.Path() / "pipe", loop = folder.Path() / "loop";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  std::filesystem::create_symlink(loop, loop);
  for (const std::filesystem::path& path :
       {pipe, loop, folder.Path(), folder.Path() / "none", std::filesystem::path("/dev/zero")}) {
    EXPECT_EQ(ProfileString(path, "s", "k"), "") << path;
  }
}

}  // namespace
}  // namespace orvanta::test
