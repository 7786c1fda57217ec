#pragma once

#include <filesystem>

#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// How a file that an entry names is run, if it is a program at all.
enum class ProgramKind {
  Document,     ///< No program: some application opens it.
  Native,       ///< The system runs it: an ELF file or a `#!` script with an x bit.
  Windows,      ///< An executable for Windows, of 16 or 32 bits or more.
  WindowsFile,  ///< A batch file or an installer package, which Windows runs by its name.
  Dos,          ///< An executable for DOS.
  Broken,       ///< A Windows or DOS program that cannot be one: cut short, or without a valid header.
};

/// Tells by content, and by name where the content has no mark (.com, .bat, .msi; an .exe must have one).
///
/// `file` is a regular file open for reading, `executable` says that it has an x bit. The marks are those of
/// "PE Format" (learn.microsoft.com) and of the MZ header before it.
ProgramKind KindOfProgram(const Descriptor& file, const std::filesystem::path& name, bool executable);

}  // namespace orvanta
