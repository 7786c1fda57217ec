#include "platform/desktop/MediaUri.h"

#include <array>
#include <fstream>
#include <string_view>

#include "platform/desktop/GstHandles.h"

namespace orvanta {
namespace {

// RIFF, a length of four bytes, then the form type (Microsoft, Multimedia Programming Interface 1.0).
bool IsWave(const std::filesystem::path& file) {
  std::array<char, 12> head{};
  std::ifstream(file, std::ios::binary).read(head.data(), head.size());
  const std::string_view view(head.data(), head.size());
  return view.starts_with("RIFF") && view.ends_with("WAVE");
}

}  // namespace

std::string MediaUri(const std::filesystem::path& file) {
  std::error_code noFile;
  const std::string absolute = std::filesystem::absolute(file, noFile).string();
  const GstHandle<char> encoded(g_filename_to_uri(absolute.c_str(), nullptr, nullptr));
  if (!encoded) return {};
  // Read by random access, a sound of an odd number of bytes or with a few bytes after it ends at once and
  // unheard; read as a stream it plays. Many old voices are like that.
  return (IsWave(file) ? "push" : "") + std::string(encoded.get());
}

}  // namespace orvanta
