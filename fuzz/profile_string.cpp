#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

#include "config/ProfileScanner.h"
#include "config/ProfileString.h"
#include "config/ReferenceLookup.h"

namespace {

/// Removes everything before the next NUL from the front of `input` and returns it.
std::string_view TakeName(std::string_view& input) {
  const std::string_view name = input.substr(0, input.find('\0'));
  input.remove_prefix(std::min(name.size() + 1, input.size()));
  return name;
}

void Expect(const char* reader, const std::string& value, const std::string& expected) {
  if (value == expected) return;
  std::fprintf(stderr, "%s gives \"%s\" for \"%s\"\n", reader, value.c_str(), expected.c_str());
  std::abort();
}

}  // namespace

/// The input is a section, a NUL, a key, a NUL and a file. The lookup must return the same as the reference,
/// in memory and in pieces of any size.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::string_view section = TakeName(input), key = TakeName(input);
  const std::string expected = orvanta::test::ReferenceLookup(input, section, key);
  Expect("ProfileStringOf", orvanta::ProfileStringOf(input, section, key), expected);
  const std::size_t most = 1 + size % 61;
  const auto read = [rest = input, most](std::span<char> into) mutable {
    const std::size_t count = rest.copy(into.data(), std::min(most, into.size()));
    rest.remove_prefix(count);
    return count;
  };
  // In pieces, a line that is longer than a piece loses its middle.
  if (size < orvanta::kPiece) {
    Expect("StreamedProfileString", orvanta::StreamedProfileString(read, section, key), expected);
  }
  return 0;
}
