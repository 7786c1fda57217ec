#pragma once

#include <archive.h>
#include <locale.h>
#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orvanta {

/// One entry of an image, found fit to be unpacked. Names lead from the image's root, which has none.
struct ImageEntry {
  std::vector<std::string> names;
  bool isFolder = false;
  std::vector<std::string> sameAs;  ///< the names of an entry before it with the same content
  std::uintmax_t size = 0;
  mode_t mode = 0;
};

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

/// Goes through an ISO 9660 image entry by entry, and stops at the first that is not fit.
class ImageReader {
 public:
  explicit ImageReader(const std::filesystem::path& image);

  std::string problem;  ///< empty while all is well
  /// Whence the content of the entry that came last is read.
  archive* Get() const { return archive_.get(); }

  /// The next entry; nothing at the end and after a problem.
  std::optional<ImageEntry> Next();

 private:
  struct CloseArchive {
    void operator()(archive* open) const { archive_read_free(open); }
  };

  std::optional<ImageEntry> Refuse(std::string why);
  std::optional<ImageEntry> Take(archive_entry* header);

  const Utf8Locale locale_;
  const std::unique_ptr<archive, CloseArchive> archive_;
};

/// What libarchive says of its last failure.
std::string ProblemOf(archive* image);

}  // namespace orvanta
