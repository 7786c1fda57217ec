#include <gtest/gtest.h>

#include "platform/desktop/CommandLine.h"

namespace orvanta {
namespace {

using Arguments = std::vector<std::string>;

TEST(CommandLine, BlanksAndTabsSeparate) {
  EXPECT_EQ(SplitArguments(""), Arguments{});
  EXPECT_EQ(SplitArguments(" \t "), Arguments{});
  EXPECT_EQ(SplitArguments("  /s\t/demo  "), (Arguments{"/s", "/demo"}));
  EXPECT_EQ(SplitArguments("a\nb"), Arguments{"a\nb"});
}

TEST(CommandLine, QuotesKeepBlanksAndAnEmptyPairIsAnArgument) {
  EXPECT_EQ(SplitArguments(R"("D:\Gry i zabawy" /x)"), (Arguments{R"(D:\Gry i zabawy)", "/x"}));
  EXPECT_EQ(SplitArguments(R"(pre"in side"post)"), Arguments{"prein sidepost"});
  EXPECT_EQ(SplitArguments(R"("" a "")"), (Arguments{"", "a", ""}));
  EXPECT_EQ(SplitArguments(R"("open to the end)"), Arguments{"open to the end"});
  EXPECT_EQ(SplitArguments(R"("zażółć gęślą" jaźń)"), (Arguments{"zażółć gęślą", "jaźń"}));
}

// Paths with backslashes at their end are where splitters go wrong.
TEST(CommandLine, BackslashesAreLiteralUnlessAQuoteFollows) {
  EXPECT_EQ(SplitArguments(R"(D:\a\\b\ c)"), (Arguments{R"(D:\a\\b\)", "c"}));
  EXPECT_EQ(SplitArguments(R"("ab\"c" "\\" d)"), (Arguments{R"(ab"c)", R"(\)", "d"}));
  EXPECT_EQ(SplitArguments(R"(a\\\b d"e f"g h)"), (Arguments{R"(a\\\b)", "de fg", "h"}));
  EXPECT_EQ(SplitArguments(R"(a\\\"b c d)"), (Arguments{R"(a\"b)", "c", "d"}));
  EXPECT_EQ(SplitArguments(R"(a\\\\"b c" d e)"), (Arguments{R"(a\\b c)", "d", "e"}));
  EXPECT_EQ(SplitArguments(R"("D:\gry\" /x)"), Arguments{R"(D:\gry" /x)"});
}

TEST(CommandLine, TwoQuotesInsideQuotesAreOne) {
  EXPECT_EQ(SplitArguments(R"("a""b c" d)"), (Arguments{R"(a"b c)", "d"}));
  EXPECT_EQ(SplitArguments(R"("""quoted""" x)"), (Arguments{R"("quoted")", "x"}));
  EXPECT_EQ(SplitArguments(R"(a""b c)"), (Arguments{"ab", "c"}));
}

}  // namespace
}  // namespace orvanta
