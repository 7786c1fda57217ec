#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// A text in UTF-8 prepared for searching: letters of Windows-1250 become small and lose their marks, so that
/// "zolw" finds "Żółw". Other characters are unchanged.
std::string PlainLetters(std::string_view utf8);

/// The words of a text, separated by blanks, each as `PlainLetters` returns it.
std::vector<std::string> PlainWords(std::string_view utf8);

}  // namespace orvanta
