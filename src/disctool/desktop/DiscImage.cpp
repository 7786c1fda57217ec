#include "disctool/desktop/DiscImage.h"

#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <locale.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "disctool/OutputText.h"
#include "platform/desktop/Descriptor.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// A disc has thousands of files; an image with more than this is made to do harm.
constexpr std::uintmax_t kMostFiles = 1'000'000;
/// The longest path of a file in an image; the folder's own comes on top.
constexpr std::size_t kLongestName = 2000;

/// libarchive gives names in the character set of the locale, whatever that is of the user.
class Utf8Locale {
 public:
  Utf8Locale() : utf8_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)), before_(uselocale(utf8_)) {}
  Utf8Locale(const Utf8Locale&) = delete;
  Utf8Locale& operator=(const Utf8Locale&) = delete;
  ~Utf8Locale() {
    uselocale(before_);
    if (utf8_) freelocale(utf8_);
  }

 private:
  locale_t utf8_, before_;
};

struct CloseArchive {
  void operator()(archive* open) const { archive_read_free(open); }
};
using Archive = std::unique_ptr<archive, CloseArchive>;

std::string ProblemOf(archive* image) {
  const char* text = archive_error_string(image);
  return std::string("the image cannot be read: ") + (text ? text : "unknown fault");
}

/// The names that lead to an entry, empty for the root; nothing if they lead out of the image.
std::optional<std::vector<std::string>> NamesOf(std::string_view path) {
  std::vector<std::string> names;
  if (path.starts_with('/') || path.size() > kLongestName) return std::nullopt;
  while (!path.empty()) {
    const auto length = std::min(path.find('/'), path.size());
    const std::string name(path.substr(0, length));
    path.remove_prefix(std::min(length + 1, path.size()));
    if (name.empty() || name == ".") continue;
    // A backslash is a separator to the discs themselves.
    if (name == ".." || name.find('\\') != name.npos) return std::nullopt;
    names.push_back(name);
  }
  return names;
}

/// One entry of an image, found fit to be unpacked.
struct Entry {
  std::vector<std::string> names;
  bool isFolder = false;
  std::vector<std::string> sameAs;  ///< the names of an entry before it with the same content
  std::uintmax_t size = 0;
  mode_t mode = 0;
};

class Reader {
 public:
  explicit Reader(const fs::path& image) : archive_(archive_read_new()) {
    archive_read_support_format_iso9660(archive_.get());
    if (archive_read_open_filename(archive_.get(), image.c_str(), 64 * 1024) != ARCHIVE_OK)
      problem = ProblemOf(Get());
  }

  std::string problem;
  archive* Get() const { return archive_.get(); }

  /// The next entry; nothing at the end and after a problem.
  std::optional<Entry> Next() {
    if (!problem.empty()) return std::nullopt;
    archive_entry* header = nullptr;
    const int result = archive_read_next_header(Get(), &header);
    if (result == ARCHIVE_EOF) return std::nullopt;
    // A warning tells of a name that could not be converted or of a broken directory.
    if (result != ARCHIVE_OK) return Refuse(ProblemOf(Get()));
    return Take(header);
  }

 private:
  std::optional<Entry> Refuse(std::string why) {
    problem = std::move(why);
    return std::nullopt;
  }

  std::optional<Entry> Take(archive_entry* header) {
    const char* path = archive_entry_pathname(header);
    if (!path) return Refuse("the image has a name that cannot be read");
    const std::string shown = "'" + Printable(path) + "'";
    const auto names = NamesOf(path);
    if (!names) return Refuse("the image has a name that leads out of it: " + shown);
    const auto type = archive_entry_filetype(header);
    const char* same = archive_entry_hardlink(header);
    if (type == AE_IFLNK) return Refuse("the image has a link in it: " + shown);
    if (type != AE_IFREG && type != AE_IFDIR && !same)
      return Refuse("the image has something in it that is neither file nor folder: " + shown);
    Entry entry{*names, type == AE_IFDIR, {}, 0, archive_entry_perm(header)};
    if (names->empty() && !entry.isFolder) return Refuse("the image has a file without a name");
    if (same) {
      const auto first = NamesOf(same);
      if (!first || first->empty()) return Refuse("the image has a name that leads out of it: " + shown);
      entry.sameAs = *first;
    }
    const auto size = archive_entry_size(header);
    if (size < 0) return Refuse("the image has a file of an impossible size: " + shown);
    entry.size = static_cast<std::uintmax_t>(size);
    return entry;
  }

  const Archive archive_;
};

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

  std::string Unpack(Reader& reader) {
    while (const auto entry = reader.Next()) {
      if (std::string problem = Place(reader.Get(), *entry); !problem.empty()) return problem;
    }
    return reader.problem;
  }

 private:
  std::string Place(archive* image, const Entry& entry) {
    const fs::path path = Joined(folder_, entry.names);
    std::error_code error;
    fs::create_directories(entry.isFolder ? path : path.parent_path(), error);
    if (error) return path.string() + ": " + error.message();
    if (entry.isFolder) return {};
    // No entry is ever a link, so nothing here leads out of the folder; O_EXCL refuses a name given twice.
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
    return {};
  }

  const fs::path& folder_;
  const ImageContents& contents_;
  const Progress& progress_;
  std::uintmax_t written_ = 0;
};

}  // namespace

ImageContents ReadImage(const fs::path& image) {
  const Utf8Locale names;
  ImageContents contents;
  Reader reader(image);
  // A name for the content of another has no size of its own, but takes as much space.
  std::map<std::vector<std::string>, std::uintmax_t> sizes;
  while (const auto entry = reader.Next()) {
    const std::uintmax_t size = entry->sameAs.empty() ? entry->size : sizes[entry->sameAs];
    sizes.emplace(entry->names, size);
    contents.bytes += size;
    if (++contents.files > kMostFiles) reader.problem = "the image has too many files";
  }
  contents.problem = reader.problem;
  return contents;
}

std::string UnpackImage(const fs::path& image, const ImageContents& contents, const fs::path& folder,
                        const Progress& progress) {
  const Utf8Locale names;
  Reader reader(image);
  return Unpacker(folder, contents, progress).Unpack(reader);
}

}  // namespace orvanta
