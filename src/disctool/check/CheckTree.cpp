// Checks the menu tree: items that lead nowhere, too deep or in circles, and what entries lack.

#include <algorithm>
#include <string>
#include <unordered_set>
#include <vector>

#include "config/NumberedKey.h"
#include "config/Values.h"
#include "config/Windows1250.h"
#include "disctool/check/CheckJob.h"
#include "disctool/disc/NearestName.h"

namespace orvanta {
namespace {

/// The longest path to each node, and the items that lead back to a menu that contains them.
class Depths {
 public:
  explicit Depths(const MenuTree& tree) : tree_(tree), state_(tree.nodes.size()) {}

  std::vector<int> depth;
  std::vector<const MenuItem*> backwards;

  void Find() {
    Order();
    depth.assign(tree_.nodes.size(), 0);
    // In `finished_` each node comes after those that it leads to.
    for (auto at = finished_.rbegin(); at != finished_.rend(); ++at) {
      for (const MenuItem& item : tree_.nodes[*at].items) {
        if (!isBackwards_.contains(&item)) depth[item.node] = std::max(depth[item.node], depth[*at] + 1);
      }
    }
  }

 private:
  enum class State : char { Unseen, Open, Done };
  struct Step {
    std::size_t node, next;
  };

  /// Walks depth first and does not recurse, since the disc decides how deep the tree is.
  void Order() {
    std::vector<Step> way{{0, 0}};
    state_[0] = State::Open;
    while (!way.empty()) {
      Step& step = way.back();
      const auto& items = tree_.nodes[step.node].items;
      if (step.next == items.size()) {
        state_[step.node] = State::Done;
        finished_.push_back(step.node);
        way.pop_back();
        continue;
      }
      const MenuItem& item = items[step.next++];
      if (state_[item.node] == State::Open && isBackwards_.insert(&item).second) backwards.push_back(&item);
      if (state_[item.node] != State::Unseen) continue;
      state_[item.node] = State::Open;
      way.push_back({item.node, 0});
    }
  }

  const MenuTree& tree_;
  std::vector<State> state_;
  std::vector<std::size_t> finished_;
  std::unordered_set<const MenuItem*> isBackwards_;
};

void TooDeep(CheckJob& job) {
  const Setting levels = job.catalogue.Find("GLOBAL", "MenuLevels");
  const int most = WholeOf(levels.value);
  Depths depths(job.tree);
  depths.Find();
  for (const MenuItem* item : depths.backwards)
    job.findings.Warning(item->place, "circle",
                         Translated("'%1' leads back to a menu that contains it, so the way down never ends",
                                    job.tree.nodes[item->node].name));
  if (!levels) return;
  for (std::size_t i = 0; i < job.tree.nodes.size(); ++i) {
    if (depths.depth[i] > most) continue;
    for (const MenuItem& item : job.tree.nodes[i].items) {
      const MenuNode& node = job.tree.nodes[item.node];
      // An inert item is not entered, so it does not count as a level.
      if (depths.depth[item.node] == most + 1 && depths.depth[i] == most && node.kind != NodeKind::Inert)
        job.findings.Error(
            item.place, "too-deep",
            Translated("'%1' lies %2 levels deep, but MenuLevels is %3", node.name, most + 1, most));
    }
  }
}

/// The names of sections that nothing leads to; an item may have been meant to lead to one of them.
std::vector<std::string> Unreached(const CheckJob& job) {
  std::vector<std::string> names;
  for (const Catalogue::File& file : job.catalogue.Files()) {
    for (const IniSection& section : file.ini.sections) {
      const std::string name = FromWindows1250(section.name);
      if (!job.tree.Find(name) && FixedSection(name).empty()) names.push_back(name);
    }
  }
  return names;
}

void Inert(CheckJob& job) {
  // Comparing every item with every section only makes sense for discs with few faults.
  constexpr std::size_t kMostCandidates = 200;
  constexpr int kMostHints = 50;
  std::vector<std::string> names = Unreached(job);
  if (names.size() > kMostCandidates) names.clear();
  const std::vector<std::string_view> candidates(names.begin(), names.end());
  int hints = 0;
  for (const MenuNode& menu : job.tree.nodes) {
    for (const MenuItem& item : menu.items) {
      const MenuNode& node = job.tree.nodes[item.node];
      if (node.kind != NodeKind::Inert) continue;
      std::string text =
          job.catalogue.HasSection(node.name)
              ? Translated("'%1' leads nowhere: its section has neither Menu1 nor Execute nor PlayAs",
                           node.name)
              : Translated("'%1' leads nowhere: there is no section of that name", node.name);
      const auto nearest = hints < kMostHints ? NearestName(node.name, candidates) : std::string_view();
      if (!nearest.empty()) {
        ++hints;
        text += Translated("; did you mean %1?", "[" + std::string(nearest) + "]");
      }
      job.findings.Warning(item.place, "inert", text);
    }
  }
}

void Entry(CheckJob& job, const MenuNode& node) {
  const DiscPlace place = job.catalogue.PlaceOf(node.name);
  if (node.shots == 0)
    job.findings.Warning(place, "no-screenshot",
                         Translated("the entry '%1' has no screenshot: Shot1 is missing", node.name));
  for (const char* key : {"Note", "System"})
    if (!job.catalogue.Find(node.name, key))
      job.findings.Warning(place, "no-text",
                           Translated("the entry '%1' has an empty field: %2 is missing", node.name, key));
  const Setting playAs = job.catalogue.Find(node.name, "PlayAs");
  if (node.kind == NodeKind::Program) {
    if (playAs)
      job.findings.Warning(
          playAs.place, "not-played",
          Translated("PlayAs has no effect: '%1' has Execute and so is a program", node.name));
  } else if (!job.catalogue.Find(node.name, "Parameters")) {
    job.findings.Error(playAs.place, "nothing-to-play",
                       Translated("the entry '%1' has nothing to play: Parameters is missing", node.name));
  }
}

void Menu(CheckJob& job, const MenuNode& node) {
  if (!FixedSection(node.name).empty())
    job.findings.Warning(job.catalogue.PlaceOf(node.name), "fixed-section-as-menu",
                         Translated("[%1] is a section of settings and a menu at once", node.name));
  for (const char* key : {"Execute", "PlayAs"})
    if (const Setting found = job.catalogue.Find(node.name, key))
      job.findings.Warning(
          found.place, "menu-and-entry",
          Translated("'%1' is a menu, since it has items; %2 makes it an entry only after a page "
                     "has been closed",
                     node.name, key));
}

}  // namespace

void CheckTree(CheckJob& job) {
  const MenuNode& root = job.tree.nodes.front();
  if (root.kind != NodeKind::Menu)
    job.findings.Error(job.catalogue.PlaceOf(root.name), "empty-menu",
                       Translated("the first menu is empty: Menu1 of [MAINMENU] is missing"));
  TooDeep(job);
  Inert(job);
  for (const MenuNode& node : job.tree.nodes) {
    if (node.kind == NodeKind::Menu) Menu(job, node);
    if (node.kind != NodeKind::Menu && node.kind != NodeKind::Inert) Entry(job, node);
  }
}

}  // namespace orvanta
