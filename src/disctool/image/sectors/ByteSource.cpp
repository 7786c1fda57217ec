#include "disctool/image/sectors/ByteSource.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>

#include "disctool/Translation.h"
#include "platform/desktop/Descriptor.h"

namespace orvanta {
namespace {

class FileBytes : public ByteSource {
 public:
  FileBytes(Descriptor file, std::uint64_t size) : file_(std::move(file)), size_(size) {}

  std::uint64_t Size() const override { return size_; }
  std::size_t Read(std::uint64_t at, std::span<char> into) const override {
    std::size_t done = 0;
    while (done < into.size() && at + done < size_) {
      const ssize_t got =
          pread(file_.get(), into.data() + done, into.size() - done, static_cast<off_t>(at + done));
      if (got < 0 && errno == EINTR) continue;
      if (got <= 0) break;
      done += static_cast<std::size_t>(got);
    }
    return done;
  }
  std::string State() const override {
    struct stat status {};
    if (fstat(file_.get(), &status) != 0 || !S_ISREG(status.st_mode)) return "device";
    std::string state;
    for (const auto number : {std::int64_t{status.st_size}, std::int64_t{status.st_mtim.tv_sec},
                              std::int64_t{status.st_mtim.tv_nsec}, static_cast<std::int64_t>(status.st_ino),
                              static_cast<std::int64_t>(status.st_dev)})
      state += " " + std::to_string(number);
    return state;
  }

 private:
  const Descriptor file_;
  const std::uint64_t size_;
};

std::string Problem(const std::filesystem::path& file) { return file.string() + ": " + std::strerror(errno); }

}  // namespace

std::string ByteSource::Text(std::uint64_t at, std::uint64_t most) const {
  const std::uint64_t there = at < Size() ? Size() - at : 0;
  std::string text(static_cast<std::size_t>(std::min(most, there)), '\0');
  text.resize(Read(at, text));
  return text;
}

Bytes OpenBytes(const std::filesystem::path& file, std::string& problem) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return problem = Problem(file), nullptr;
  // Opening a FIFO would wait for a writer.
  if (!S_ISREG(status.st_mode) && !S_ISBLK(status.st_mode)) {
    problem = file.string() + ": " + Translated("this is neither a folder nor an image of a disc");
    return nullptr;
  }
  Descriptor opened(open(file.c_str(), O_RDONLY | O_CLOEXEC));
  // The size of a device is where its end is.
  const off_t size = opened ? lseek(opened.get(), 0, SEEK_END) : -1;
  if (size < 0) return problem = Problem(file), nullptr;
  return std::make_shared<FileBytes>(std::move(opened), static_cast<std::uint64_t>(size));
}

}  // namespace orvanta
