#pragma once

#include <array>
#include <string_view>

namespace orvanta::test {

/// What the platform call gives for one key of one file. Bytes in Windows-1250.
struct LookupCase {
  std::string_view name, file, section, key, expected;
};

using namespace std::string_view_literals;

inline constexpr auto kLookupCases = std::to_array<LookupCase>({
    {"plain crlf", "[s]\r\nk=v\r\n"sv, "s"sv, "k"sv, "v"sv},
    {"cr only quotes", "[section1]\rname1=val1\rname2=\"val2\"\rname3\rname4=a\r[section2]\r"sv, "section1"sv,
     "name2"sv, "val2"sv},
    {"lf cr order", "[s]\n\rk=v\n\r"sv, "s"sv, "k"sv, "v"sv},
    {"empty file", ""sv, "s"sv, "k"sv, ""sv},
    {"key missing", "[s]\r\nk=v\r\n"sv, "s"sv, "nokey"sv, ""sv},
    {"same key two sections", "[SLIDER]\r\nYMin=1\r\n[SHOTSLIDER]\r\nYMin=2\r\n"sv, "SHOTSLIDER"sv, "YMin"sv,
     "2"sv},
    {"section prefix is no match", "[MAINMENU2]\r\nk=2\r\n[MAINMENU]\r\nk=1\r\n"sv, "MAINMENU"sv, "k"sv,
     "1"sv},
    {"case section", "[SectionName]\r\nTestKey=TestValue\r\n"sv, "SECTIONNAME"sv, "testkey"sv, "TestValue"sv},
    {"case polish section", "[\257\363\263w]\r\nk=v\r\n"sv, "\257\323\243W"sv, "k"sv, "v"sv},
    {"polish same case", "[Dzia\263]\r\nk=\237d\237b\263o\r\n"sv, "Dzia\263"sv, "k"sv, "\237d\237b\263o"sv},
    {"fold trap bracket brace", "[s]\r\nk{=1\r\n"sv, "s"sv, "k["sv, ""sv},
    {"blank space around key", "[s]\r\n k =val\r\n"sv, "s"sv, "k"sv, "val"sv},
    {"blank tab around value", "[s]\r\nk=\tval\t\r\n"sv, "s"sv, "k"sv, "val"sv},
    {"blank tab in brackets", "[\tx\t]\r\nk=val\r\n"sv, "x"sv, "k"sv, "val"sv},
    {"blank vt before header", "\v[s]\r\nk=val\r\n"sv, "s"sv, "k"sv, "val"sv},
    {"blank ff before header", "\f[s]\r\nk=val\r\n"sv, "s"sv, "k"sv, "val"sv},
    {"ctrlz last byte no newline", "[s]\r\nk=val\032"sv, "s"sv, "k"sv, "val"sv},
    {"nbsp is no blank", "[s]\r\nk=\240v\240\r\n"sv, "s"sv, "k"sv, "\240v\240"sv},
    {"key with inner space", "[s]\r\nmy key=v\r\n"sv, "s"sv, "my key"sv, "v"sv},
    {"section inner space count", "[a  b]\r\nk=v\r\n"sv, "a b"sv, "k"sv, ""sv},
    {"arg section tab", "[Test]\r\nk=v\r\n"sv, "\tTest"sv, "k"sv, ""sv},
    {"arg key newline", "[s]\r\nk=v\r\n"sv, "s"sv, "k\n"sv, ""sv},
    {"quotes single", "[s]\r\nk='val2'\r\n"sv, "s"sv, "k"sv, "val2"sv},
    {"quotes only blanks inside", "[s]\r\nk=\"   \"\r\n"sv, "s"sv, "k"sv, "   "sv},
    {"quotes doubled", "[s]\r\nk=\"\"string\"\"\r\n"sv, "s"sv, "k"sv, "\"string\""sv},
    {"quotes unbalanced open", "[s]\r\nk=\"abc\r\n"sv, "s"sv, "k"sv, "\"abc"sv},
    {"quotes two words", "[s]\r\nk=\"a\" \"b\"\r\n"sv, "s"sv, "k"sv, "a\" \"b"sv},
    {"quotes empty", "[s]\r\nk=\"\"\r\n"sv, "s"sv, "k"sv, ""sv},
    {"quotes one single", "[s]\r\nk='\r\n"sv, "s"sv, "k"sv, "'"sv},
    {"quotes key", "[s]\r\n\"k\"=v\r\n"sv, "s"sv, "\"k\""sv, "v"sv},
    {"quotes section without", "[\"sec\"]\r\nk=v\r\n"sv, "sec"sv, "k"sv, ""sv},
    {"comment not found with semicolon", "[s]\r\n;key=1\r\n"sv, "s"sv, ";key"sv, ""sv},
    {"comment indented vt", "[s]\r\n\v;k=1\r\n"sv, "s"sv, "k"sv, ""sv},
    {"value starts with semicolon", "[s]\r\nk=;nocomment\r\n"sv, "s"sv, "k"sv, ";nocomment"sv},
    {"semicolon first in section", "[;section]\r\nk=v\r\n"sv, ";section"sv, "k"sv, "v"sv},
    {"hash semicolon inside", "[My#Section;Name]\r\nmy#;key=my#;value\r\n"sv, "My#Section;Name"sv,
     "my#;key"sv, "my#;value"sv},
    {"bare then real key", "[s]\r\nk\r\nk=v\r\n"sv, "s"sv, "k"sv, "v"sv},
    {"empty value then same key", "[s]\r\nk=\r\nk=v\r\n"sv, "s"sv, "k"sv, ""sv},
    {"empty key", "[s]\r\n=val_no_key\r\n[t]\r\n"sv, "s"sv, ""sv, "val_no_key"sv},
    {"duplicate key first wins", "[s]\r\nk=1\r\nk=2"sv, "s"sv, "k"sv, "1"sv},
    {"no continuation", "[s]\r\nk=a\\\r\nb=c\r\n"sv, "s"sv, "k"sv, "a\\"sv},
    {"value brackets go on", "[s]\r\nk=[x]\r\nj=2\r\n"sv, "s"sv, "j"sv, "2"sv},
    {"header text after", "[sec]key=val\r\nk=v\r\n"sv, "sec"sv, "k"sv, "v"sv},
    {"header first bracket closes", "[sec]whoops]\r\nk=v\r\n"sv, "sec"sv, "k"sv, "v"sv},
    {"header two on a line", "[sec][sec2]\r\nk=v\r\n"sv, "sec"sv, "k"sv, "v"sv},
    {"header open bracket inside 2", "[[sec]\r\nk=v\r\n"sv, "sec"sv, "k"sv, ""sv},
    {"header missing close eof", "[a]\r\nk=1\r\n[sec"sv, "a"sv, "k"sv, "1"sv},
    {"header missing open", "sec]\r\nk=v\r\n"sv, "sec"sv, "k"sv, ""sv},
    {"empty section", "[]\r\nk=v\r\n"sv, ""sv, "k"sv, "v"sv},
    {"before any section", "k=v\r\n[s]\r\nj=2\r\n"sv, ""sv, "k"sv, ""sv},
    {"duplicate section first only 2", "[s]\r\na=1\r\n[t]\r\nx=1\r\n[s]\r\nb=2\r\n"sv, "s"sv, "b"sv, ""sv},
    {"arg section with bracket", "[sec]\r\nk=v\r\n"sv, "sec]"sv, "k"sv, ""sv},
    {"utf8 bom then newline", "\357\273\277\r\n[s]\r\nk=v\r\n"sv, "s"sv, "k"sv, "v"sv},
    {"nul trailing byte after text", "[s]\r\nk=v\000"sv, "s"sv, "k"sv, "v"sv},
});

}  // namespace orvanta::test
