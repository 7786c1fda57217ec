#include "disctool/command/DiscDiff.h"

#include <algorithm>
#include <map>
#include <set>

#include "config/Windows1250.h"
#include "disctool/check/CheckJob.h"
#include "disctool/disc/DiscProbe.h"
#include "disctool/disc/DiscWalk.h"

namespace orvanta {
namespace {

using Names = std::vector<std::string>;

/// Maps section and key, folded, to their spelling.
using KeyMap = std::map<std::pair<std::string, std::string>, std::pair<std::string, std::string>>;

void AddKeys(KeyMap& keys, const Catalogue& catalogue) {
  for (const Catalogue::File& file : catalogue.Files())
    for (const IniSection& section : file.ini.sections)
      for (const IniEntry& entry : section.entries) {
        const std::string name = FromWindows1250(section.name), key = FromWindows1250(entry.key);
        keys.try_emplace({FoldedName(name), FoldedName(key)}, name, key);
      }
}

/// Whether it is a key such as "Menu3"; these are compared as lists.
bool IsItem(std::string_view key) {
  constexpr std::string_view kItem = "Menu";
  return key.size() > kItem.size() && EqualNoCase(key.substr(0, kItem.size()), kItem) &&
         key.find_first_not_of("0123456789", kItem.size()) == key.npos;
}

void CompareValues(DiscDiff& diff, const Catalogue& before, const Catalogue& after) {
  KeyMap keys;
  AddKeys(keys, before);
  AddKeys(keys, after);
  for (const auto& [folded, spelled] : keys) {
    const auto& [section, key] = spelled;
    if (IsItem(key)) continue;
    std::string was = before.Find(section, key).value, is = after.Find(section, key).value;
    if (was == is) continue;
    auto& list = FixedSection(section).empty() ? diff.texts : diff.settings;
    list.push_back({section, key, std::move(was), std::move(is)});
  }
}

Names ItemsOf(const MenuTree& tree, const MenuNode* menu) {
  Names items;
  if (menu)
    for (const MenuItem& item : menu->items) items.push_back(tree.nodes[item.node].name);
  return items;
}

/// The elements of `names` that `others` lacks, as many times as it lacks them.
Names Lacking(const Names& names, const Names& others) {
  std::multiset<std::string> there;
  for (const std::string& other : others) there.insert(FoldedName(other));
  Names lacking;
  for (const std::string& name : names) {
    const auto found = there.find(FoldedName(name));
    if (found == there.end()) {
      lacking.push_back(name);
    } else {
      there.erase(found);
    }
  }
  return lacking;
}

/// `names` without those of `gone`, ignoring case.
Names Staying(const Names& names, const Names& gone) {
  std::multiset<std::string> left;
  for (const std::string& name : gone) left.insert(FoldedName(name));
  Names staying;
  for (const std::string& name : names) {
    const auto found = left.find(FoldedName(name));
    if (found == left.end()) {
      staying.push_back(FoldedName(name));
    } else {
      left.erase(found);
    }
  }
  return staying;
}

void CompareMenu(DiscDiff& diff, const std::string& name, const Names& was, const Names& is) {
  DiscDiff::Menu menu{name, Lacking(was, is), Lacking(is, was)};
  menu.reordered = Staying(was, menu.removed) != Staying(is, menu.added);
  if (menu.reordered || !menu.removed.empty() || !menu.added.empty()) diff.menus.push_back(std::move(menu));
}

void CompareMenus(DiscDiff& diff, const MenuTree& before, const MenuTree& after) {
  for (const MenuNode& menu : before.nodes)
    CompareMenu(diff, menu.name, ItemsOf(before, &menu), ItemsOf(after, after.Find(menu.name)));
  for (const MenuNode& menu : after.nodes)
    if (!before.Find(menu.name)) CompareMenu(diff, menu.name, {}, ItemsOf(after, &menu));
}

bool SameBytes(const DiscTree& before, const DiscFile& was, const DiscTree& after, const DiscFile& is) {
  constexpr std::uintmax_t kPart = 1024 * 1024;
  if (was.entry.size != is.entry.size) return false;
  for (std::uintmax_t at = 0; at < was.entry.size; at += kPart) {
    const auto left = before.Read(was.path, at, kPart), right = after.Read(is.path, at, kPart);
    if (!left || !right || *left != *right) return false;
  }
  return true;
}

/// Recognises the signatures of GIF, BMP, JPEG and PNG, the formats on discs. Only such files are decoded to
/// compare pixels.
bool LooksLikePicture(const DiscTree& disc, const std::string& path) {
  const std::string begin = disc.Read(path, 0, 4).value_or("");
  for (const char* mark : {"GIF8", "BM", "\xFF\xD8", "\x89PNG"})
    if (begin.starts_with(mark)) return true;
  return false;
}

void CompareFiles(DiscDiff& diff, const DiscTree& before, const DiscTree& after, DiscProbe& probe) {
  std::map<std::string, std::pair<const DiscFile*, const DiscFile*>> both;
  const auto was = FilesOf(before), is = FilesOf(after);
  for (const DiscFile& file : was) both.try_emplace(FoldedName(file.path), &file, nullptr);
  for (const DiscFile& file : is)
    if (auto& pair = both[FoldedName(file.path)]; !pair.second) pair.second = &file;
  for (const auto& [folded, pair] : both) {
    const auto& [left, right] = pair;
    DiscDiff::File file{right ? right->path : left->path, {}, {}};
    if (left) file.before = left->entry.size;
    if (right) file.after = right->entry.size;
    if (left && right && SameBytes(before, *left, after, *right)) continue;
    if (left && right && LooksLikePicture(before, left->path) && LooksLikePicture(after, right->path))
      file.pixels = probe.DifferentPixels(before.OnHost(left->path), after.OnHost(right->path));
    diff.files.push_back(std::move(file));
  }
}

}  // namespace

DiscDiff Compare(const DiscTree& before, const DiscTree& after, DiscProbe& probe) {
  DiscDiff diff;
  const Catalogue was(before), is(after);
  CompareValues(diff, was, is);
  CompareMenus(diff, ReadMenuTree(was), ReadMenuTree(is));
  CompareFiles(diff, before, after, probe);
  return diff;
}

}  // namespace orvanta
