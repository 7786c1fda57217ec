#pragma once

#include <libintl.h>

#include <array>
#include <concepts>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace orvanta {

/// The name of the tool's translations, which are in FOLDER/pl/LC_MESSAGES/orvanta-disc.mo.
inline constexpr const char* kTextDomain = "orvanta-disc";

/// Marks a text in a table for translation; `Translated` translates it when it is shown.
constexpr const char* Translatable(const char* text) { return text; }

/// `text` with %1 to %9 replaced by the values. A number without a value stays as it is. Numbers in the
/// values are not replaced.
std::string Filled(std::string_view text, const std::string* values, std::size_t count);

inline std::string ValueText(std::string_view text) { return std::string(text); }
inline std::string ValueText(std::integral auto number) { return std::to_string(number); }

/// The English `text` in the user's language, with %1, %2 and so on replaced by the values: UTF-8 texts or
/// whole numbers. It stays English if there is no translation. Ids of findings and JSON keys are never
/// translated.
template <class... Values>
std::string Translated(const char* text, const Values&... values) {
  const std::array<std::string, sizeof...(Values)> texts{ValueText(values)...};
  return Filled(*text ? dgettext(kTextDomain, text) : text, texts.data(), texts.size());
}

/// The same for a text that depends on a number, which is %1; Polish has three forms.
template <class... Values>
std::string TranslatedCount(const char* one, const char* many, std::size_t number, const Values&... values) {
  const std::array<std::string, sizeof...(Values) + 1> texts{ValueText(number), ValueText(values)...};
  return Filled(dngettext(kTextDomain, one, many, number), texts.data(), texts.size());
}

/// Lets `Translated` use the language of the user's locale (LANGUAGE, LC_ALL, LC_MESSAGES, LANG), with the
/// translations in `folder`. Without this call the language is English.
void UseLanguageOfUser(const std::filesystem::path& folder);
/// Sets the language back to English.
void UseEnglish();

}  // namespace orvanta
