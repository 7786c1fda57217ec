#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
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
/// `wine` and programs for DOS by `dosbox` from the search path. Whatever runs it, a program opens what its
/// arguments name on the disc.
///
/// Nothing waits for what was started, which lives on when this program ends.
class FileStarter {
 public:
  /// `disc` is the root of the disc's drive, absolute. The programs get `forPrograms` as their environment:
  /// make this before the shell changes its own.
  explicit FileStarter(std::filesystem::path disc,
                       std::vector<std::string> forPrograms = CurrentEnvironment());

  /// Gives a number above 32 if the start was handed over, else a failure of `StartCode`. Documents, folders
  /// and addresses take no arguments.
  std::int32_t Start(const StartRequest& request);
  /// What has become of a start, by its number. A program that ends with a failure within half a second has
  /// failed to start: Wine without its 32-bit half does so, DOSBox without a display, a program without one
  /// of its libraries. That gives `StartCode::BadProgram`, everything else the number.
  std::int32_t Result(std::int32_t start);

 private:
  StartCode StartFound(const std::filesystem::path& file, const StartRequest& request);
  StartCode StartWine(const Runner& runner, std::vector<std::string> arguments, const StartRequest& request);
  StartCode StartForeign(const Runner& runner, const std::vector<std::string>& arguments);
  /// Starts a program and lets it be watched.
  StartCode Run(const std::vector<std::string>& command, const std::vector<std::string>& environment,
                std::chrono::milliseconds watched);
  StartCode OpenFolder(const std::filesystem::path& folder) const;
  StartCode OpenWithApplication(const OpenTarget& target) const;
  std::string_view SearchPath() const;

  const std::filesystem::path disc_;
  const std::vector<std::string> environment_;
  EndWatch latest_;
  std::map<std::int32_t, EndWatch> watches_;
  std::int32_t number_ = static_cast<std::int32_t>(StartCode::Started);
};

}  // namespace orvanta
