#include "disctool/image/ArchiveReader.h"

#include <archive_entry.h>

#include <algorithm>
#include <string_view>

#include "disctool/OutputText.h"
#include "disctool/Translation.h"

namespace orvanta {
namespace {

/// The longest path of a file in an archive, in bytes; the path of the folder is added to it.
constexpr std::size_t kLongestName = 2000;

/// The names that lead to an entry; none for the root. Nothing if they lead out of the archive.
std::optional<std::vector<std::string>> NamesOf(std::string_view path) {
  std::vector<std::string> names;
  if (path.starts_with('/') || path.size() > kLongestName) return std::nullopt;
  while (!path.empty()) {
    const auto length = std::min(path.find('/'), path.size());
    const std::string name(path.substr(0, length));
    path.remove_prefix(std::min(length + 1, path.size()));
    if (name.empty() || name == ".") continue;
    // On the discs themselves a backslash is a separator.
    if (name == ".." || name.find('\\') != name.npos) return std::nullopt;
    names.push_back(name);
  }
  return names;
}

}  // namespace

std::string ProblemOf(archive* file) {
  const char* text = archive_error_string(file);
  return Translated("the archive cannot be read: %1", text ? text : "?");
}

ArchiveReader::ArchiveReader(const std::filesystem::path& file) : archive_(archive_read_new()) {
  archive_read_support_format_zip(Get());
  archive_read_support_format_7zip(Get());
  archive_read_set_options(Get(), "zip:hdrcharset=CP852");
  constexpr std::size_t kBlock = 64 * 1024;
  if (archive_read_open_filename(Get(), file.c_str(), kBlock) != ARCHIVE_OK) problem = ProblemOf(Get());
}

std::optional<ArchiveEntry> ArchiveReader::Next() {
  if (!problem.empty()) return std::nullopt;
  archive_entry* header = nullptr;
  const int result = archive_read_next_header(Get(), &header);
  if (result == ARCHIVE_EOF) return std::nullopt;
  // A warning means that a name could not be converted or that a directory is damaged.
  if (result != ARCHIVE_OK) return Refuse(ProblemOf(Get()));
  return Take(header);
}

std::optional<ArchiveEntry> ArchiveReader::Refuse(std::string why) {
  problem = std::move(why);
  return std::nullopt;
}

std::optional<ArchiveEntry> ArchiveReader::Take(archive_entry* header) {
  const char* path = archive_entry_pathname(header);
  if (!path) return Refuse(Translated("the archive has a name that cannot be read"));
  const std::string shown = "'" + Printable(path) + "'";
  const auto names = NamesOf(path);
  if (!names) return Refuse(Translated("the archive has a name that leads out of it: %1", shown));
  const auto type = archive_entry_filetype(header);
  if (type == AE_IFLNK) return Refuse(Translated("the archive has a link in it: %1", shown));
  if (type != AE_IFREG && type != AE_IFDIR)
    return Refuse(Translated("the archive has something in it that is neither file nor folder: %1", shown));
  ArchiveEntry entry{*names, type == AE_IFDIR, 0, archive_entry_perm(header), archive_entry_mtime(header)};
  if (names->empty() && !entry.isFolder) return Refuse(Translated("the archive has a file without a name"));
  const auto size = archive_entry_size(header);
  if (size < 0) return Refuse(Translated("the archive has a file of an impossible size: %1", shown));
  entry.size = static_cast<std::uintmax_t>(size);
  return entry;
}

}  // namespace orvanta
