#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace orvanta {

/// The discs of a library and the folders of their galleries, as stored in the list in the library's folder.
class LibraryShelf {
 public:
  struct Disc {
    std::string folder;  ///< the folder of its gallery, relative to the library's folder
    std::string source;  ///< its absolute path
    std::string stamp;   ///< changes when the disc does; empty until its gallery is complete
  };

  explicit LibraryShelf(std::filesystem::path library) : library_(std::move(library)) {}

  /// Takes over the folder of the library, or creates it. Returns what is wrong with the folder; empty if
  /// nothing is.
  std::string Open();
  /// The index of a disc, which is added if it is new.
  std::size_t PlaceOf(const std::filesystem::path& disc);
  Disc& At(std::size_t place) { return discs_[place]; }
  const std::vector<Disc>& Discs() const { return discs_; }
  std::filesystem::path FolderOf(std::size_t place) const { return library_ / discs_[place].folder; }
  /// Returns what went wrong; empty on success.
  std::string Save() const;

  /// A text that changes when a disc does: for a folder, when any of its files does; for an image, when its
  /// size or time does.
  static std::string StampOf(const std::filesystem::path& disc);

 private:
  std::filesystem::path ListFile() const { return library_ / "library.list"; }

  const std::filesystem::path library_;
  std::vector<Disc> discs_;
};

}  // namespace orvanta
