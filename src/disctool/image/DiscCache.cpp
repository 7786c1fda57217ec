#include "disctool/image/DiscCache.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <QCryptographicHash>
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <vector>

#include "disctool/Translation.h"
#include "disctool/image/CopyWriter.h"
#include "disctool/image/HeldSignals.h"
#include "disctool/image/PackedArchive.h"
#include "disctool/image/PackedDisc.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// The extension of an unfinished copy. Whoever holds the lock knows that no other process is working on it.
constexpr std::string_view kUnfinished = ".part";
constexpr const char* kLockName = "lock";
/// Raised when copies made by older versions can no longer be used.
constexpr const char* kFormat = "2";

fs::path CacheHome() {
  const auto variable = [](const char* name) {
    const char* value = std::getenv(name);
    return fs::path(value ? value : "");
  };
  // The XDG rules demand that relative paths are ignored.
  if (fs::path cache = variable("XDG_CACHE_HOME"); cache.is_absolute()) return cache;
  const fs::path home = variable("HOME");
  return (home.is_absolute() ? home : fs::path("/")) / ".cache";
}

std::string Digest(const std::string& text) {
  constexpr qsizetype kLength = 16;
  return QCryptographicHash::hash(QByteArray::fromStdString(text), QCryptographicHash::Sha256)
      .toHex()
      .first(kLength)
      .toStdString();
}

/// A name made of the path of a disc and its state.
std::string NameOf(const fs::path& disc, const PackedDisc& packed) {
  std::error_code error;
  const fs::path place = fs::canonical(disc, error);
  return Digest(place.string()) + "-" + Digest(kFormat + packed.State());
}

std::string_view PlaceOf(std::string_view name) { return name.substr(0, name.find('-')); }

std::string Problem(const fs::path& path) { return path.string() + ": " + std::strerror(errno); }

/// A lock that every shell holds while it has the copy open.
Descriptor Hold(const fs::path& copy, int operation) {
  Descriptor folder(open(copy.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (folder && flock(folder.get(), operation) != 0) folder.reset();
  return folder;
}

std::vector<std::string> NamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    names.push_back(entry->path().filename().string());
  return names;
}

constexpr std::uintmax_t kMegabyte = 1'000'000;

/// Why there is no room for a copy; empty if there is.
std::string NoRoom(const fs::path& folder, const PackedContents& contents) {
  struct statvfs disk {};
  if (statvfs(folder.c_str(), &disk) != 0) return Problem(folder);
  const std::uintmax_t free = std::uintmax_t{disk.f_bavail} * disk.f_frsize;
  // Each file starts a new block.
  const std::uintmax_t needed = contents.bytes + contents.files * disk.f_frsize;
  if (needed <= free) return {};
  return Translated("unpacking takes %1 MB, but %2 has only %3 MB left", (needed + kMegabyte - 1) / kMegabyte,
                    folder.string(), free / kMegabyte);
}

/// All files in a copy, in bytes.
std::uintmax_t SizeOf(const fs::path& copy) {
  std::uintmax_t bytes = 0;
  std::error_code error;
  for (fs::recursive_directory_iterator at(copy, error), end; !error && at != end; at.increment(error)) {
    std::error_code ignored;
    if (at->symlink_status(ignored).type() == fs::file_type::regular) bytes += at->file_size(ignored);
  }
  return bytes;
}

OpenedDisc Failed(std::string problem) { return {{}, std::move(problem), {}}; }

}  // namespace

DiscCache::DiscCache(std::uintmax_t limit) : DiscCache(CacheHome() / "orvanta", limit) {}

Descriptor DiscCache::Lock(std::string& problem) const {
  std::error_code error;
  fs::create_directories(folder_.parent_path(), error);
  mkdir(folder_.c_str(), S_IRWXU);
  struct stat status {};
  const Descriptor folder(open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  if (!folder || fstat(folder.get(), &status) != 0) return problem = Problem(folder_), Descriptor();
  // Otherwise somebody else could put programs onto a disc.
  if (status.st_uid != geteuid() || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0)
    return problem = folder_.string() + ": " + Translated("other users may write to this folder"),
           Descriptor();
  Descriptor lock(
      openat(folder.get(), kLockName, O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
  if (!lock || flock(lock.get(), LOCK_EX) != 0) return problem = Problem(folder_ / kLockName), Descriptor();
  for (const std::string& name : NamesIn(folder_))
    if (name.ends_with(kUnfinished)) fs::remove_all(folder_ / name, error);
  return lock;
}

OpenedDisc DiscCache::Open(const fs::path& disc, const Progress& progress) const {
  std::error_code error;
  if (fs::is_directory(disc, error)) return {fs::absolute(disc, error), {}, {}};
  std::string problem;
  const auto packed = OpenPackedDisc(disc, problem);
  if (!packed) return Failed(problem);
  if (!packed->IsArchive()) return OpenCopy(disc, *packed, progress);
  OpenedDisc archive = OpenArchive(disc, progress);
  if (!archive.problem.empty() || fs::is_directory(archive.folder, error)) return archive;
  return Open(archive.folder, progress);
}

OpenedDisc DiscCache::OpenArchive(const fs::path& archive, const Progress& progress) const {
  std::string problem;
  const auto packed = OpenPackedDisc(archive, problem);
  OpenedDisc disc = packed ? OpenCopy(archive, *packed, progress) : Failed(problem);
  if (disc.problem.empty()) disc.folder = FindDiscIn(disc.folder, problem);
  return disc.folder.empty() && disc.problem.empty() ? Failed(archive.string() + ": " + problem)
                                                     : std::move(disc);
}

OpenedDisc DiscCache::OpenCopy(const fs::path& disc, const PackedDisc& packed,
                               const Progress& progress) const {
  const std::string name = NameOf(disc, packed);
  std::string problem;
  const Descriptor lock = Lock(problem);
  if (!lock) return Failed(problem);
  const fs::path place = folder_ / name;
  // Programs of another shell may be at work on what they have changed.
  Descriptor copy = Hold(place, LOCK_EX | LOCK_NB);
  if (copy) problem = packed.Restore(place);
  if (!problem.empty()) return Failed(disc.string() + ": " + problem);
  if (!copy) copy = Hold(place, LOCK_SH);
  if (!copy) return Unpack(disc, packed, name, progress);
  flock(copy.get(), LOCK_SH);
  // The date of its folder tells when a copy was last used.
  futimens(copy.get(), nullptr);
  return {place, {}, std::move(copy)};
}

OpenedDisc DiscCache::Unpack(const fs::path& disc, const PackedDisc& packed, const std::string& name,
                             const Progress& progress) const {
  const auto failed = [&](const std::string& why) { return Failed(disc.string() + ": " + why); };
  const PackedContents contents = packed.Contents();
  if (!contents.problem.empty()) return failed(contents.problem);
  RemoveOthers(name);
  MakeRoom(name, contents.bytes);
  if (const std::string problem = NoRoom(folder_, contents); !problem.empty()) return failed(problem);
  const HeldSignals untilItIsWholeOrGone;
  const fs::path unfinished = folder_ / (name + std::string(kUnfinished));
  if (mkdir(unfinished.c_str(), S_IRWXU) != 0) return Failed(Problem(unfinished));
  std::string problem = packed.Unpack(unfinished, contents, progress);
  std::string unused;
  const auto now = OpenPackedDisc(disc, unused);
  if (problem.empty() && (!now || now->State() != packed.State()))
    problem = Translated("the image has changed while it was read");
  // A copy in its final place must be complete even after a power cut.
  const Descriptor folder = Hold(unfinished, LOCK_SH);
  if (problem.empty() && (!folder || syncfs(folder.get()) != 0)) problem = Problem(unfinished);
  std::error_code error;
  if (problem.empty()) fs::rename(unfinished, folder_ / name, error);
  if (error) problem = error.message();
  if (!problem.empty()) {
    fs::remove_all(unfinished, error);
    return failed(problem);
  }
  return {folder_ / name, {}, Hold(folder_ / name, LOCK_SH)};
}

void DiscCache::MakeRoom(const std::string& name, std::uintmax_t wanted) const {
  struct Copy {
    fs::file_time_type used;
    fs::path place;
    std::uintmax_t bytes;
  };
  std::vector<Copy> copies;
  std::error_code error;
  for (const std::string& other : NamesIn(folder_)) {
    const fs::path place = folder_ / other;
    if (other == kLockName || other == name) continue;
    copies.push_back({fs::last_write_time(place, error), place, SizeOf(place)});
    wanted += copies.back().bytes;
  }
  std::ranges::sort(copies, {}, &Copy::used);
  for (const Copy& copy : copies) {
    if (wanted <= limit_) return;
    if (!Hold(copy.place, LOCK_EX | LOCK_NB)) continue;
    fs::remove_all(copy.place, error);
    wanted -= copy.bytes;
  }
}

void DiscCache::RemoveOthers(const std::string& name) const {
  std::error_code error;
  for (const std::string& other : NamesIn(folder_)) {
    if (PlaceOf(other) != PlaceOf(name) || other == name) continue;
    if (Hold(folder_ / other, LOCK_EX | LOCK_NB)) fs::remove_all(folder_ / other, error);
  }
}

std::string DiscCache::Clear() const {
  std::error_code error;
  if (!fs::exists(folder_, error)) return {};
  std::string problem;
  const Descriptor lock = Lock(problem);
  if (!lock) return problem;
  for (const std::string& name : NamesIn(folder_)) {
    if (name == kLockName) continue;
    if (!Hold(folder_ / name, LOCK_EX | LOCK_NB)) {
      problem = Translated("%1 is open in a shell", (folder_ / name).string());
    } else if (fs::remove_all(folder_ / name, error); error) {
      problem = (folder_ / name).string() + ": " + error.message();
    }
  }
  return problem;
}

}  // namespace orvanta
