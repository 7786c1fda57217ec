#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// A text in UTF-8 for searching: the letters of Windows-1250 are small and without their marks, so that
/// "zolw" finds "Żółw". Other characters stay.
std::string PlainLetters(std::string_view utf8);

/// The words of a text, parted by blanks, as `PlainLetters` writes them.
std::vector<std::string> PlainWords(std::string_view utf8);

}  // namespace orvanta
