#include "disctool/image/CopyWriter.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>

#include "disctool/Translation.h"
#include "disctool/image/HeldSignals.h"

namespace orvanta {

namespace fs = std::filesystem;

std::string SystemProblem(const fs::path& path) { return path.string() + ": " + std::strerror(errno); }

std::string CopyWriter::Begin(const fs::path& file, bool executable) {
  path_ = file;
  const mode_t mode = S_IRUSR | S_IWUSR | (executable ? S_IXUSR : 0U);
  // Nothing here leads out of the folder: links are made last. O_EXCL refuses a name that occurs twice.
  file_ = Descriptor(open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode));
  return file_ ? std::string() : SystemProblem(path_);
}

std::string CopyWriter::Write(std::span<const char> part) {
  written_ += part.size();
  if (written_ > all_) return Translated("it holds more than it says");
  while (!part.empty()) {
    const ssize_t put = write(file_.get(), part.data(), part.size());
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return SystemProblem(path_);
    part = part.subspan(static_cast<std::size_t>(put));
  }
  progress_(written_, all_);
  return EndPending() ? Translated("interrupted") : std::string();
}

std::string CopyWriter::End(std::int64_t modified) {
  const timespec times[] = {{modified, 0}, {modified, 0}};
  const bool good = futimens(file_.get(), times) == 0;
  const std::string problem = good ? std::string() : SystemProblem(path_);
  file_.reset();
  return problem;
}

bool IsAsUnpacked(const fs::path& file, std::uintmax_t size, std::int64_t modified) {
  struct stat status {};
  return lstat(file.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
         static_cast<std::uintmax_t>(status.st_size) == size && status.st_mtim.tv_sec == modified &&
         status.st_mtim.tv_nsec == 0;
}

std::string EnsureFolder(const fs::path& folder) {
  std::error_code error;
  if (fs::symlink_status(folder, error).type() == fs::file_type::directory) return {};
  fs::remove(folder, error);
  return mkdir(folder.c_str(), S_IRWXU) == 0 ? std::string() : SystemProblem(folder);
}

}  // namespace orvanta
