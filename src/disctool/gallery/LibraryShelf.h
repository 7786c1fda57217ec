#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace orvanta {

/// The discs of a library and the folders of their galleries, as the list in the library's folder has them.
class LibraryShelf {
 public:
  struct Disc {
    std::string folder;  ///< of its gallery, from the library's folder on
    std::string source;  ///< the absolute path that it was named by
    std::string stamp;   ///< changes with the disc; empty until its gallery is complete
  };

  explicit LibraryShelf(std::filesystem::path library) : library_(std::move(library)) {}

  /// Takes over the library's folder, or makes it. Gives what is in the way, empty if nothing is.
  std::string Open();
  /// The place of a disc, old or new.
  std::size_t PlaceOf(const std::filesystem::path& disc);
  Disc& At(std::size_t place) { return discs_[place]; }
  const std::vector<Disc>& Discs() const { return discs_; }
  std::filesystem::path FolderOf(std::size_t place) const { return library_ / discs_[place].folder; }
  /// Gives what went wrong, empty if nothing did.
  std::string Save() const;

  /// A text that changes when a disc does: of a folder with any of its files, of an image with its size or
  /// time.
  static std::string StampOf(const std::filesystem::path& disc);

 private:
  std::filesystem::path ListFile() const { return library_ / "library.list"; }

  const std::filesystem::path library_;
  std::vector<Disc> discs_;
};

}  // namespace orvanta
