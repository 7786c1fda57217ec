#pragma once

#include <cstdint>

namespace orvanta {

/// The result of a start: above 32 it was handed over; otherwise it is the failure. The numbers are those of
/// the Windows function ShellExecute (see its documentation).
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

/// The failure for an error number of the system (errno(3)) when a file is examined or a process is created.
StartCode CodeOfError(int error);

}  // namespace orvanta
