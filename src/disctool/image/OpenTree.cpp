#include "disctool/image/OpenTree.h"

#include <system_error>
#include <utility>

#include "disctool/image/DiscCache.h"
#include "disctool/image/PackedArchive.h"
#include "disctool/image/volume/OpenImage.h"

namespace orvanta {
namespace {

/// A tree of what an archive was unpacked to, which stays there as long as the tree.
template <class Tree>
class HeldTree : public Tree {
 public:
  template <class... Arguments>
  explicit HeldTree(OpenedDisc disc, Arguments&&... arguments)
      : Tree(std::forward<Arguments>(arguments)...), disc_(std::move(disc)) {}

 private:
  const OpenedDisc disc_;
};

std::unique_ptr<DiscTree> OpenArchived(const std::filesystem::path& archive, std::string& problem) {
  OpenedDisc disc = DiscCache().OpenArchive(archive, [](std::uintmax_t, std::uintmax_t) {});
  problem = disc.problem;
  if (!problem.empty()) return nullptr;
  const std::filesystem::path found = disc.folder;
  std::error_code error;
  if (std::filesystem::is_directory(found, error))
    return std::make_unique<HeldTree<FolderTree>>(std::move(disc), archive, found);
  std::unique_ptr<const Volume> volume = OpenVolume(found, problem);
  if (!volume) return nullptr;
  return std::make_unique<HeldTree<ImageTree>>(std::move(disc), archive / found.filename(),
                                               std::move(volume));
}

}  // namespace

std::unique_ptr<DiscTree> OpenTree(const std::filesystem::path& disc, std::string& problem) {
  std::error_code error;
  if (std::filesystem::is_directory(disc, error)) return std::make_unique<FolderTree>(disc);
  const Bytes bytes = OpenBytes(disc, problem);
  if (!bytes) return nullptr;
  return IsArchiveFile(*bytes) ? OpenArchived(disc, problem) : OpenImage(disc, problem);
}

}  // namespace orvanta
