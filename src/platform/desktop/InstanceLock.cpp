#include "platform/desktop/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <utility>

namespace orvanta {
namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

bool IsAsciiAlphanumeric(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

/// ":0.0" and ":0" are the same display; the number after the dot is one of its screens.
std::string_view WithoutScreen(std::string_view display) {
  const auto colon = display.rfind(':');
  const auto point = display.rfind('.');
  const bool screen = colon != std::string_view::npos && point != std::string_view::npos && point > colon &&
                      display.find_first_not_of("0123456789", point + 1) == std::string_view::npos;
  return screen ? display.substr(0, point) : display;
}

/// Opens a folder that belongs to the user and that nobody else may enter; otherwise returns none. A lock in
/// somebody else's folder could keep this user out for ever.
Descriptor OpenOwnFolder(const std::string& path) {
  Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  struct stat status {};
  const bool own = folder && fstat(folder.get(), &status) == 0 && status.st_uid == geteuid() &&
                   (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
  return own ? std::move(folder) : Descriptor();
}

Descriptor OpenTemporaryFolder(const std::string& parent) {
  if (parent.empty()) return Descriptor();
  const std::string path = parent + "/orvanta-" + std::to_string(geteuid());
  // It may exist from an earlier run: opening it checks what is there.
  mkdir(path.c_str(), S_IRWXU);
  return OpenOwnFolder(path);
}

Descriptor OpenLockFile(const Descriptor& folder, const std::string& name) {
  if (!folder) return Descriptor();
  Descriptor file(
      openat(folder.get(), name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR));
  if (!file) return Descriptor();
  // Programs that clean up runtime and temporary folders spare files with the sticky bit (XDG base
  // directories).
  fchmod(file.get(), S_IRUSR | S_IWUSR | S_ISVTX);
  return file;
}

enum class Attempt { Locked, Taken, Impossible };

Attempt TryLock(const Descriptor& file) {
  if (!file) return Attempt::Impossible;
  if (flock(file.get(), LOCK_EX | LOCK_NB) == 0) return Attempt::Locked;
  return errno == EWOULDBLOCK ? Attempt::Taken : Attempt::Impossible;
}

}  // namespace

InstancePlace InstancePlaceFromEnvironment() {
  const std::string temporary = Variable("TMPDIR");
  const std::string display = Variable("DISPLAY");
  return {Variable("XDG_RUNTIME_DIR"), temporary.empty() ? "/tmp" : temporary,
          display.empty() ? Variable("WAYLAND_DISPLAY") : display};
}

std::string InstanceFileName(std::string_view display) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  // A file name has at most 255 bytes.
  constexpr std::size_t kLongestDisplay = 200;
  std::string escaped;
  for (const char c : WithoutScreen(display)) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsAsciiAlphanumeric(c) || c == '-' || c == '_')
      escaped += c;
    else
      escaped += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
  }
  return "orvanta-" + escaped.substr(0, kLongestDisplay) + ".lock";
}

std::optional<InstanceLock> InstanceLock::Acquire(const InstancePlace& place) {
  const std::string name = InstanceFileName(place.display);
  for (const bool inRuntimeFolder : {true, false}) {
    const Descriptor folder =
        inRuntimeFolder ? OpenOwnFolder(place.runtimeFolder) : OpenTemporaryFolder(place.temporaryFolder);
    Descriptor file = OpenLockFile(folder, name);
    switch (TryLock(file)) {
      case Attempt::Locked: return InstanceLock(std::move(file));
      case Attempt::Taken: return std::nullopt;
      case Attempt::Impossible: break;
    }
  }
  return InstanceLock(Descriptor());
}

InstanceLock::~InstanceLock() {
  if (file_) flock(file_.get(), LOCK_UN);
}

}  // namespace orvanta
