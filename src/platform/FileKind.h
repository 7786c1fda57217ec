#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace orvanta {

/// What a file is to whoever starts it.
enum class FileKind {
  Document,     ///< Not a program: an application opens it.
  Native,       ///< An ELF program with an x bit.
  Script,       ///< A text with an x bit whose first line names its interpreter.
  Dos,          ///< A program for DOS.
  Windows16,    ///< A program for Windows 3.
  Windows32,    ///< A program for Windows 95 and later.
  Windows64,    ///< A program for Windows on x86-64.
  WindowsFile,  ///< What Windows opens by its extension: .bat .cmd .msi .reg .hlp .chm .lnk
  Broken,       ///< It is called or marked as a program, and is empty, cut short or without a valid header.
};

/// The bytes of a file, wherever they lie.
struct FileBytes {
  std::uint64_t size = 0;
  /// At most `count` bytes from `offset`: fewer at the end of the file, none if it cannot be read.
  std::function<std::string(std::uint64_t offset, std::size_t count)> read;
};

/// Those of a regular file of the host. It stays open as long as they are kept; empty if it cannot be opened.
FileBytes BytesOfFile(const std::filesystem::path& file);

struct FileFacts {
  FileKind kind = FileKind::Document;
  /// What must be there to run it: the interpreter of a script (a path, or after `env` a name for the search
  /// path), the loader of a native program. Empty if nothing is needed.
  std::string interpreter{};
};

/// Tells by content, and by name where the content has no mark (.com, .bat; an .exe must have one).
///
/// `executable` says that the file has an x bit. The marks are those of "PE Format" (learn.microsoft.com), of
/// the MZ header before it, and of elf(5).
FileFacts FactsOf(const FileBytes& file, const std::filesystem::path& name, bool executable);

}  // namespace orvanta
