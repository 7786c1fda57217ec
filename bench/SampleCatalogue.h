#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace orvanta::bench {

/// Where the long menu is among the entries.
enum class MenuPlace { None, First, Middle, Last };

/// A typical catalogue of slightly more than `size` bytes: the keys of the window, of which the last is
/// `Early` in `GLOBAL`; then entries with their texts, each a section of 430 bytes; and at the very end the
/// key `Last` in the section `Last`. With a long menu, the first menu has Menu1 to Menu1001, which are 25 KB.
/// ASCII only, since GLib refuses Windows-1250.
std::string MakeCatalogue(std::size_t size, MenuPlace menu = MenuPlace::None);

/// A file in the temporary directory that is removed with its object.
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
