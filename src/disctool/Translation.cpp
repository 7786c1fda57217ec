#include "disctool/Translation.h"

#include <clocale>

namespace orvanta {

std::string Filled(std::string_view text, const std::string* values, std::size_t count) {
  std::string filled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t number =
        text[i] == '%' && i + 1 < text.size() ? static_cast<std::size_t>(text[i + 1] - '0') : 0;
    if (number >= 1 && number <= count) {
      filled += values[number - 1];
      ++i;
    } else {
      filled += text[i];
    }
  }
  return filled;
}

void UseLanguageOfUser(const std::filesystem::path& folder) {
  // LC_NUMERIC is left alone, so that numbers keep their machine-readable form.
  std::setlocale(LC_CTYPE, "");
  std::setlocale(LC_MESSAGES, "");
  bindtextdomain(kTextDomain, folder.c_str());
  // All texts are UTF-8, whatever the encoding of the terminal.
  bind_textdomain_codeset(kTextDomain, "UTF-8");
}

// This does not change the locale, since Qt sets it again when the application starts.
void UseEnglish() { bindtextdomain(kTextDomain, "/dev/null"); }

}  // namespace orvanta
