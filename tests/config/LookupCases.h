#pragma once

#include <array>
#include <string_view>

namespace orvanta::test {

/// The result of the platform call for one key of one file. All texts are bytes in Windows-1250.
struct LookupCase {
  std::string_view name, file, section, key, expected;
};

using namespace std::string_view_literals;

inline constexpr auto kLookupCases = std::to_array<LookupCase>({
    {"cr only quotes", "[s]\ra=1\rk=\"v\"\rc\rd=a\r[t]\r", "s", "k", "v"},
    {"lf cr order", "[s]\n\rk=v\n\r", "s", "k", "v"},
    {"section prefix does not match", "[MAINMENU2]\r\nk=2\r\n[MAINMENU]\r\nk=1\r\n", "MAINMENU", "k", "1"},
    {"case polish section", "[\257\363\263w]\r\nk=v\r\n", "\257\323\243W", "k", "v"},
    {"case polish at the deciding ends", "[\263s]\r\nk\263=v\r\n", "\243S", "K\243", "v"},
    {"blanks around the names asked for", "[s]\r\nk=v\r\n", "  s\t", " k ", "v"},
    {"fold trap bracket brace", "[s]\r\nk{=1\r\n", "s", "k[", ""},
    {"blank space around key", "[s]\r\n k =val\r\n", "s", "k", "val"},
    {"blank tab in brackets", "[\tx\t]\r\nk=val\r\n", "x", "k", "val"},
    {"ctrlz last byte no newline", "[s]\r\nk=val\032", "s", "k", "val"},
    {"nbsp is not a blank", "[s]\r\nk=\240v\240\r\n", "s", "k", "\240v\240"},
    {"key with inner space", "[s]\r\nmy key=v\r\n", "s", "my key", "v"},
    {"quotes single", "[s]\r\nk='val2'\r\n", "s", "k", "val2"},
    {"quotes doubled", "[s]\r\nk=\"\"string\"\"\r\n", "s", "k", "\"string\""},
    {"quotes unbalanced open", "[s]\r\nk=\"abc\r\n", "s", "k", "\"abc"},
    {"quotes one single", "[s]\r\nk='\r\n", "s", "k", "'"},
    {"comment not found with semicolon", "[s]\r\n;key=1\r\n", "s", ";key", ""},
    {"empty value then same key", "[s]\r\nk=\r\nk=v\r\n", "s", "k", ""},
    {"empty key", "[s]\r\n=val_no_key\r\n[t]\r\n", "s", "", "val_no_key"},
    {"no continuation", "[s]\r\nk=a\\\r\nb=c\r\n", "s", "k", "a\\"},
    {"header text after", "[sec]key=val\r\nk=v\r\n", "sec", "k", "v"},
    {"header open bracket inside 2", "[[sec]\r\nk=v\r\n", "sec", "k", ""},
    {"header missing close eof", "[a]\r\nk=1\r\n[sec", "a", "k", "1"},
    {"empty section", "[]\r\nk=v\r\n", "", "k", "v"},
    {"before any section", "k=v\r\n[s]\r\nj=2\r\n", "", "k", ""},
    {"duplicate section first only 2", "[s]\r\na=1\r\n[t]\r\nx=1\r\n[s]\r\nb=2\r\n", "s", "b", ""},
    {"arg section with bracket", "[sec]\r\nk=v\r\n", "sec]", "k", ""},
    {"utf8 bom then newline", "\357\273\277\r\n[s]\r\nk=v\r\n", "s", "k", "v"},
    {"nul trailing byte after text", "[s]\r\nk=v\000"sv, "s", "k", "v"},
});

}  // namespace orvanta::test
