#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orvanta {

/// The two 32-bit words of a file's version record, most significant first. Each holds two numbers.
struct FileVersion {
  std::uint32_t most = 0;
  std::uint32_t least = 0;
};

/// What the check of the control files needs from a system that has a registry of components. The host of a
/// system without one has no such object; then no control files are checked.
class ControlFilesHost {
 public:
  virtual ~ControlFilesHost() = default;
  /// The folder of the system's own files, without a trailing backslash.
  virtual std::string SystemDirectory() = 0;
  /// Whether the file can be opened for reading.
  virtual bool CanRead(const std::string& path) = 0;
  /// The version record of a file; nothing if it has none or cannot be read.
  virtual std::optional<FileVersion> Version(const std::string& path) = 0;
  /// Copies a file, replacing the target. A failure is ignored.
  virtual void Copy(const std::string& from, const std::string& to) = 0;
  /// Starts a program without waiting for it. A result from 0 to 32 means failure.
  virtual std::int32_t Start(const std::string& program, const std::string& parameters) = 0;
  /// Shows a message box with an OK button and returns when the user has closed it.
  virtual void Message(const std::string& text) = 0;
};

}  // namespace orvanta
