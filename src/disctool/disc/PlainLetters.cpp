#include "disctool/disc/PlainLetters.h"

#include <array>
#include <sstream>

#include "config/Windows1250.h"

namespace orvanta {
namespace {

/// Maps each byte of Windows-1250 to the one that it is searched as.
constexpr auto kPlain = [] {
  std::array<char, 256> plain{};
  for (std::size_t i = 0; i < plain.size(); ++i) plain[i] = static_cast<char>(i);
  for (char c = 'A'; c <= 'Z'; ++c) plain[static_cast<std::size_t>(c)] = static_cast<char>(c - 'A' + 'a');
  // From C0 on, capitals are 32 below their small letters; an asterisk is not a letter.
  constexpr std::string_view kRows = "raaaalccceeeeiiddnnoooo*ruuuuyt";
  for (std::size_t i = 0; i < kRows.size(); ++i)
    if (kRows[i] != '*') plain[0xC0 + i] = plain[0xE0 + i] = kRows[i];
  plain[0xDF] = 's';
  constexpr struct {
    unsigned char byte;
    char letter;
  } kOthers[] = {{0x8A, 's'}, {0x8C, 's'}, {0x8D, 't'}, {0x8E, 'z'}, {0x8F, 'z'}, {0x9A, 's'}, {0x9C, 's'},
                 {0x9D, 't'}, {0x9E, 'z'}, {0x9F, 'z'}, {0xA3, 'l'}, {0xA5, 'a'}, {0xAA, 's'}, {0xAF, 'z'},
                 {0xB3, 'l'}, {0xB9, 'a'}, {0xBA, 's'}, {0xBC, 'l'}, {0xBE, 'l'}, {0xBF, 'z'}};
  for (const auto& [byte, letter] : kOthers) plain[byte] = letter;
  return plain;
}();

}  // namespace

std::string PlainLetters(std::string_view utf8) {
  auto bytes = ToWindows1250(utf8);
  if (!bytes) return std::string(utf8);
  for (char& c : *bytes) c = kPlain[static_cast<unsigned char>(c)];
  return FromWindows1250(*bytes);
}

std::vector<std::string> PlainWords(std::string_view utf8) {
  std::istringstream text(PlainLetters(utf8));
  std::vector<std::string> words;
  for (std::string word; text >> word;) words.push_back(word);
  return words;
}

}  // namespace orvanta
