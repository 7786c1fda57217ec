#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace orvanta::test {

/// Of a picture for which no other is asked.
inline constexpr std::uint32_t kPlainColour = 0x406080;

/// A disc in a temporary folder that goes with the object. It begins complete: every fixed key has a value
/// and every picture a file; the tree is empty. Texts are UTF-8 and are written in Windows-1250.
class TestDisc {
 public:
  TestDisc();
  ~TestDisc();
  TestDisc(const TestDisc&) = delete;
  TestDisc& operator=(const TestDisc&) = delete;

  const std::filesystem::path& Folder() const { return folder_; }
  std::filesystem::path Data() const { return folder_ / "Data"; }

  /// Sets a key of Data/Menu.ini and writes the file anew.
  void Set(const std::string& section, const std::string& key, const std::string& value);
  void Remove(const std::string& section, const std::string& key);
  /// Sets `Menu1`, `Menu2` and so on of a node.
  void Menu(const std::string& node, const std::vector<std::string>& children);
  /// An entry with one screenshot; the rest as given.
  void Entry(const std::string& name, const std::vector<std::pair<std::string, std::string>>& keys);

  /// Writes a GIF file of this size and colour (0xRRGGBB) below Data.
  void Picture(const std::string& name, int width, int height, std::uint32_t colour = kPlainColour);
  /// Writes a silent WAV file below Data/Sound.
  void Sound(const std::string& name, double seconds);
  /// Writes any file below the disc's folder.
  void File(const std::string& path, const std::string& bytes);

  std::string Value(const std::string& section, const std::string& key) const;
  /// Section and key of everything that stands in Menu.ini now.
  std::vector<std::pair<std::string, std::string>> Keys() const;

 private:
  void Write() const;

  struct Line {
    std::string section, key, value;
  };
  std::filesystem::path folder_;
  std::vector<Line> lines_;  // those of one section together
};

/// The bytes of a GIF file of one colour, 0xRRGGBB.
std::string GifBytes(int width, int height, std::uint32_t colour = kPlainColour);

}  // namespace orvanta::test
