#include "disctool/disc/DiscFiles.h"

namespace orvanta {

const FoundPath& DiscFiles::Find(const std::string& windowsPath) {
  const auto before = found_.find(windowsPath);
  return before != found_.end() ? before->second
                                : found_.emplace(windowsPath, disc_.Find(windowsPath)).first->second;
}

template <class Value, class Try>
Value DiscFiles::Once(std::unordered_map<std::string, Value>& known, const std::string& path, Try attempt) {
  if (const auto before = known.find(path); before != known.end()) return before->second;
  Value value{};
  if (disc_.EntryAt(path).kind == DiscTree::Kind::File) {
    const std::filesystem::path file = disc_.OnHost(path);
    if (!file.empty()) value = attempt(file);
  }
  known.emplace(path, value);
  return value;
}

std::optional<Size> DiscFiles::PictureSize(const std::string& path) {
  return Once(pictures_, path, [&](const std::filesystem::path& file) { return probe_.PictureSize(file); });
}

std::vector<std::string> DiscFiles::FontNames(const std::string& path) {
  return Once(fonts_, path, [&](const std::filesystem::path& file) { return probe_.FontNames(file); });
}

std::string DiscFiles::DecodingProblem(const std::string& path) {
  return Once(decoded_, path,
              [&](const std::filesystem::path& file) { return probe_.DecodingProblem(file); });
}

bool DiscFiles::CanPlay(const std::string& path, bool film) {
  return Once(film ? films_ : sounds_, path,
              [&](const std::filesystem::path& file) { return probe_.CanPlay(file, film); });
}

}  // namespace orvanta
