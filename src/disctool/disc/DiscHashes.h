#pragma once

#include <string>
#include <vector>

#include "disctool/disc/DiscTree.h"

namespace orvanta {

/// The SHA-256 hashes of the files of a disc, and of its image.
struct DiscHashes {
  struct File {
    std::string path;  ///< as `DiscTree` names it
    std::string sha256;
  };
  std::string image;  ///< that of the image's file; empty for a folder
  std::vector<File> files;
  std::string problem;  ///< which file could not be read; empty if all could
};

DiscHashes HashesOf(const DiscTree& disc);

/// A manifest for `sha256sum -c` and for BagIt (RFC 8493): a line for each file of a folder, with paths
/// relative to where the user has named the folder. For an image, only the line of the image's own file
/// counts; those of the files in it are comments, which both programs ignore.
std::string ManifestText(const DiscTree& disc, const DiscHashes& hashes);
/// `{"image", "files": [{"path", "sha256"}]}`
std::string HashesJson(const DiscHashes& hashes);

}  // namespace orvanta
