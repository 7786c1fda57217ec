#include "disctool/disc/DiscHashes.h"

#include <fstream>
#include <optional>

#include "disctool/JsonObject.h"
#include "disctool/disc/DiscWalk.h"
#include "disctool/disc/Sha256.h"

namespace orvanta {
namespace {

constexpr std::size_t kPart = 1024 * 1024;

/// The hash of a file; nothing if it cannot be read to its end.
std::optional<std::string> HashOf(const DiscTree& disc, const DiscFile& file) {
  Sha256 hash;
  for (std::uintmax_t at = 0; at < file.entry.size;) {
    const auto part = disc.Read(file.path, at, kPart);
    if (!part || part->empty()) return std::nullopt;
    hash.Add(*part);
    at += part->size();
  }
  return hash.Done();
}

std::optional<std::string> HashOf(const std::filesystem::path& image) {
  std::ifstream in(image, std::ios::binary);
  Sha256 hash;
  std::string part(kPart, '\0');
  while (in) {
    in.read(part.data(), static_cast<std::streamsize>(part.size()));
    hash.Add(std::string_view(part).substr(0, static_cast<std::size_t>(in.gcount())));
  }
  return in.eof() ? std::optional(hash.Done()) : std::nullopt;
}

/// A line as sha256sum writes it: if the name has a line break or a backslash, the name is escaped and the
/// line marked.
std::string Line(const std::string& hash, const std::string& name) {
  std::string escaped;
  for (const char c : name) {
    if (c == '\\') escaped += "\\\\";
    if (c == '\n') escaped += "\\n";
    if (c == '\r') escaped += "\\r";
    if (c != '\\' && c != '\n' && c != '\r') escaped += c;
  }
  return (escaped == name ? "" : "\\") + hash + "  " + escaped + "\n";
}

}  // namespace

DiscHashes HashesOf(const DiscTree& disc) {
  DiscHashes hashes;
  std::error_code error;
  if (std::filesystem::is_regular_file(disc.Name(), error)) {
    const auto hash = HashOf(disc.Name());
    if (!hash) hashes.problem = disc.Name().native();
    hashes.image = hash.value_or("");
  }
  for (const DiscFile& file : FilesOf(disc)) {
    const auto hash = HashOf(disc, file);
    if (hash) hashes.files.push_back({file.path, *hash});
    if (!hash && hashes.problem.empty()) hashes.problem = disc.Place(file.path).native();
  }
  return hashes;
}

std::string ManifestText(const DiscTree& disc, const DiscHashes& hashes) {
  std::string text = hashes.image.empty() ? "" : Line(hashes.image, disc.Name().native());
  for (const DiscHashes::File& file : hashes.files)
    text += hashes.image.empty() ? Line(file.sha256, disc.Place(file.path).native())
                                 : "# " + Line(file.sha256, file.path);
  return text;
}

std::string HashesJson(const DiscHashes& hashes) {
  std::vector<std::string> files;
  for (const DiscHashes::File& file : hashes.files)
    files.push_back(JsonObject().Text("path", file.path).Text("sha256", file.sha256).Done());
  return JsonObject().Text("image", hashes.image).Value("files", JsonArray(files)).Done();
}

}  // namespace orvanta
