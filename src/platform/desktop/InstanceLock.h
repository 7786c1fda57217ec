#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// Where the instances of one user on one display meet.
struct InstancePlace {
  /// The user's folder of the session, `$XDG_RUNTIME_DIR`; may be empty.
  std::string runtimeFolder;
  /// Taken where the first cannot be used; a folder of the user's is made in it.
  std::string temporaryFolder;
  /// The display's name as the environment gives it; any bytes.
  std::string display;
};

/// The place that the environment of this process names.
InstancePlace InstancePlaceFromEnvironment();

/// The mark of the one instance of this program that a user runs on a display.
///
/// It is a lock of the kernel (flock(2)), so it goes with the process however that ends, and programs that
/// the process starts do not inherit it.
class InstanceLock {
 public:
  /// Never waits. Nothing if another instance holds the mark. Where no lock file can be made in either folder
  /// (missing, not the user's alone, full, read-only), the mark is given without one: the program had better
  /// start twice than never.
  static std::optional<InstanceLock> Acquire(const InstancePlace& place);

  InstanceLock(InstanceLock&&) noexcept = default;
  InstanceLock& operator=(InstanceLock&&) noexcept = default;
  /// Lets go at once, even if a child between its fork and its exec still has the file.
  ~InstanceLock();

 private:
  explicit InstanceLock(Descriptor locked) : file_(std::move(locked)) {}

  Descriptor file_;
};

/// The name of the lock file for a display. The screen of an X display (the `.0` of `:0.0`) does not count,
/// and what is no letter, digit, `-` or `_` is escaped.
std::string InstanceFileName(std::string_view display);

}  // namespace orvanta
