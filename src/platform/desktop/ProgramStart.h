#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/desktop/ProcessStart.h"
#include "platform/desktop/StartCode.h"

namespace orvanta {

struct OpenTarget;

/// Where the name of a file has led on the host.
struct FileLookup {
  enum class Result {
    Found,
    FileMissing,    ///< The folder is there, the file is not.
    FolderMissing,  ///< A folder on the way, or the drive, is not there.
  };
  /// The name as it was given, in UTF-8. An address (http:, https:, mailto:) is told by it, whatever the
  /// result.
  std::string text;
  Result result = Result::FileMissing;
  /// The file or folder if it was found.
  std::filesystem::path hostPath;
};

/// How the first window is to appear. Here the window manager decides that; the mode is taken and not used.
enum class ShowMode { Normal = 1 };

/// Opens files as the user's desktop would: it runs programs and gives everything else to the application
/// that is registered for it. Native programs and scripts are run by the system, programs for Windows by
/// `wine` and programs for DOS by `dosbox` from the search path.
///
/// Nothing waits for what was started, which lives on when this program ends. A failure is told only as far
/// as it shows before the program is loaded.
class ProgramStart {
 public:
  /// The programs get this environment. Make this before the program changes its own.
  explicit ProgramStart(std::vector<std::string> forPrograms = CurrentEnvironment());

  /// Gives a number above 32 if the start was handed over, else a failure of `StartCode`.
  ///
  /// `parameters` (UTF-8) are the program's command line in the manner of Windows; see `SplitArguments`.
  /// Documents, folders and addresses take none.
  std::int32_t Start(const FileLookup& file, std::string_view parameters, ShowMode mode) const;

 private:
  StartCode StartFound(const std::filesystem::path& file, std::string_view parameters) const;
  StartCode StartNative(const std::filesystem::path& file, std::string_view parameters) const;
  StartCode StartForeign(std::string_view runner, const std::vector<std::string>& arguments) const;
  StartCode OpenFolder(const std::filesystem::path& folder) const;
  StartCode OpenWithApplication(const OpenTarget& target) const;
  std::string_view SearchPath() const;

  std::vector<std::string> environment;
};

}  // namespace orvanta
