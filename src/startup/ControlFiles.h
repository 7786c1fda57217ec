#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ControlFilesHost.h"

namespace orvanta {

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
