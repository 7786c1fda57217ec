#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orvanta {

/// The two double words of a file's version record, most significant first. Each holds two numbers.
struct FileVersion {
  std::uint32_t most = 0;
  std::uint32_t least = 0;
};

/// What the care for the control files asks of a system that has a registry of components. A host whose
/// system has none offers no such object, and nothing of this file runs.
class ControlFilesHost {
 public:
  virtual ~ControlFilesHost() = default;
  /// The folder of the system's own files, without a backslash at its end.
  virtual std::string SystemDirectory() = 0;
  /// The file can be opened for reading.
  virtual bool CanRead(const std::string& path) = 0;
  /// The version record of a file, nothing if it has none or cannot be read.
  virtual std::optional<FileVersion> Version(const std::string& path) = 0;
  /// Copies a file, replacing the target. A copy that fails is passed over.
  virtual void Copy(const std::string& from, const std::string& to) = 0;
  /// Starts a program without waiting for it. 0 to 32 is a failure.
  virtual std::int32_t Start(const std::string& program, const std::string& parameters) = 0;
  /// A message box with an OK button; returns when the user has closed it.
  virtual void Message(const std::string& text) = 0;
};

}  // namespace orvanta
