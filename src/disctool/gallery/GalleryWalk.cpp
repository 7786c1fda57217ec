#include "disctool/gallery/GalleryWalk.h"

#include <algorithm>

namespace orvanta {

GalleryWalk::GalleryWalk(const std::filesystem::path& disc, std::filesystem::path folder,
                         const Progress& progress)
    : host_(disc),
      shell_(host_),
      folder_(std::move(folder)),
      progress_(progress),
      catalogue_(FolderTree(disc)),
      tree_(ReadMenuTree(catalogue_)),
      visited_(tree_.nodes.size()) {
  // A disc of thousands of entries takes hours of the virtual clock.
  host_.deadline = kNever;
}

void GalleryWalk::Go() {
  try {
    StartScreen();
    Pages();
    root = entries.size();
    for (const MenuNode& node : tree_.nodes)
      entries.push_back({node.name, std::string(NameOf(node.kind)), {}, {}});
    for (std::size_t i = 0; i < tree_.nodes.size(); ++i)
      for (const MenuItem& item : tree_.nodes[i].items)
        entries[EntryOf(i)].items.push_back(EntryOf(item.node));
    Tree();
  } catch (const ProgramEnd&) {
    if (fault.empty()) fault = "the shell ended by itself";
  }
}

void GalleryWalk::Save(const Form& form) {
  GalleryEntry& entry = entries[current_];
  std::string name = std::to_string(current_);
  name = std::string(5 - std::min<std::size_t>(5, name.size()), '0') + name + "-" +
         std::to_string(entry.files.size() + 1) + ".png";
  const QImage picture = host_.PictureOf(form);
  // A window without an area shows nothing.
  if (picture.isNull()) return;
  if (!picture.save(QString::fromStdString((folder_ / name).string()), "PNG")) {
    fault = (folder_ / name).string() + " cannot be written";
    throw ProgramEnd{};
  }
  entry.files.push_back(std::move(name));
}

/// Depth first, with a stack of its own: a disc decides how deep it goes. Nothing is entered twice.
void GalleryWalk::Tree() {
  struct Step {
    std::size_t node, next;
  };
  MainForm& main = *shell_.MainForm;
  std::vector<Step> way{{0, 0}};
  Visit(0);
  while (!way.empty()) {
    Step& step = way.back();
    const auto& items = tree_.nodes[step.node].items;
    if (step.next == items.size()) {
      way.pop_back();
      if (!way.empty()) main.imgBack_Click();
      continue;
    }
    const std::size_t number = step.next++;
    const std::size_t node = items[number].node;
    if (visited_[node]) continue;
    if (tree_.nodes[node].kind == NodeKind::Inert) {
      visited_[node] = true;
      continue;
    }
    const std::int16_t level = main.MenuLevel;
    main.lblPos1_Click(static_cast<std::int16_t>(number));
    // The path is full.
    if (main.MenuLevel == level) continue;
    Visit(node);
    if (tree_.nodes[node].kind == NodeKind::Menu) {
      way.push_back({node, 0});
    } else {
      main.imgBack_Click();
    }
  }
}

void GalleryWalk::Visit(std::size_t node) {
  visited_[node] = true;
  current_ = EntryOf(node);
  host_.RunFor(100);
  Save(*shell_.MainForm);
  if (tree_.nodes[node].kind == NodeKind::Menu) {
    Menu();
  } else {
    Shots();
    Viewer();
  }
  if (tree_.nodes[node].kind == NodeKind::Film) Cinema();
  progress_(static_cast<std::uintmax_t>(std::ranges::count(visited_, true)), visited_.size());
}

}  // namespace orvanta
