#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "disctool/Progress.h"
#include "disctool/gallery/GalleryFolder.h"
#include "disctool/gallery/GalleryHost.h"
#include "disctool/gallery/PictureLayers.h"
#include "disctool/gallery/PictureWriter.h"
#include "startup/Shell.h"

namespace orvanta {

/// Walks through a disc as a user would and takes screenshots on the way.
class GalleryWalk {
 public:
  /// The most nodes that are visited; the rest of a larger tree is left out.
  static constexpr std::size_t kMostNodes = 10'000;

  GalleryWalk(const std::filesystem::path& disc, const Catalogue& catalogue, const MenuTree& tree,
              GalleryFolder& folder, const Progress& progress);

  /// Returns what went wrong; empty on success.
  std::string Go();

  GalleryContents contents;  ///< everything except the title and the findings

 private:
  void StartScreen();
  void Pages();
  void Page(Image& page, BarButton button, const char* title);
  void PointAt(const Image& button);
  void Tree();
  bool Enter(std::size_t node, std::size_t number);
  void Visit(std::size_t node);
  void Menu();
  void Texts(const MenuNode& node);
  void Sound(const MenuNode& node);
  void Shots(const MenuNode& node);
  void Cinema();
  void Scroll(bool shots, int view);
  GalleryEntry& AddEntry(std::string title);
  GalleryEntry& Current() { return contents.entries[current_]; }
  std::string NextName();
  bool TakeEarlier(GalleryPicture& picture);
  void Write(const GalleryPicture& picture, QImage image);
  void Save(const Form& form, std::string text);
  void SaveView();

  GalleryHost host_;
  Shell shell_;
  GalleryFolder& folder_;
  const Progress& progress_;
  const Catalogue& catalogue_;
  const MenuTree& tree_;
  PictureLayers layers_;
  PictureWriter writer_;
  std::map<std::filesystem::path, GalleryPicture> shots_;  // by file of the disc
  std::vector<bool> visited_;
  std::size_t visits_ = 0;
  std::size_t current_ = 0;   // the entry of the next picture
  std::size_t pictures_ = 0;  // number of pictures of the current entry
};

}  // namespace orvanta
