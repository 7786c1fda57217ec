#include "disctool/image/DiscImage.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <map>
#include <span>

#include "disctool/Translation.h"
#include "disctool/image/HeldSignals.h"
#include "disctool/image/ImageReader.h"
#include "platform/desktop/Descriptor.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// A disc has thousands of files; an image with more than this is malicious.
constexpr std::uintmax_t kMostFiles = 1'000'000;

fs::path Joined(const fs::path& folder, const std::vector<std::string>& names) {
  fs::path path = folder;
  for (const std::string& name : names) path /= name;
  return path;
}

std::string SystemProblem(const fs::path& path) { return path.string() + ": " + std::strerror(errno); }

class Unpacker {
 public:
  Unpacker(const fs::path& folder, const ImageContents& contents, const Progress& progress)
      : folder_(folder), contents_(contents), progress_(progress) {}

  std::string Unpack(ImageReader& reader) {
    while (const auto entry = reader.Next()) {
      if (std::string problem = Place(reader.Get(), *entry); !problem.empty()) return problem;
    }
    return reader.problem;
  }

 private:
  std::string Place(archive* image, const ImageEntry& entry) {
    const fs::path path = Joined(folder_, entry.names);
    std::error_code error;
    fs::create_directories(entry.isFolder ? path : path.parent_path(), error);
    if (error) return path.string() + ": " + error.message();
    if (entry.isFolder) return {};
    // No entry is a link, so nothing here leads out of the folder. O_EXCL refuses a name that occurs twice.
    constexpr mode_t kOwner = S_IRUSR | S_IWUSR;
    const mode_t mode = kOwner | (entry.mode & S_IXUSR);
    const Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode));
    if (!file) return SystemProblem(path);
    return entry.sameAs.empty() ? FromImage(image, file, path)
                                : FromFile(Joined(folder_, entry.sameAs), file, path);
  }

  std::string FromImage(archive* image, const Descriptor& file, const fs::path& path) {
    std::vector<char> part(256 * 1024);
    for (;;) {
      const la_ssize_t got = archive_read_data(image, part.data(), part.size());
      if (got < 0) return ProblemOf(image);
      if (got == 0) return {};
      if (std::string problem = Write(file, path, {part.data(), static_cast<std::size_t>(got)});
          !problem.empty())
        return problem;
    }
  }

  std::string FromFile(const fs::path& source, const Descriptor& file, const fs::path& path) {
    const Descriptor from(open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    if (!from) return SystemProblem(source);
    std::vector<char> part(256 * 1024);
    for (;;) {
      const ssize_t got = read(from.get(), part.data(), part.size());
      if (got < 0) return SystemProblem(source);
      if (got == 0) return {};
      if (std::string problem = Write(file, path, {part.data(), static_cast<std::size_t>(got)});
          !problem.empty())
        return problem;
    }
  }

  std::string Write(const Descriptor& file, const fs::path& path, std::span<const char> part) {
    written_ += part.size();
    while (!part.empty()) {
      const ssize_t put = write(file.get(), part.data(), part.size());
      if (put < 0 && errno == EINTR) continue;
      if (put < 0) return SystemProblem(path);
      part = part.subspan(static_cast<std::size_t>(put));
    }
    progress_(written_, contents_.bytes);
    return EndPending() ? "interrupted" : std::string();
  }

  const fs::path& folder_;
  const ImageContents& contents_;
  const Progress& progress_;
  std::uintmax_t written_ = 0;
};

}  // namespace

ImageContents ReadImage(const fs::path& image) {
  ImageContents contents;
  ImageReader reader(image);
  // A second name for the same content has no size in the image, but takes up as much space.
  std::map<std::vector<std::string>, std::uintmax_t> sizes;
  while (const auto entry = reader.Next()) {
    const std::uintmax_t size = entry->sameAs.empty() ? entry->size : sizes[entry->sameAs];
    sizes.emplace(entry->names, size);
    contents.bytes += size;
    if (++contents.files > kMostFiles) reader.problem = Translated("the image has too many files");
  }
  contents.problem = reader.problem;
  return contents;
}

std::string UnpackImage(const fs::path& image, const ImageContents& contents, const fs::path& folder,
                        const Progress& progress) {
  ImageReader reader(image);
  return Unpacker(folder, contents, progress).Unpack(reader);
}

}  // namespace orvanta
