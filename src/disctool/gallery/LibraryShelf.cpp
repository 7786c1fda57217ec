#include "disctool/gallery/LibraryShelf.h"

#include <algorithm>
#include <sstream>
#include <system_error>

#include "disctool/Translation.h"
#include "disctool/gallery/GalleryFolder.h"
#include "disctool/gallery/SiteFile.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFirstLine = "orvanta-library 1";

/// A name for the folder and the address of a disc: letters, digits and hyphens.
std::string Slug(const fs::path& disc) {
  fs::path name = disc.filename().empty() ? disc.parent_path().filename() : disc.filename();
  std::error_code error;
  if (!fs::is_directory(disc, error)) name = name.stem();
  std::string slug;
  for (const char c : name.string()) {
    const bool capital = c >= 'A' && c <= 'Z';
    if (capital || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) {
      slug += capital ? static_cast<char>(c - 'A' + 'a') : c;
    } else if (!slug.empty() && slug.back() != '-') {
      slug += '-';
    }
  }
  constexpr std::size_t kLongest = 60;
  slug = slug.substr(0, kLongest);
  return slug.empty() ? "disc" : slug;
}

}  // namespace

std::string LibraryShelf::Open() {
  std::error_code error;
  fs::create_directories(library_, error);
  if (error) return library_.string() + ": " + error.message();
  if (!fs::exists(ListFile(), error)) {
    if (!fs::is_empty(library_, error))
      return library_.string() + ": " + Translated("the folder is not empty, and it is not a library");
    return Save();
  }
  std::istringstream list(TextOfFile(ListFile()));
  std::string line;
  if (!std::getline(list, line) || line != kFirstLine)
    return ListFile().string() + ": " + Translated("this is not the list of a library");
  Disc disc;
  while (std::getline(list, disc.folder, '\t') && std::getline(list, disc.stamp, '\t') &&
         std::getline(list, disc.source, '\0') && list.get() == '\n')
    discs_.push_back(disc);
  return {};
}

std::size_t LibraryShelf::PlaceOf(const fs::path& disc) {
  const std::string source = fs::absolute(disc).lexically_normal().string();
  const auto known = std::ranges::find(discs_, source, &Disc::source);
  if (known != discs_.end()) return static_cast<std::size_t>(known - discs_.begin());
  const std::string slug = "discs/" + Slug(source);
  std::string folder = slug;
  for (int i = 2; std::ranges::find(discs_, folder, &Disc::folder) != discs_.end(); ++i)
    folder = slug + "-" + std::to_string(i);
  discs_.push_back({folder, source, {}});
  return discs_.size() - 1;
}

std::string LibraryShelf::Save() const {
  std::string list(kFirstLine);
  list += '\n';
  // A path may contain any character except NUL.
  for (const Disc& disc : discs_) list += disc.folder + '\t' + disc.stamp + '\t' + disc.source + '\0' + '\n';
  return WriteSiteFile(ListFile(), list);
}

std::string LibraryShelf::StampOf(const fs::path& disc) {
  std::error_code error;
  if (fs::is_directory(disc, error)) return GalleryFolder::Fingerprint(FolderTree(disc), {});
  const auto size = fs::file_size(disc, error);
  const auto changed = fs::last_write_time(disc, error).time_since_epoch().count();
  return error ? std::string() : std::to_string(size) + '-' + std::to_string(changed);
}

}  // namespace orvanta
