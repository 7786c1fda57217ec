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

/// One entry of an archive that may be unpacked. Its names lead from the root of the archive; the root itself
/// has none.
struct ArchiveEntry {
  std::vector<std::string> names;
  bool isFolder = false;
  std::uintmax_t size = 0;
  mode_t mode = 0;
  std::int64_t modified = 0;  ///< seconds since 1970 in UTC
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

/// Reads a ZIP or 7z archive entry by entry, and stops at the first one that must not be unpacked. Names of a
/// ZIP that are not marked as UTF-8 are in CP852, as DOS and Windows write them in Poland.
class ArchiveReader {
 public:
  explicit ArchiveReader(const std::filesystem::path& file);

  std::string problem;  ///< empty as long as there is none
  /// What the content of the last entry is read from.
  archive* Get() const { return archive_.get(); }

  /// The next entry; nothing at the end and after a problem.
  std::optional<ArchiveEntry> Next();

 private:
  struct CloseArchive {
    void operator()(archive* open) const { archive_read_free(open); }
  };

  std::optional<ArchiveEntry> Refuse(std::string why);
  std::optional<ArchiveEntry> Take(archive_entry* header);

  const Utf8Locale locale_;
  const std::unique_ptr<archive, CloseArchive> archive_;
};

/// libarchive's message about its last failure.
std::string ProblemOf(archive* file);

}  // namespace orvanta
