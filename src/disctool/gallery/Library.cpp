#include "disctool/gallery/Library.h"

#include <algorithm>
#include <system_error>

#include "disctool/gallery/LibraryPage.h"
#include "disctool/gallery/LibraryShelf.h"
#include "disctool/gallery/SiteFile.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// Kept beside each gallery, so that the page of the library can be made again without the disc.
constexpr const char *kCard = "card.html", *kIndex = "search.json";

/// Makes or renews the gallery of one disc. Returns what went wrong; empty on success.
std::string Shelve(LibraryShelf& shelf, const fs::path& disc, const GalleryMaker& make) {
  const std::string stamp = LibraryShelf::StampOf(disc);
  const std::size_t place = shelf.PlaceOf(disc);
  if (!stamp.empty() && shelf.At(place).stamp == stamp) return {};
  shelf.At(place).stamp.clear();
  if (std::string problem = shelf.Save(); !problem.empty()) return problem;
  const fs::path folder = shelf.FolderOf(place);
  std::error_code error;
  fs::create_directories(folder.parent_path(), error);
  MadeGallery made = make(disc, folder);
  if (made.problem.empty())
    made.problem = WriteSiteFile(folder / kCard, LibraryCard(made.contents, shelf.At(place).folder));
  if (made.problem.empty())
    made.problem = WriteSiteFile(folder / kIndex, LibraryIndex(made.contents, shelf.At(place).folder));
  if (made.problem.empty()) shelf.At(place).stamp = stamp;
  return made.problem;
}

std::string WriteSite(const fs::path& out, const LibraryShelf& shelf) {
  std::vector<std::string> cards;
  std::string index = "const entries = [\n";
  for (std::size_t i = 0; i < shelf.Discs().size(); ++i) {
    const std::string card = TextOfFile(shelf.FolderOf(i) / kCard);
    if (card.empty()) continue;
    cards.push_back(card);
    index += TextOfFile(shelf.FolderOf(i) / kIndex);
  }
  const std::pair<const char*, std::string> texts[] = {{"gallery.css", SiteFile("gallery.css")},
                                                       {"library.js", SiteFile("library.js")},
                                                       {"search-index.js", index + "];\n"},
                                                       {"index.html", LibraryPage(cards)}};
  for (const auto& [name, text] : texts)
    if (std::string problem = WriteSiteFile(out / name, text); !problem.empty()) return problem;
  return shelf.Save();
}

}  // namespace

std::vector<std::string> MakeLibrary(const fs::path& out, const std::vector<fs::path>& discs,
                                     const GalleryMaker& make, const Progress& progress) {
  LibraryShelf shelf(out);
  if (std::string obstacle = shelf.Open(); !obstacle.empty()) return {obstacle};
  std::vector<std::string> problems;
  for (std::size_t i = 0; i < discs.size(); ++i) {
    progress(i, discs.size());
    if (std::string problem = Shelve(shelf, discs[i], make); !problem.empty())
      problems.push_back(std::move(problem));
  }
  if (std::string problem = WriteSite(out, shelf); !problem.empty()) problems.push_back(std::move(problem));
  progress(discs.size(), discs.size());
  return problems;
}

}  // namespace orvanta
