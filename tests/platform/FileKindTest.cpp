// What kind of program a file is, what it needs, and how a text is split into arguments.

#include <gtest/gtest.h>

#include <map>

#include "platform/CommandLine.h"
#include "platform/Runner.h"
#include "support/TemporaryFolder.h"

namespace orvanta::test {

using Words = std::vector<std::string>;
using enum FileKind;

// Writes a number of two or four bytes into `image`, low byte first.
static std::string With(std::string image, std::size_t at, std::uint32_t value, std::size_t bytes = 2) {
  std::string number;
  for (; number.size() < bytes; value >>= 8) number += static_cast<char>(value & 0xFF);
  return image.replace(at, bytes, number);
}

static FileFacts Facts(const std::string& name, const std::string& content, bool executable) {
  return FactsOf({content.size(),
                  [&](std::uint64_t at, std::size_t count) {
                    return at < content.size() ? content.substr(at, count) : std::string();
                  }},
                 name, executable);
}

TEST(FileKind, DependsOnContentBeforeNameAndOnTheBitForNativeProgramsAlone) {
  // 200 bytes on one page, with a header of 32.
  const std::string dos =
      With(With(With(With("MZ" + std::string(198, '\0'), 2, 200), 4, 1), 8, 2), 0x18, 0x1C);
  const std::string stub = With(With(With(dos.substr(0, 0x80), 2, 0x80), 0x18, 0x40), 0x3C, 0x80, 4);
  const auto after = [&](const std::string& mark) { return stub + mark + std::string(200, '\0'); };
  const std::string windows = after({"PE\0\0", 4});
  // One section at the end of the file.
  const std::string sections = With(With(With(windows, 0x86, 1), 0xA8, 1, 4), 0xAC, 0xFF, 4);
  // PKLITE and similar packers write a notice where the position of a new header would be.
  const std::string packed =
      With(dos, 0x18, 0x52).replace(0x1E, 40, "PKLITE Copr. 1990-91 PKWARE Inc. All Rig");
  const std::map<FileKind, Words> programs{
      {Windows16, {after("NE")}},
      {Windows32, {windows, sections}},
      {Windows64, {With(windows, 0x84, 0x8664)}},
      {Dos, {after("LE"), dos, packed, dos + "data after the image"}},
      {Broken,
       {"", "MZ", "only its name", dos.substr(0, 199), windows.substr(0, 0x80 + 23), sections.substr(0, 0xFF),
        after("??"), With(dos, 8, 0), "MZ" + std::string(500, '\0'), "MZ" + std::string(5000, '\xff'),
        "\x7f\x45LF..."}}};
  for (const auto& [expected, contents] : programs)
    for (const std::string& content : contents)
      EXPECT_EQ(Facts("a.exe", content, true).kind, expected) << content;
  for (const bool console : {true, false})
    EXPECT_EQ(Facts("a.exe", With(windows, 0x80 + 24 + 68, console ? 3 : 2), true).isConsole, console);
  const std::string native = "\x7f\x45LF\2\1" + std::string(58, '\0');
  EXPECT_EQ(Facts("setup.bat", native, true).kind, Native);
  EXPECT_EQ(Facts("setup", native, false).kind, Document);
  for (const auto& [name, expected] : {std::pair{"GRA.COM", Dos},
                                       {"Start.Bat", WindowsFile},
                                       {"setup.msi", WindowsFile},
                                       {"com", Document},
                                       {"a.exe", Broken}})
    EXPECT_EQ(Facts(name, "@echo off", true).kind, expected) << name;
}

TEST(FileKind, NamesWhatAProgramNeedsAndFindsOutWhetherThisMachineHasIt) {
  const TemporaryFolder machine;
  const auto install = [&](const std::string& name) {
    std::filesystem::permissions(machine.File(name, ""), std::filesystem::perms::owner_all);
  };
  const std::string path = machine.Path() / "bin";
  const auto missing = [&](const FileFacts& facts) { return FindRunner(facts, path).missing; };
  const FileFacts old{Windows16}, later{Windows64};
  EXPECT_EQ(missing(later), "wine");
  install("bin/wine");
  EXPECT_EQ(missing(later), "");
  EXPECT_EQ(missing(old), "wine32");
  machine.File("lib/wine/i386-windows/ntdll.dll", "");
  EXPECT_EQ(FindRunner(old, path).path, machine.Path() / "bin/wine");
  EXPECT_EQ(missing(old), "");
  install("bin/python");
  for (const auto& [line, needed] : {std::pair{"#!/bin/sh\n", ""},
                                     {"#! /usr/bin/env python -x\n", ""},
                                     {"#!/usr/bin/env perl", "perl"},
                                     {"#!/bin/sh\r\n", "/bin/sh\r"}})
    EXPECT_EQ(missing(Facts("a", line, true)), needed) << line;
  const FileFacts native = FactsOf(BytesOfFile("/proc/self/exe"), "a", true);
  EXPECT_NE(native.interpreter.find("ld"), std::string::npos) << native.interpreter;
  EXPECT_EQ(missing(native), "");
}

// Paths with backslashes at their end are what splitters get wrong.
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
