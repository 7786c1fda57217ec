#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "support/TemporaryFolder.h"

namespace orvanta::test {

/// Keys of a section with their texts.
using Keys = std::vector<std::pair<std::string, std::string>>;

/// A disc in a temporary folder that is removed with the object. It starts complete: every fixed key has a
/// value and every picture a file; the menu tree is empty. Texts are given in UTF-8 and written in
/// Windows-1250.
class TestDisc {
 public:
  TestDisc();

  const std::filesystem::path& Folder() const { return folder_.Path(); }
  std::filesystem::path Data() const { return Folder() / "Data"; }

  /// Sets a key of Data/Menu.ini and writes the file.
  void Set(const std::string& section, const std::string& key, const std::string& value) {
    sections_[section][key] = value;
    Write();
  }
  void Remove(const std::string& section, const std::string& key) {
    sections_[section].erase(key);
    Write();
  }
  /// Sets `Menu1`, `Menu2` and so on of a node.
  void Menu(const std::string& node, const std::vector<std::string>& children);
  /// Adds an entry with one screenshot and the given keys.
  void Entry(const std::string& name, const Keys& keys);
  /// Sets `Shot1` up to the given number, all with the same picture.
  void Shots(const std::string& entry, int count);

  /// Writes a GIF file of this size and colour (0xRRGGBB) below Data.
  void Picture(const std::string& name, int width, int height, std::uint32_t colour = 0x406080);
  /// Writes a silent WAV file below Data/Sound.
  void Sound(const std::string& name, double seconds);
  /// Writes any file in the disc's folder.
  void File(const std::string& path, const std::string& bytes) { folder_.File(path, bytes); }

  /// The key must exist.
  const std::string& Value(const std::string& section, const std::string& key) const {
    return sections_.at(section).at(key);
  }
  /// Section and key of every setting that Menu.ini has now.
  test::Keys Keys() const;
  /// Every file below Data except texts, in order, with paths from the disc's folder.
  std::vector<std::filesystem::path> Files() const;

 private:
  void Write() const;

  TemporaryFolder folder_;
  std::map<std::string, std::map<std::string, std::string>> sections_;
};

}  // namespace orvanta::test
