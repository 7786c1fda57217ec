#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// Where the instances of one user on one display find each other.
struct InstancePlace {
  /// The folder of the user's session, `$XDG_RUNTIME_DIR`; may be empty.
  std::string runtimeFolder;
  /// Used if the first folder cannot be; a folder of the user's own is created in it.
  std::string temporaryFolder;
  /// The name of the display as the environment has it; it may contain any bytes.
  std::string display;
};

/// The place that the environment of this process determines.
InstancePlace InstancePlaceFromEnvironment();

/// The lock that lets a user run only one instance of this program on a display.
///
/// It is a lock of the kernel (flock(2)), so it ends with the process, however that ends. Programs that the
/// process starts do not inherit it.
class InstanceLock {
 public:
  /// Never waits. Returns nothing if another instance has the lock. If no lock file can be made in either
  /// folder (because it is missing, open to others, full or read-only), returns a lock without a file: to run
  /// twice is better than not to run at all.
  static std::optional<InstanceLock> Acquire(const InstancePlace& place);

  InstanceLock(InstanceLock&&) noexcept = default;
  InstanceLock& operator=(InstanceLock&&) noexcept = default;
  /// Releases the lock at once, even if a child between its fork and its exec still has the file open.
  ~InstanceLock();

 private:
  explicit InstanceLock(Descriptor locked) : file_(std::move(locked)) {}

  Descriptor file_;
};

/// The name of the lock file for a display. The screen of an X display (the `.0` of `:0.0`) is left out, and
/// every character except letters, digits, `-` and `_` is escaped.
std::string InstanceFileName(std::string_view display);

}  // namespace orvanta
