#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace orvanta::test {

/// A new folder for one test, which is removed with its content.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "orvanta-test-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
    path_ = std::filesystem::canonical(pattern);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }

  /// Writes a file and creates its folders.
  std::filesystem::path File(const std::string& name, const std::string& bytes) const {
    std::filesystem::path made = path_ / name;
    std::filesystem::create_directories(made.parent_path());
    std::ofstream(made, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return made;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace orvanta::test
