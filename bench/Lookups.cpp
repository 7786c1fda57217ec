#include "Lookups.h"

#include <fcntl.h>
#include <glib.h>
#include <unistd.h>

#include <cstring>
#include <fstream>
#include <memory>

#include "config/Fold1250.h"

namespace orvanta::bench {
namespace {

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\v\f\r";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

long WarmRead::operator()(const std::filesystem::path& file) {
  const int handle = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
  const ssize_t got = ::read(handle, buffer_.data(), buffer_.size());
  ::close(handle);
  if (got <= 0) return got;
  return std::memchr(buffer_.data(), '\0', static_cast<std::size_t>(got)) ? -1 : got;
}

std::string GetlineLookup(const std::filesystem::path& file, std::string_view section, std::string_view key) {
  std::ifstream in(file, std::ios::binary);
  bool inSection = false;
  for (std::string raw; std::getline(in, raw);) {
    const std::string_view line = Trimmed(raw);
    if (line.starts_with('[')) {
      if (inSection) return {};
      inSection = EqualNoCase1250(Trimmed(line.substr(1, line.find(']') - 1)), section);
      continue;
    }
    if (!inSection || line.starts_with(';')) continue;
    const auto equals = line.find('=');
    if (equals == line.npos || !EqualNoCase1250(Trimmed(line.substr(0, equals)), key)) continue;
    return std::string(Trimmed(line.substr(equals + 1)));
  }
  return {};
}

std::string GlibLookup(const std::filesystem::path& file, std::string_view section, std::string_view key) {
  const std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)> keys(g_key_file_new(), &g_key_file_unref);
  g_key_file_load_from_file(keys.get(), file.c_str(), G_KEY_FILE_NONE, nullptr);
  const std::unique_ptr<char, decltype(&g_free)> value(
      g_key_file_get_value(keys.get(), std::string(section).c_str(), std::string(key).c_str(), nullptr),
      &g_free);
  return value ? value.get() : std::string();
}

}  // namespace orvanta::bench
