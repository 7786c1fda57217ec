#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

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
  virtual std::string systemDirectory() = 0;
  /// The file can be opened for reading.
  virtual bool canRead(const std::string& path) = 0;
  /// The version record of a file, nothing if it has none or cannot be read.
  virtual std::optional<FileVersion> version(const std::string& path) = 0;
  /// Copies a file, replacing the target. A copy that fails is passed over.
  virtual void copy(const std::string& from, const std::string& to) = 0;
  /// Starts a program without waiting for it. 0 to 32 is a failure.
  virtual std::int32_t start(const std::string& program, const std::string& parameters) = 0;
  /// A message box with an OK button; returns when the user has closed it.
  virtual void message(const std::string& text) = 0;
};

/// The folders between which the control files travel, each with a backslash at its end.
struct ControlFolders {
  std::string winSysDir;
  std::string discSysDir;
};

/// The system directory with a backslash added.
std::string GetSysDir(ControlFilesHost& host);
bool FileExists(ControlFilesHost& host, const std::string& path);
/// The four numbers of a file's version joined by points, each a signed 16-bit number; empty without a
/// record.
std::string FileVersionText(ControlFilesHost& host, const std::string& path);
/// The `part`-th number (from 1) of a version text, its last one if it has fewer, 0 for an empty text.
std::int16_t VersionPart(std::string_view text, std::uint8_t part);
/// The first or the second number of the disc's version is greater than that of the installed file, each
/// looked at by itself. Files without a version count as version 0.
bool IsNewerOnDisc(ControlFilesHost& host, const ControlFolders& folders, const std::string& name);
/// Starts the disc's registrar for one control file; a failed start is told to the user.
void RegisterControl(ControlFilesHost& host, const ControlFolders& folders, const std::string& path);
/// Copies the control files that are missing or older than the disc's and starts the registrar for each.
void CheckControls(ControlFilesHost& host, const ControlFolders& folders);

}  // namespace orvanta
