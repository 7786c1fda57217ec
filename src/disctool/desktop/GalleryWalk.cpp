#include "disctool/desktop/GalleryWalk.h"

#include <algorithm>

namespace orvanta {
namespace {

// Buttons of the main window and of the cinema.
constexpr std::int16_t kHelpButton = 3, kAboutButton = 7, kFilmButton = 9, kCinemaStop = 1;
constexpr int kLabelHeight = 26, kShotHeight = 82;

}  // namespace

GalleryWalk::GalleryWalk(const std::filesystem::path& disc, std::filesystem::path folder,
                         const Progress& progress)
    : host_(disc),
      shell_(host_),
      folder_(std::move(folder)),
      progress_(progress),
      catalogue_(disc),
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

void GalleryWalk::StartScreen() {
  // As on a machine with sound, but without waiting for the voice.
  shell_.modMain.Main();
  if (const Form* screen = shell_.frmReklama.Loaded(); screen && screen->Visible) {
    entries.push_back({"Start screen", "", {}, {}});
    current_ = entries.size() - 1;
    Save(*screen);
  }
  while (!shell_.MainForm.Loaded() || !shell_.MainForm->Visible) host_.RunFor(500);
  host_.RunFor(100);
}

void GalleryWalk::Pages() {
  Page(shell_.MainForm->imgPomoc, kHelpButton, "Help page");
  Page(shell_.MainForm->imgSeven, kAboutButton, "About page");
}

void GalleryWalk::Page(Image& page, std::int16_t button, const char* title) {
  MainForm& main = *shell_.MainForm;
  main.ButtonM_Click(button);
  if (!page.Visible) return;
  entries.push_back({title, "", {}, {}});
  current_ = entries.size() - 1;
  Save(main);
  Scroll(false, static_cast<int>(main.picTlo.Height()));
  page.Click();
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
  }
  if (tree_.nodes[node].kind == NodeKind::Film && !std::exchange(cinemaSeen_, true)) Cinema();
  progress_(static_cast<std::uintmax_t>(std::ranges::count(visited_, true)), visited_.size());
}

void GalleryWalk::Menu() {
  const MainForm& main = *shell_.MainForm;
  const double strip = main.imgKreska.Visible ? main.imgKreska.Height() : 0;
  Scroll(false, static_cast<int>(main.picTlo.Height - strip) - kLabelHeight);
}

void GalleryWalk::Shots() {
  Scroll(true, static_cast<int>(shell_.MainForm->picShotTlo.Height()) - kShotHeight);
}

/// Drags the knob down, each time by as much as brings `view` further pixels of the content to sight.
void GalleryWalk::Scroll(bool shots, int view) {
  MainForm& main = *shell_.MainForm;
  if (!(main.SuwakScale > 0)) return;
  const auto drag = [&](std::int16_t direction, std::int32_t pixels) {
    main.SuwakDir = direction;
    shots ? main.MoveSSuwak(pixels) : main.MoveSuwak(pixels);
    main.SuwakDir = -1;
  };
  constexpr std::int16_t kUp = 0, kDown = 1;
  const double wanted = std::max(1.0, view / static_cast<double>(main.SuwakScale));
  const auto step = static_cast<std::int32_t>(std::min(wanted, 1e9));
  while (main.SuwakY < main.YMax) {
    drag(kDown, step);
    // A hand is never as sudden: a list that jumps to where the last one stood would not be moved.
    drag(kUp, 1);
    drag(kDown, 1);
    Save(main);
  }
}

/// The window comes to sight inside the click that opens it.
void GalleryWalk::Cinema() {
  std::string problem;
  host_.After(3000, [&] {
    frmKino* cinema = shell_.frmKino.Loaded();
    if (!cinema) return;
    try {
      Save(*cinema);
    } catch (const ProgramEnd&) {
      problem = fault;
    }
    cinema->ButtonM_Click(kCinemaStop);
  });
  shell_.MainForm->ButtonM_Click(kFilmButton);
  if (!problem.empty()) throw ProgramEnd{};
}

}  // namespace orvanta
