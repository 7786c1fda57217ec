#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace orvanta {

/// A fresh folder for one test, removed with all that is in it.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "orvanta-test-XXXXXX").string();
    path = std::filesystem::canonical(mkdtemp(pattern.data()));
    // Tests that give up root's rights must still get in.
    mode(path, 0755);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }

  /// Writes a file, its folders too. `rights` are an octal mode.
  std::filesystem::path file(const std::string& name, const std::string& content, int rights = 0644) const {
    const std::filesystem::path made = path / name;
    std::filesystem::create_directories(made.parent_path());
    std::ofstream(made, std::ios::binary) << content;
    mode(made, rights);
    return made;
  }
  /// Writes an executable shell script.
  std::filesystem::path script(const std::string& name, const std::string& body) const {
    return file(name, "#!/bin/sh\n" + body + "\n", 0755);
  }
  static void mode(const std::filesystem::path& changed, int rights) {
    std::filesystem::permissions(changed, static_cast<std::filesystem::perms>(rights));
  }
  static std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  std::filesystem::path path;
};

}  // namespace orvanta
