#include "config/ProfileString.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "config/ProfileScanner.h"

namespace orvanta {
namespace {

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

  bool IsRegular() const {
    struct stat info {};
    return handle_ >= 0 && ::fstat(handle_, &info) == 0 && S_ISREG(info.st_mode);
  }

  /// A file that cannot be read on, on a scratched disc perhaps, ends there.
  std::size_t Read(std::span<char> into) const {
    ssize_t got = ::read(handle_, into.data(), into.size());
    return got > 0 ? static_cast<std::size_t>(got) : 0;
  }

 private:
  int handle_;
};

}  // namespace

std::string ProfileString(const std::filesystem::path& file, std::string_view section, std::string_view key) {
  OpenFile open(file);
  if (!open.IsRegular()) return {};
  return StreamedProfileString([&open](std::span<char> into) { return open.Read(into); }, section, key);
}

std::string ProfileStringOf(std::string_view text, std::string_view section, std::string_view key) {
  ProfileScanner scanner(section, key);
  scanner.Take(text);
  return scanner.value();
}

}  // namespace orvanta
