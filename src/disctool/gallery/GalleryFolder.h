#pragma once

#include <filesystem>
#include <map>
#include <mutex>
#include <string>

#include "disctool/gallery/GalleryPage.h"

namespace orvanta {

/// The folder that a gallery is made in. A list in it says which files are the gallery's own, so that an
/// interrupted gallery goes on where it stood, an old one is renewed, and a folder of other things is
/// refused.
class GalleryFolder {
 public:
  explicit GalleryFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Makes or takes over the folder. Files of a gallery of something else than `source` are removed. Gives
  /// what is in the way, empty if nothing is.
  std::string Open(const std::string& source);

  /// A picture of the same source that an earlier run has written; null if there is none.
  const GalleryPicture* Earlier(const std::string& file) const;
  /// What a picture that is about to be written will be.
  void Expect(const GalleryPicture& picture);
  /// Notes that the file is complete. Any thread.
  void Written(const std::string& file);

  /// Copies a file of the disc to `name`. False if that did not work.
  bool Copy(const std::filesystem::path& from, const std::string& name);
  /// Writes a text file beside the list, if it is not there with this text already. Gives what went wrong.
  std::string WriteText(const std::string& file, const std::string& text);
  /// Drops files of earlier runs that the gallery no longer has, and lists the rest in order. Gives what went
  /// wrong.
  std::string Finish();

  /// A text that changes with any file of the folder `disc` and with `settings`.
  static std::string Fingerprint(const std::filesystem::path& disc, const std::string& settings);

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
