#include "disctool/export/WebExport.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <system_error>

#include "disctool/Translation.h"
#include "disctool/disc/Catalogue.h"
#include "disctool/export/SinglePage.h"
#include "disctool/export/WebIndex.h"
#include "disctool/export/WebMediaFolder.h"
#include "disctool/gallery/SiteFile.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

constexpr const char* kIndexFile = "disc.json";
constexpr const char* kDiscFolder = "disc";
constexpr const char* kMediaFolder = "media";

ExportResult Failed(std::string problem) { return {{std::move(problem)}, false}; }

std::string Problem(const fs::path& file, const std::string& what) { return file.string() + ": " + what; }

/// Empty if `out` is new, empty or an earlier export.
std::string InTheWay(const fs::path& out) {
  std::error_code error;
  if (!fs::exists(out, error)) return {};
  if (!fs::is_directory(out, error)) return Problem(out, Translated("it is not a folder"));
  if (fs::is_empty(out, error) ||
      (fs::exists(out / kIndexFile, error) && fs::exists(out / "orvanta.wasm", error)))
    return {};
  return Problem(out, Translated("the folder is not empty, and it is not an exported disc"));
}

/// Copies one file of the disc if it is not there with this size and content already.
bool CopyOut(const DiscTree& disc, const std::string& path, const fs::path& to) {
  std::error_code error;
  fs::create_directories(to.parent_path(), error);
  const auto contents = disc.Read(path);
  if (!contents) return false;
  return WriteSiteFile(to, *contents).empty();
}

void RemoveOthers(const fs::path& folder, const WebFiles& files) {
  std::error_code error;
  std::vector<fs::path> foreign;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, error)) {
    const auto file = files.find(entry.path().lexically_relative(folder).string());
    if (!entry.is_directory(error) && (file == files.end() || !file->second.as.empty()))
      foreign.push_back(entry.path());
  }
  for (const fs::path& file : foreign) fs::remove(file, error);
}

std::string Title(const DiscTree& disc) {
  const std::string caption = Catalogue(disc).Find("HEADLINE", "Caption").value;
  return caption.empty() ? disc.Name().filename().string() : caption;
}

ExportResult ExportFolder(const DiscTree& disc, const fs::path& page, const fs::path& out, WebFiles files,
                          const Progress& progress) {
  std::error_code error;
  fs::create_directories(out / kMediaFolder, error);
  if (error) return Failed(Problem(out, error.message()));
  for (const fs::directory_entry& entry : fs::directory_iterator(page, error)) {
    if (!entry.is_regular_file(error)) continue;
    const std::string problem = WriteSiteFile(out / entry.path().filename(), TextOfFile(entry.path()));
    if (!problem.empty()) return Failed(problem);
  }
  ExportResult result{ConvertMedia(disc, out / kMediaFolder, files, progress), true};
  for (auto& [path, file] : files) {
    // What is played in its converted form is not needed in the other.
    if (!file.as.empty() || CopyOut(disc, path, out / kDiscFolder / path)) continue;
    result.problems.push_back(Problem(disc.Place(path), Translated("it cannot be read")));
  }
  RemoveOthers(out / kDiscFolder, files);
  const std::string problem = WriteSiteFile(out / kIndexFile, WebIndexJson(Title(disc), files));
  return problem.empty() ? result : Failed(problem);
}

ExportResult ExportFile(const DiscTree& disc, const fs::path& page, const fs::path& out, WebFiles files,
                        const Progress& progress) {
  std::error_code error;
  if (fs::is_directory(out, error)) return Failed(Problem(out, Translated("it is a folder")));
  fs::path media = out;
  media += ".media";
  fs::create_directories(media, error);
  if (error) return Failed(Problem(media, error.message()));
  ExportResult result{ConvertMedia(disc, media, files, progress), true};
  for (auto& [path, file] : files) {
    const fs::path converted = file.as.empty() ? fs::path() : media / fs::path(file.as).filename();
    file.data = Base64(converted.empty() ? disc.Read(path).value_or(std::string()) : TextOfFile(converted));
    file.as.clear();
  }
  fs::remove_all(media, error);
  const std::string html = SinglePage(page, WebIndexJson(Title(disc), files));
  if (html.empty()) return Failed(Problem(page, Translated("the page's program is not there")));
  const std::string problem = WriteSiteFile(out, html);
  return problem.empty() ? result : Failed(problem);
}

}  // namespace

ExportResult ExportDisc(const DiscTree& disc, const fs::path& page, const fs::path& out, bool singleFile,
                        const Progress& progress) {
  std::error_code error;
  if (Catalogue(disc).Empty()) return Failed(NoDiscIn(disc.Name()));
  if (!fs::is_regular_file(page / "orvanta.wasm", error))
    return Failed(Problem(page, Translated("the page's program is not there")));
  WebFiles files = ListWebFiles(disc);
  if (!singleFile) {
    const std::string problem = InTheWay(out);
    return problem.empty() ? ExportFolder(disc, page, out, std::move(files), progress) : Failed(problem);
  }
  std::uintmax_t size = 0;
  for (const auto& [path, file] : files) size += file.size;
  if (size > kLargestSingleFile)
    return Failed(Problem(disc.Name(), Translated("the disc is too large for a single file (%1 MB at most)",
                                                  kLargestSingleFile / 1'000'000)));
  return ExportFile(disc, page, out, std::move(files), progress);
}

fs::path InstalledPage() {
  std::error_code error;
  const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  return folder.parent_path() / "share" / "orvanta" / "web";
}

}  // namespace orvanta
