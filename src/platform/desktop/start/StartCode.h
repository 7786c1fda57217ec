#pragma once

#include <cstdint>

namespace orvanta {

/// What a start gives: above 32 it has been handed over, else the failure. The numbers are those of the
/// Windows call ShellExecute (its manual page lists them).
enum class StartCode : std::int32_t {
  Unknown = 1,
  FileNotFound = 2,
  PathNotFound = 3,
  AccessDenied = 5,
  OutOfMemory = 8,
  BadProgram = 11,
  SharingViolation = 26,
  IncompleteAssociation = 27,
  NoAssociation = 31,
  LibraryNotFound = 32,
  Started = 33,
};

/// The failure for an error number of the system (errno(3)) when a file is looked at or a process is made.
StartCode CodeOfError(int error);

}  // namespace orvanta
