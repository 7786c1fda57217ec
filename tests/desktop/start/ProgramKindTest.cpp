// What kind of program a file is, and how texts become the arguments of one.

#include <fcntl.h>
#include <gtest/gtest.h>

#include <map>

#include "desktop/support/Processes.h"
#include "platform/desktop/start/CommandLine.h"
#include "platform/desktop/start/ProgramKind.h"

namespace orvanta::test {

using Words = std::vector<std::string>;
using enum ProgramKind;

// Writes a number of two or four bytes into `image`, lowest byte first.
static std::string With(std::string image, std::size_t at, std::uint32_t value, std::size_t bytes = 2) {
  std::string number;
  for (; number.size() < bytes; value >>= 8) number += static_cast<char>(value & 0xFF);
  return image.replace(at, bytes, number);
}

TEST(ProgramKind, IsToldByContentBeforeNameAndByTheBitOnlyForNativeOnes) {
  // 200 bytes on one page, with a header of 32.
  const std::string dos =
      With(With(With(With("MZ" + std::string(198, '\0'), 2, 200), 4, 1), 8, 2), 0x18, 0x1C);
  const std::string stub = With(With(With(dos.substr(0, 0x80), 2, 0x80), 0x18, 0x40), 0x3C, 0x80, 4);
  const auto behind = [&](const std::string& mark) { return stub + mark + std::string(200, '\0'); };
  const std::string windows = behind({"PE\0\0", 4});
  // PKLITE and its like write a notice over the bytes where the place of a new header would stand.
  const std::string packed =
      With(dos, 0x18, 0x52).replace(0x1E, 40, "PKLITE Copr. 1990-91 PKWARE Inc. All Rig");
  const std::map<ProgramKind, Words> programs{
      {Windows, {windows, behind("NE")}},
      {Dos, {behind("LE"), dos, packed, dos + "data behind the image"}},
      {Broken,
       {"", "MZ", "only its name", dos.substr(0, 199), windows.substr(0, 0x80 + 23), behind("??"),
        With(dos, 8, 0), "MZ" + std::string(500, '\0'), "MZ" + std::string(5000, '\xff')}}};
  const ScratchFolder scratch;
  const auto kind = [&](const std::string& name, const std::string& content, bool executable) {
    const auto file = scratch.File(name, content);
    return KindOfProgram(Descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC)), file, executable);
  };
  for (const auto& [expected, contents] : programs)
    for (const std::string& content : contents) EXPECT_EQ(kind("a.exe", content, true), expected) << content;
  for (const std::string native : {"\x7f\x45LF...", "#!/bin/sh\n"}) {
    EXPECT_EQ(kind("setup.bat", native, true), Native);
    EXPECT_EQ(kind("setup", native, false), Document);
  }
  for (const auto& [name, expected] : {std::pair{"GRA.COM", Dos},
                                       {"Start.Bat", WindowsFile},
                                       {"setup.msi", WindowsFile},
                                       {"com", Document},
                                       {"a.exe", Broken}})
    EXPECT_EQ(kind(name, "@echo off", true), expected) << name;
}

// Paths with backslashes at their end are where splitters go wrong.
TEST(CommandLine, IsSplitAsWindowsDoes) {
  for (const auto& [line, words] : std::vector<std::pair<std::string, Words>>{
           {"  /s\t/demo  a\nb", {"/s", "/demo", "a\nb"}},
           {R"("D:\Gry i zabawy" pre"in side"post "" "zażółć)",
            {R"(D:\Gry i zabawy)", "prein sidepost", "", "zażółć"}},
           {R"(D:\a\\b\ c)", {R"(D:\a\\b\)", "c"}},
           {R"(a\\\"b a\\\\"b c" d)", {R"(a\"b)", R"(a\\b c)", "d"}},
           {R"("D:\gry\" /x)", {R"(D:\gry" /x)"}},
           {R"("a""b c" """quoted""" a""b)", {R"(a"b c)", R"("quoted")", "ab"}}})
    EXPECT_EQ(SplitArguments(line), words) << line;
}

}  // namespace orvanta::test
