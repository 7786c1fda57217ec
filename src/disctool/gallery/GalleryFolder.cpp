#include "disctool/gallery/GalleryFolder.h"

#include <QCryptographicHash>
#include <algorithm>
#include <fstream>
#include <sstream>
#include <system_error>
#include <vector>

#include "disctool/Translation.h"
#include "disctool/disc/DiscWalk.h"
#include "disctool/gallery/SiteFile.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFirstWords = "orvanta-gallery 1 ";
/// The extension of a file that is still being written; an interrupted run leaves such files.
constexpr std::string_view kPart = ".part";

/// A line of the list. The names of the gallery's pictures have no blanks.
std::string Line(const GalleryPicture& picture) {
  return picture.file + ' ' + std::to_string(picture.size.width) + ' ' + std::to_string(picture.size.height) +
         (picture.ground.empty() ? "" : ' ' + picture.ground) + '\n';
}

bool Parse(const std::string& line, GalleryPicture& picture) {
  std::istringstream words(line);
  if (!(words >> picture.file >> picture.size.width >> picture.size.height)) return false;
  words >> picture.ground;
  return true;
}

/// The list may have been tampered with: nothing outside of the gallery's folder may be touched.
bool StaysInside(const std::string& file) {
  const fs::path path(file);
  return path.is_relative() && std::ranges::none_of(path, [](const fs::path& part) { return part == ".."; });
}

}  // namespace

std::string GalleryFolder::Open(const std::string& source) {
  source_ = source;
  std::error_code error;
  fs::create_directories(folder_ / "pictures", error);
  if (error) return folder_.string() + ": " + error.message();
  if (fs::exists(ListFile(), error)) {
    if (!ReadList(source)) RemoveListed();
  } else {
    const auto isForeign = [](const fs::directory_entry& entry) {
      return entry.path().filename() != "pictures";
    };
    fs::directory_iterator entries(folder_, error);
    if (error) return folder_.string() + ": " + error.message();
    if (std::ranges::any_of(entries, isForeign) || !fs::is_empty(folder_ / "pictures", error))
      return folder_.string() + ": " + Translated("the folder is not empty, and it is not a gallery");
  }
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_ / "pictures", error))
    if (entry.path().extension() == kPart) fs::remove(entry.path(), error);
  std::string list(kFirstWords);
  list += source + '\n';
  for (const auto& [file, picture] : earlier_) list += Line(picture);
  return WriteSiteFile(ListFile(), list);
}

/// False if the list belongs to another source or is damaged.
bool GalleryFolder::ReadList(const std::string& source) {
  std::istringstream list(TextOfFile(ListFile()));
  std::string line;
  std::getline(list, line);
  const bool same = line == std::string(kFirstWords) + source;
  std::error_code error;
  while (std::getline(list, line)) {
    GalleryPicture picture;
    // The last line of an interrupted run may be incomplete.
    if (!Parse(line, picture) || !StaysInside(picture.file)) continue;
    if (fs::is_regular_file(folder_ / picture.file, error)) earlier_[picture.file] = picture;
  }
  return same;
}

void GalleryFolder::RemoveListed() {
  std::error_code error;
  for (const auto& [file, picture] : earlier_) fs::remove(folder_ / file, error);
  earlier_.clear();
}

const GalleryPicture* GalleryFolder::Earlier(const std::string& file) const {
  const auto found = earlier_.find(file);
  return found == earlier_.end() ? nullptr : &found->second;
}

void GalleryFolder::Expect(const GalleryPicture& picture) {
  const std::lock_guard lock(mutex_);
  expected_[picture.file] = picture;
}

void GalleryFolder::Written(const std::string& file) {
  const std::lock_guard lock(mutex_);
  const auto found = expected_.find(file);
  if (found == expected_.end()) return;
  if (!earlier_.contains(file))
    std::ofstream(ListFile(), std::ios::binary | std::ios::app) << Line(found->second);
  written_.insert(*found);
}

bool GalleryFolder::Copy(const fs::path& from, const std::string& name) {
  std::error_code error;
  // Copying a FIFO would wait for a writer.
  if (!fs::is_regular_file(from, error)) return false;
  if (!Earlier(name)) {
    const fs::path part = folder_ / (name + std::string(kPart));
    if (!fs::copy_file(from, part, fs::copy_options::overwrite_existing, error)) return false;
    fs::rename(part, folder_ / name, error);
    if (error) return false;
  }
  Expect({name, {}, {}, {}});
  Written(name);
  return true;
}

std::string GalleryFolder::WriteText(const std::string& file, const std::string& text) {
  return WriteSiteFile(folder_ / file, text);
}

std::string GalleryFolder::Finish() {
  std::error_code error;
  std::string list(kFirstWords);
  list += source_ + '\n';
  for (const auto& [file, picture] : written_) list += Line(picture);
  for (const auto& [file, picture] : earlier_)
    if (!written_.contains(file)) fs::remove(folder_ / file, error);
  return WriteSiteFile(ListFile(), list);
}

std::string GalleryFolder::Fingerprint(const DiscTree& disc, const std::string& settings) {
  const bool onHost = !disc.OnHost({}).empty();
  std::vector<std::string> lines;
  for (const DiscFile& file : FilesOf(disc)) {
    std::string& line = lines.emplace_back(file.path + ' ' + std::to_string(file.entry.size) + ' ' +
                                           std::to_string(file.entry.modified));
    std::error_code ignored;
    // Two changes in one second are told apart.
    if (onHost)
      line += ' ' +
              std::to_string(fs::last_write_time(disc.OnHost(file.path), ignored).time_since_epoch().count());
  }
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(QByteArrayView(settings.data(), static_cast<qsizetype>(settings.size())));
  for (const std::string& line : lines)
    hash.addData(QByteArrayView(line.c_str(), static_cast<qsizetype>(line.size()) + 1));
  return hash.result().toHex().toStdString();
}

}  // namespace orvanta
