#include <gtest/gtest.h>

#include <cfenv>
#include <clocale>
#include <cmath>
#include <limits>

#include "config/Values.h"

namespace orvanta::test {
namespace {

TEST(Values, RoundsToTheNearestAndTiesToEven) {
  const double cases[][2] = {{0.5, 0},
                             {1.5, 2},
                             {2.5, 2},
                             {-0.5, 0},
                             {-1.5, -2},
                             {-2.5, -2},
                             {2.49, 2},
                             {2.51, 3},
                             {-2.51, -3},
                             {1e-300, 0},
                             {0.49999999999999994, 0},
                             {3e4, 3e4},
                             {4e4, 32767},
                             {-4e4, -32768},
                             {32767.5, 32767},
                             {-32768.5, -32768}};
  for (const auto& [value, expected] : cases) EXPECT_EQ(CInt(value), expected) << value;
  EXPECT_EQ(CInt(std::nan("")), 0);
  EXPECT_EQ(CLng(std::nan("")), 0);
  EXPECT_EQ(CLng(2147483646.5), 2147483646);
  EXPECT_EQ(CLng(std::numeric_limits<double>::infinity()), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(CLng(-1e300), std::numeric_limits<std::int32_t>::min());
}

TEST(Values, ReadsNumbersAsDiscsWriteThem) {
  EXPECT_EQ(WholeOf("120"), 120);
  EXPECT_EQ(WholeOf(" +7\t"), 7);
  EXPECT_EQ(WholeOf("-3.5"), -4);
  EXPECT_EQ(WholeOf("2,5"), 2);
  EXPECT_EQ(WholeOf("1e2"), 100);
  EXPECT_EQ(WholeOf("007"), 7);
  EXPECT_EQ(SingleOf("0,1"), 0.1f);
  EXPECT_EQ(DoubleOf(".25"), 0.25);
  EXPECT_EQ(DoubleOf("5."), 5.0);
  EXPECT_EQ(ColourOf("16777215"), 0xFFFFFF);
}

TEST(Values, GivesZeroForWhatIsNoNumber) {
  for (const char* text : {"",  " ",   "abc", "12 px", "1 2",     "0x10", "&H10", "inf", "nan", "-",
                           "+", "+-5", "--5", "1.2.3", "1,000.5", ",",    "e5",   "1e",  "٣",   "10%"}) {
    EXPECT_EQ(WholeOf(text), 0) << text;
    EXPECT_EQ(SingleOf(text), 0) << text;
    EXPECT_EQ(DoubleOf(text), 0) << text;
    EXPECT_EQ(ColourOf(text), 0) << text;
    EXPECT_FALSE(BooleanOf(text)) << text;
  }
}

TEST(Values, ClampsWhatIsBeyondTheRange) {
  EXPECT_EQ(WholeOf("32768"), 32767);
  EXPECT_EQ(WholeOf("-99999999999999999999"), -32768);
  EXPECT_EQ(ColourOf("4294967295"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(WholeOf("1e999"), 32767);
  EXPECT_EQ(WholeOf("-1e999"), -32768);
  EXPECT_EQ(DoubleOf("1e999"), std::numeric_limits<double>::max());
  EXPECT_EQ(SingleOf("-1e39"), std::numeric_limits<float>::lowest());
  EXPECT_EQ(SingleOf(std::string(60, '9')), std::numeric_limits<float>::max());
  EXPECT_EQ(SingleOf("-0." + std::string(60, '0') + "1"), 0);
  EXPECT_EQ(DoubleOf("1e-999"), 0);
}

TEST(Values, KnowsTrueAndFalse) {
  for (const char* text : {"True", "TRUE", " true ", "1", "-1", "0.4", "1e999"})
    EXPECT_TRUE(BooleanOf(text)) << text;
  for (const char* text : {"False", "FALSE", "0", "0,0", "-0", "Yes", "Truely"})
    EXPECT_FALSE(BooleanOf(text)) << text;
}

TEST(Values, DoNotFollowTheRoundingModeOrTheLocale) {
  std::setlocale(LC_NUMERIC, "");
  std::fesetround(FE_UPWARD);
  EXPECT_EQ(CInt(2.25), 2);
  EXPECT_EQ(DoubleOf("2.25"), DoubleOf("2,25"));
  std::fesetround(FE_TONEAREST);
  std::setlocale(LC_NUMERIC, "C");
}

}  // namespace
}  // namespace orvanta::test
