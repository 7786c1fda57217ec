#include "config/ProfileString.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <span>

#include "config/ProfileScanner.h"

namespace orvanta {
namespace {

/// Past this place no file is believed before it has been looked at: a device may have no end.
constexpr off_t kUnchecked = 1024 * 1024;

class OpenFile {
 public:
  /// O_NONBLOCK, so that opening a FIFO without a writer returns.
  explicit OpenFile(const std::filesystem::path& file)
      : handle_(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (handle_ >= 0) ::close(handle_);
  }

  /// The next bytes, none at the end. Folders, pipes and terminals refuse to be read at a position. A file
  /// that cannot be read on, on a scratched disc perhaps, ends there.
  std::size_t Read(std::span<char> into) {
    if (atEnd_) return 0;
    const ssize_t got = ::pread(handle_, into.data(), into.size(), position_);
    // Only at its end does a regular file give less, so the call that would find the end can be saved.
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
