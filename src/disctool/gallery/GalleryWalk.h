#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "disctool/Progress.h"
#include "disctool/gallery/GalleryHost.h"
#include "disctool/gallery/GalleryPage.h"
#include "startup/Shell.h"

namespace orvanta {

/// Goes through a disc as a user would, and pictures what it sees.
class GalleryWalk {
 public:
  GalleryWalk(const std::filesystem::path& disc, std::filesystem::path folder, const Progress& progress);

  void Go();

  std::vector<GalleryEntry> entries;
  std::size_t root = 0;  ///< the entry of the first menu
  std::string fault;     ///< what went wrong, empty if nothing did

 private:
  void StartScreen();
  void Pages();
  void Page(Image& page, BarButton button, const char* title);
  void PointAt(const Image& button);
  void Tree();
  void Visit(std::size_t node);
  void Menu();
  void Shots();
  void Viewer();
  void Cinema();
  template <class Window, class Close>
  void SaveModal(FormSlot<Window, Shell>& window, Milliseconds delay, const std::function<void()>& open,
                 Close close);
  void Scroll(bool shots, int view);
  void Save(const Form& form);
  std::size_t EntryOf(std::size_t node) const { return root + node; }

  GalleryHost host_;
  Shell shell_;
  const std::filesystem::path folder_;
  const Progress& progress_;
  const Catalogue catalogue_;
  const MenuTree tree_;
  std::vector<bool> visited_;
  std::size_t current_ = 0;  // the entry that the next picture belongs to
};

}  // namespace orvanta
