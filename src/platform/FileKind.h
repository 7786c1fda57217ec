#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace orvanta {

/// How a file is started.
enum class FileKind {
  Document,     ///< not a program: an application opens it
  Native,       ///< an executable ELF program
  Script,       ///< an executable text whose first line names its interpreter
  Dos,          ///< a program for DOS
  Windows16,    ///< a program for Windows 3
  Windows32,    ///< a program for Windows 95 and later
  Windows64,    ///< a program for Windows on x86-64
  WindowsFile,  ///< opened by Windows because of its extension: .bat .cmd .msi .reg .hlp .chm .lnk
  Broken,       ///< looks like a program, but is empty, cut short or has no valid header
};

/// The bytes of a file, wherever they come from.
struct FileBytes {
  std::uint64_t size = 0;
  /// At most `count` bytes starting at `offset`: fewer at the end of the file, none if it cannot be read.
  std::function<std::string(std::uint64_t offset, std::size_t count)> read;
};

/// The bytes of a regular file of the host; empty if it cannot be opened. The file stays open as long as the
/// result exists.
FileBytes BytesOfFile(const std::filesystem::path& file);

struct FileFacts {
  FileKind kind = FileKind::Document;
  /// What must exist to run it: the interpreter of a script (a path or, after `env`, a name for the search
  /// path) or the loader of a native program. Empty if nothing is needed.
  std::string interpreter{};
  bool isConsole = false;  ///< a program for Windows without windows of its own
};

/// Decides by content, or by name if the content has no signature (.com, .bat; an .exe must have one).
///
/// `executable` says whether the file has an x bit. The signatures are those of "PE Format"
/// (learn.microsoft.com), of the MZ header that precedes it, and of elf(5).
FileFacts FactsOf(const FileBytes& file, const std::filesystem::path& name, bool executable);

}  // namespace orvanta
