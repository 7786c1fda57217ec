#include "disctool/image/PackedArchive.h"

#include <algorithm>
#include <system_error>
#include <vector>

#include "config/Windows1250.h"
#include "disctool/Translation.h"
#include "disctool/disc/Catalogue.h"
#include "disctool/image/ArchiveReader.h"
#include "disctool/image/CopyWriter.h"
#include "disctool/image/volume/OpenImage.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

fs::path Joined(const fs::path& folder, const std::vector<std::string>& names) {
  fs::path path = folder;
  for (const std::string& name : names) path /= name;
  return path;
}

/// The folders on the way to an entry; an archive need not list them.
std::string EnsureFolders(const fs::path& folder, const std::vector<std::string>& names, std::size_t count) {
  fs::path path = folder;
  for (std::size_t i = 0; i < count; ++i) {
    path /= names[i];
    if (std::string problem = EnsureFolder(path); !problem.empty()) return problem;
  }
  return {};
}

/// Writes the files that are not as they were unpacked.
std::string Fill(const fs::path& file, const fs::path& folder, CopyWriter& out) {
  ArchiveReader reader(file);
  std::vector<char> part(256 * 1024);
  while (const auto entry = reader.Next()) {
    const fs::path path = Joined(folder, entry->names);
    std::string problem =
        EnsureFolders(folder, entry->names, entry->names.size() - (entry->isFolder ? 0 : 1));
    if (problem.empty() && (entry->isFolder || IsAsUnpacked(path, entry->size, entry->modified))) continue;
    std::error_code error;
    fs::remove_all(path, error);
    if (problem.empty()) problem = out.Begin(path, (entry->mode & 0111) != 0);
    for (la_ssize_t got = 1; got > 0 && problem.empty();) {
      got = archive_read_data(reader.Get(), part.data(), part.size());
      problem = got < 0 ? ProblemOf(reader.Get()) : out.Write({part.data(), static_cast<std::size_t>(got)});
    }
    if (problem.empty()) problem = out.End(entry->modified);
    if (!problem.empty()) return problem;
  }
  return reader.problem;
}

/// How sure it is that a file is what a user would name: sheets lead to the others.
bool IsSheet(const fs::path& file) {
  const std::string ending = file.extension().string();
  return std::ranges::any_of(std::initializer_list<const char*>{".cue", ".ccd", ".mds"},
                             [&](const char* sheet) { return EqualNoCase(ending, sheet); });
}

}  // namespace

bool IsArchiveFile(const ByteSource& bytes) {
  // APPNOTE.TXT, 4.3.7; 7zFormat.txt, "SignatureHeader".
  const std::string begin = bytes.Text(0, 6);
  return begin.starts_with("PK\3\4") || begin == "7z\xBC\xAF\x27\x1C";
}

PackedContents PackedArchive::Contents() const {
  PackedContents contents;
  ArchiveReader reader(file_);
  while (const auto entry = reader.Next()) {
    contents.bytes += entry->size;
    if (++contents.files > kMostPackedFiles) reader.problem = Translated("the archive has too many files");
  }
  contents.problem = reader.problem;
  return contents;
}

std::string PackedArchive::Unpack(const fs::path& folder, const PackedContents& contents,
                                  const Progress& progress) const {
  CopyWriter out(contents.bytes, progress);
  return Fill(file_, folder, out);
}

std::string PackedArchive::Restore(const fs::path& folder) const {
  const Progress unseen = [](std::uintmax_t, std::uintmax_t) {};
  CopyWriter out(Contents().bytes, unseen);
  return Fill(file_, folder, out);
}

fs::path FindDiscIn(const fs::path& folder, std::string& problem) {
  constexpr int kDeepest = 4;
  std::vector<fs::path> sheets, images;
  if (!Catalogue(FolderTree(folder)).Empty()) return folder;
  std::error_code error;
  for (fs::recursive_directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    if (at->is_directory(error)) {
      if (!Catalogue(FolderTree(at->path())).Empty()) return at->path();
      if (at.depth() + 1 == kDeepest) at.disable_recursion_pending();
    } else if (std::string unused; OpenVolume(at->path(), unused)) {
      (IsSheet(at->path()) ? sheets : images).push_back(at->path());
    }
  }
  const std::vector<fs::path>& found = sheets.empty() ? images : sheets;
  const bool one = !found.empty() && std::ranges::all_of(found, [&](const fs::path& other) {
    return other.parent_path() == found[0].parent_path() && other.stem() == found[0].stem();
  });
  if (one) return found[0];
  problem = found.empty()
                ? Translated("there is no disc in this archive")
                : Translated("there are several discs in this archive; unpack it and name one of them");
  return {};
}

}  // namespace orvanta
