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

/// One entry of an image that may be unpacked. Its names lead from the root of the image; the root itself has
/// none.
struct ImageEntry {
  std::vector<std::string> names;
  bool isFolder = false;
  std::vector<std::string> sameAs;  ///< the names of an earlier entry with the same content
  std::uintmax_t size = 0;
  mode_t mode = 0;
};

/// libarchive returns names in the character set of the locale, which must be UTF-8 whatever the user has.
/// The language of messages stays the user's.
class Utf8Locale {
 public:
  Utf8Locale()
      : utf8_(newlocale(LC_CTYPE_MASK, "C.UTF-8", duplocale(LC_GLOBAL_LOCALE))), before_(uselocale(utf8_)) {}
  Utf8Locale(const Utf8Locale&) = delete;
  Utf8Locale& operator=(const Utf8Locale&) = delete;
  ~Utf8Locale() {
    uselocale(before_);
    if (utf8_) freelocale(utf8_);
  }

 private:
  locale_t utf8_, before_;
};

/// Reads an ISO 9660 image entry by entry, and stops at the first one that must not be unpacked.
class ImageReader {
 public:
  explicit ImageReader(const std::filesystem::path& image);

  std::string problem;  ///< empty as long as there is none
  /// What the content of the last entry is read from.
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

/// libarchive's message about its last failure.
std::string ProblemOf(archive* image);

}  // namespace orvanta
