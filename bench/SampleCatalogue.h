#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace orvanta::bench {

/// Where the long menu stands among the entries.
enum class MenuPlace { None, First, Middle, Last };

/// A catalogue as discs have them, of `size` bytes and a few more: the window's keys, of which the last one
/// is `Early` in `GLOBAL`, then entries with their texts, a section of 430 bytes each, and at the very
/// end the key `Last` of the section `Last`. If asked for, the root has Menu1 to Menu1001, 25 KB of them.
/// ASCII alone, since GLib refuses Windows-1250.
std::string MakeCatalogue(std::size_t size, MenuPlace menu = MenuPlace::None);

/// A file in the temporary directory that goes with its object.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::string& text);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace orvanta::bench
