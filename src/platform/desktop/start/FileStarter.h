#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Host.h"
#include "platform/Runner.h"
#include "platform/desktop/start/ProcessStart.h"
#include "platform/desktop/start/StartCode.h"

namespace orvanta {

struct OpenTarget;

/// Opens files as the user's desktop would: it runs programs and gives everything else to the application
/// that is registered for it. Native programs and scripts are run by the system, programs for Windows by
/// `wine` and programs for DOS by `dosbox` from the search path.
///
/// Nothing waits for what was started, which lives on when this program ends. A failure is told only as far
/// as it shows before the program is loaded.
class FileStarter {
 public:
  /// The programs get this environment. Make this before the program changes its own.
  explicit FileStarter(std::vector<std::string> forPrograms = CurrentEnvironment());

  /// Gives a number above 32 if the start was handed over, else a failure of `StartCode`. Documents, folders
  /// and addresses take no parameters; those of programs are split by `SplitArguments`.
  std::int32_t Start(const StartRequest& request) const;

 private:
  StartCode StartFound(const std::filesystem::path& file, std::string_view parameters) const;
  StartCode StartNative(const std::filesystem::path& file, std::string_view parameters) const;
  StartCode StartForeign(const Runner& runner, const std::vector<std::string>& arguments) const;
  StartCode OpenFolder(const std::filesystem::path& folder) const;
  StartCode OpenWithApplication(const OpenTarget& target) const;
  std::string_view SearchPath() const;

  std::vector<std::string> environment;
};

}  // namespace orvanta
