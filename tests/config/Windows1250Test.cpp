#include <gtest/gtest.h>

#include "config/Fold1250.h"
#include "config/Windows1250.h"

namespace orvanta::test {
namespace {

TEST(Windows1250, SpeaksPolish) {
  EXPECT_EQ(FromWindows1250("Za\xBF\xF3\xB3\xE6 g\xEA\x9Cl\xB9 ja\x9F\xF1 \x80 \x84x\x94"),
            "Zażółć gęślą jaźń € „x”");
  EXPECT_EQ(ToWindows1250("ZAŻÓŁĆ GĘŚLĄ JAŹŃ"), "ZA\xAF\xD3\xA3\xC6 G\xCA\x8CL\xA5 JA\x8F\xD1");
}

TEST(Windows1250, GivesEveryByteBack) {
  for (int i = 0; i < 256; ++i) {
    const std::string byte(1, static_cast<char>(i));
    EXPECT_EQ(ToWindows1250(FromWindows1250(byte)), byte) << i;
  }
  EXPECT_EQ(FromWindows1250("\x81"), "\u0081");
}

TEST(Windows1250, RefusesWhatItCannotWrite) {
  for (const char* text : {"Ω", "日", "😀", "\u0080", "\x80", "a\xC5", "\xC5z", "\xC1\xA1", "\xE0\x81\xA1",
                           "\xFF", "\xE2\x82", "\xED\xA0\x80"}) {
    EXPECT_EQ(ToWindows1250(text), std::nullopt) << text;
  }
}

TEST(Windows1250, FoldsEveryCapitalToItsSmallLetterAndNothingElse) {
  const std::string capitals = "ABCXYZŠŚŤŽŹŁĄŞŻĽŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖŘŮÚŰÜÝŢ";
  const std::string small = "abcxyzšśťžźłąşżľŕáâăäĺćçčéęëěíîďđńňóôőöřůúűüýţ";
  EXPECT_TRUE(EqualNoCase(capitals, small));
  int changed = 0;
  for (int i = 128; i < 256; ++i) changed += Fold1250(static_cast<char>(i)) != static_cast<char>(i);
  EXPECT_EQ(changed, static_cast<int>(ToWindows1250(capitals)->size()) - 6);
  EXPECT_FALSE(EqualNoCase("×", "÷"));
  EXPECT_FALSE(EqualNoCase("a", "ab"));
  // Beyond the code page only the plain letters fold.
  EXPECT_TRUE(EqualNoCase("Ω-Setup", "Ω-SETUP"));
  EXPECT_FALSE(EqualNoCase("Ω", "ω"));
}

}  // namespace
}  // namespace orvanta::test
