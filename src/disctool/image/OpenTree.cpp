#include "disctool/image/OpenTree.h"

#include <system_error>

#include "disctool/image/volume/OpenImage.h"

namespace orvanta {

std::unique_ptr<DiscTree> OpenTree(const std::filesystem::path& disc, std::string& problem) {
  std::error_code error;
  if (std::filesystem::is_directory(disc, error)) return std::make_unique<FolderTree>(disc);
  return OpenImage(disc, problem);
}

}  // namespace orvanta
