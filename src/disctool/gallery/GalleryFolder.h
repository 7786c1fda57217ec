#pragma once

#include <filesystem>
#include <map>
#include <mutex>
#include <string>

#include "disctool/disc/DiscTree.h"
#include "disctool/gallery/GalleryPage.h"

namespace orvanta {

/// The folder of a gallery. A list in it names the gallery's own files, so that an interrupted gallery is
/// continued, an old one is renewed, and a folder with other content is refused.
class GalleryFolder {
 public:
  explicit GalleryFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Creates or takes over the folder. The files of a gallery of another source are removed. Returns what is
  /// wrong with the folder; empty if nothing is.
  std::string Open(const std::string& source);

  /// A picture of the same source that an earlier run has written; null if there is none.
  const GalleryPicture* Earlier(const std::string& file) const;
  /// Announces a picture that is about to be written.
  void Expect(const GalleryPicture& picture);
  /// Records that the file is complete. May be called on any thread.
  void Written(const std::string& file);

  /// Copies a file of the disc to `name`. False if that fails.
  bool Copy(const std::filesystem::path& from, const std::string& name);
  /// Writes a text file beside the list, unless it exists with this content. Returns what went wrong; empty
  /// on success.
  std::string WriteText(const std::string& file, const std::string& text);
  /// Removes files of earlier runs that the gallery does not have any more, and writes the list in order.
  /// Returns what went wrong; empty on success.
  std::string Finish();

  /// A text that changes whenever a file of the disc or `settings` changes.
  static std::string Fingerprint(const DiscTree& disc, const std::string& settings);

  const std::filesystem::path& Path() const { return folder_; }

 private:
  std::filesystem::path ListFile() const { return folder_ / "gallery.list"; }
  bool ReadList(const std::string& source);
  void RemoveListed();

  const std::filesystem::path folder_;
  std::string source_;
  std::map<std::string, GalleryPicture> earlier_;
  std::mutex mutex_;
  std::map<std::string, GalleryPicture> expected_, written_;
};

}  // namespace orvanta
