#include "config/ProfileString.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <span>

#include "config/ProfileScanner.h"

namespace orvanta {
namespace {

/// Up to this position a file is read without checking its type; beyond it, only a regular file is read on,
/// since a device may be endless.
constexpr off_t kUnchecked = 1024 * 1024;

class OpenFile {
 public:
  /// With O_NONBLOCK, opening a FIFO that has no writer returns at once.
  explicit OpenFile(const std::filesystem::path& file)
      : handle_(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (handle_ >= 0) ::close(handle_);
  }

  /// Reads the next bytes; none at the end. Folders, pipes and terminals cannot be read at a position. Where
  /// a file cannot be read any further, such as on a scratched disc, it ends.
  std::size_t Read(std::span<char> into) {
    if (atEnd_) return 0;
    const ssize_t got = ::pread(handle_, into.data(), into.size(), position_);
    // A regular file returns fewer bytes only at its end, so one more call to find the end can be saved.
    atEnd_ = got < static_cast<ssize_t>(into.size()) || (position_ > kUnchecked && !IsRegular());
    if (got <= 0) return 0;
    position_ += got;
    return static_cast<std::size_t>(got);
  }

 private:
  bool IsRegular() const {
    struct stat info {};
    return ::fstat(handle_, &info) == 0 && S_ISREG(info.st_mode);
  }

  int handle_;
  off_t position_ = 0;
  bool atEnd_ = false;
};

}  // namespace

std::string ProfileString(const std::filesystem::path& file, std::string_view section, std::string_view key) {
  OpenFile open(file);
  return StreamedProfileString([&open](std::span<char> into) { return open.Read(into); }, section, key);
}

std::string ProfileStringOf(std::string_view text, std::string_view section, std::string_view key) {
  ProfileScanner scanner(section, key);
  scanner.Take(text);
  return scanner.value();
}

}  // namespace orvanta
