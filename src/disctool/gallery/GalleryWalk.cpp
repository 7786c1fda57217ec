#include "disctool/gallery/GalleryWalk.h"

#include <algorithm>

#include "disctool/Translation.h"

namespace orvanta {

GalleryWalk::GalleryWalk(const std::filesystem::path& disc, const Catalogue& catalogue, const MenuTree& tree,
                         GalleryFolder& folder, const Progress& progress)
    : host_(disc),
      shell_(host_),
      folder_(folder),
      progress_(progress),
      catalogue_(catalogue),
      tree_(tree),
      writer_([this](const std::filesystem::path& file) {
        folder_.Written(file.lexically_relative(folder_.Path()).string());
      }),
      visited_(tree.nodes.size()) {
  // A disc with thousands of entries takes hours on the virtual clock.
  host_.deadline = kNever;
}

std::string GalleryWalk::Go() {
  bool ended = false;
  try {
    StartScreen();
    Pages();
    contents.root = contents.entries.size();
    for (const MenuNode& node : tree_.nodes) AddEntry(node.name).kind = KindInWords(node.kind);
    contents.entries[contents.root].title = "Menu główne";
    for (std::size_t i = 0; i < tree_.nodes.size(); ++i)
      for (const MenuItem& item : tree_.nodes[i].items)
        contents.entries[contents.root + i].items.push_back(contents.root + item.node);
    Tree();
  } catch (const ProgramEnd&) {
    ended = true;
  }
  std::string problem = writer_.Finish();
  return problem.empty() && ended ? Translated("the shell ended by itself") : problem;
}

GalleryEntry& GalleryWalk::AddEntry(std::string title) {
  current_ = contents.entries.size();
  pictures_ = 0;
  contents.entries.emplace_back().title = std::move(title);
  return contents.entries.back();
}

std::string GalleryWalk::NextName() {
  const std::string number = std::to_string(current_);
  return "pictures/" + std::string(5 - std::min<std::size_t>(5, number.size()), '0') + number + "-" +
         std::to_string(++pictures_) + ".png";
}

/// Whether an earlier run has written this picture already.
bool GalleryWalk::TakeEarlier(GalleryPicture& picture) {
  const GalleryPicture* earlier = folder_.Earlier(picture.file);
  if (!earlier) return false;
  picture.size = earlier->size;
  picture.ground = earlier->ground;
  folder_.Expect(picture);
  folder_.Written(picture.file);
  return true;
}

void GalleryWalk::Write(const GalleryPicture& picture, QImage image) {
  folder_.Expect(picture);
  if (!writer_.Write(folder_.Path() / picture.file, std::move(image))) throw ProgramEnd{};
}

void GalleryWalk::Save(const Form& form, std::string text) {
  GalleryPicture picture{NextName(), {}, {}, std::move(text)};
  if (TakeEarlier(picture)) {
    if (picture.ground.empty() && layers_.WantsGrounds())
      layers_.AddGround(picture.file,
                        QImage(QString::fromStdString((folder_.Path() / picture.file).string())));
  } else {
    QImage view = host_.PictureOf(form);
    // A window without an area has nothing to show.
    if (view.isNull()) return;
    picture.size = {view.width(), view.height()};
    auto [image, ground] = layers_.Split(picture.file, std::move(view), !Current().views.empty());
    picture.ground = std::move(ground);
    Write(picture, std::move(image));
  }
  Current().views.push_back(std::move(picture));
}

/// Saves a view of the main window. Further views of the same entry show what scrolling reveals.
void GalleryWalk::SaveView() {
  const GalleryEntry& entry = Current();
  std::string text = entry.title;
  if (!entry.kind.empty()) text = "Okno główne, " + entry.kind + ": " + text;
  if (!entry.views.empty()) text += ", ciąg dalszy " + std::to_string(entry.views.size());
  Save(*shell_.MainForm, std::move(text));
}

/// Walks depth first and does not recurse, since the disc decides how deep the tree is. No node is entered
/// twice.
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
    if (visited_[node] || !Enter(node, number)) continue;
    if (visits_ == kMostNodes) {
      contents.remark = "Pokazano pierwsze " + std::to_string(kMostNodes) + " pozycji z " +
                        std::to_string(tree_.nodes.size()) + ".";
      return;
    }
    Visit(node);
    if (tree_.nodes[node].kind == NodeKind::Menu) {
      way.push_back({node, 0});
    } else {
      main.imgBack_Click();
    }
  }
}

/// Clicks the label of a node. False if that leads nowhere, because the node is inert or the path is full.
bool GalleryWalk::Enter(std::size_t node, std::size_t number) {
  if (tree_.nodes[node].kind == NodeKind::Inert) {
    visited_[node] = true;
    return false;
  }
  MainForm& main = *shell_.MainForm;
  const std::int16_t level = main.MenuLevel;
  main.lblPos1_Click(static_cast<std::int16_t>(number));
  return main.MenuLevel != level;
}

void GalleryWalk::Visit(std::size_t node) {
  visited_[node] = true;
  ++visits_;
  current_ = contents.root + node;
  pictures_ = 0;
  host_.RunFor(100);
  SaveView();
  const MenuNode& visited = tree_.nodes[node];
  if (visited.kind == NodeKind::Menu) {
    Menu();
  } else {
    Texts(visited);
    Shots(visited);
  }
  if (visited.kind == NodeKind::Music) Sound(visited);
  if (visited.kind == NodeKind::Film) Cinema();
  progress_(visits_, std::min(visited_.size(), kMostNodes));
}

}  // namespace orvanta
