#include "disctool/gallery/Gallery.h"

#include <algorithm>
#include <map>
#include <utility>

#include "disctool/gallery/GalleryDisc.h"
#include "disctool/gallery/GalleryWalk.h"
#include "disctool/gallery/SiteFile.h"

namespace orvanta {
namespace {

namespace fs = std::filesystem;

/// Raised whenever the pictures of an unchanged disc change.
constexpr const char* kVersion = "1";

/// Finds the node to which a line in the disc's files belongs.
class SectionPlaces {
 public:
  SectionPlaces(const Catalogue& catalogue, const MenuTree& tree) {
    for (const Catalogue::File& file : catalogue.Files())
      for (const IniSection& section : file.ini.sections) begins_[file.path][section.line] = nullptr;
    for (const MenuNode& node : tree.nodes) {
      const DiscPlace place = catalogue.PlaceOf(node.name);
      if (catalogue.HasSection(node.name)) begins_[place.file][place.line] = &node;
    }
  }

  /// The node in whose section the line is; null if it is in another section.
  const MenuNode* NodeAt(const DiscPlace& place) const {
    const auto file = begins_.find(place.file);
    if (file == begins_.end()) return nullptr;
    const auto after = file->second.upper_bound(place.line);
    return after == file->second.begin() ? nullptr : std::prev(after)->second;
  }

 private:
  std::map<fs::path, std::map<int, const MenuNode*>> begins_;
};

void AddFindings(GalleryContents& contents, const Catalogue& catalogue, const MenuTree& tree,
                 const Findings& findings) {
  const SectionPlaces places(catalogue, tree);
  for (const Finding& finding : findings.List()) {
    // A gallery is the same wherever it is made.
    if (finding.severity == Finding::Severity::Note) continue;
    const MenuNode* node = places.NodeAt(finding.place);
    const std::size_t entry = node ? contents.root + static_cast<std::size_t>(node - tree.nodes.data()) : 0;
    auto& list =
        node && entry < contents.entries.size() ? contents.entries[entry].findings : contents.findings;
    list.push_back(finding.text);
  }
}

}  // namespace

MadeGallery MakeGallery(const DiscTree& disc, const fs::path& folder, const Findings& findings,
                        const Progress& progress) {
  const Catalogue catalogue(disc);
  if (catalogue.Empty()) return {{}, NoDiscIn(disc.Name())};
  GalleryFolder out(folder);
  if (std::string obstacle = out.Open(GalleryFolder::Fingerprint(disc, kVersion)); !obstacle.empty())
    return {{}, std::move(obstacle)};
  const MenuTree tree = ReadMenuTree(catalogue);
  const GalleryDisc copy(disc, catalogue, tree);
  if (!copy.problem.empty()) return {{}, copy.problem};
  GalleryWalk walk(copy.Folder(), catalogue, tree, out, progress);
  std::string problem = walk.Go();
  MadeGallery made{std::move(walk.contents), {}};
  const Setting caption = catalogue.Find("HEADLINE", "Caption");
  made.contents.title =
      caption ? caption.value : fs::absolute(disc.Name()).lexically_normal().filename().string();
  AddFindings(made.contents, catalogue, tree, findings);
  const std::pair<const char*, std::string> texts[] = {{"gallery.css", SiteFile("gallery.css")},
                                                       {"gallery.js", SiteFile("gallery.js")},
                                                       {"index.html", GalleryPage(made.contents)}};
  for (const auto& [name, text] : texts)
    if (problem.empty()) problem = out.WriteText(name, text);
  made.problem = problem.empty() ? out.Finish() : std::move(problem);
  return made;
}

}  // namespace orvanta
