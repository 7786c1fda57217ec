#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/ControlFilesHost.h"

// Every disc carries two control files and their registrar in SYSTEM, and the start of the program brings the
// installed copies up to date. This is part of the start wherever a host has a registry of components. The
// desktop has none, so today only the tests' host runs it.

namespace orvanta {

/// The folders between which the control files are copied, each with a trailing backslash.
struct ControlFolders {
  std::string winSysDir;
  std::string discSysDir;
};

/// The system directory with a trailing backslash.
std::string GetSysDir(ControlFilesHost& host);
bool FileExists(ControlFilesHost& host, const std::string& path);
/// The four numbers of a file's version, joined by dots, each a signed 16-bit number; empty if the file has
/// no version.
std::string FileVersionText(ControlFilesHost& host, const std::string& path);
/// The `part`-th number of a version text, counted from 1; the last one if there are fewer, and 0 for an
/// empty text.
std::int16_t VersionPart(std::string_view text, std::uint8_t part);
/// Whether the first or the second number of the disc's version is greater than that of the installed file.
/// The two are compared separately. A file without a version counts as version 0.
bool IsNewerOnDisc(ControlFilesHost& host, const ControlFolders& folders, const std::string& name);
/// Starts the disc's registrar for one control file; if the start fails, a message box says so.
void RegisterControl(ControlFilesHost& host, const ControlFolders& folders, const std::string& path);
/// Copies the control files that are missing or older than those of the disc, and starts the registrar for
/// each.
void CheckControls(ControlFilesHost& host, const ControlFolders& folders);

}  // namespace orvanta
