#pragma once

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

/// Opens files as the user's desktop would: runs programs, and gives everything else to the application that
/// is registered for it. The system runs native programs and scripts; `wine` and `dosbox` from the search
/// path run programs for Windows and DOS. Whatever runs a program, the program can open what its arguments
/// name on the disc.
///
/// Nothing waits for a started program, and it goes on running when this program ends.
class FileStarter {
 public:
  /// `disc` is the root of the disc's drive, an absolute path. Started programs get `forPrograms` as their
  /// environment: construct this object before the shell changes its own.
  explicit FileStarter(std::filesystem::path disc,
                       std::vector<std::string> forPrograms = CurrentEnvironment());

  /// Returns a number above 32 if the start was handed over, otherwise a failure of `StartCode`. Documents,
  /// folders and addresses take no arguments.
  std::int32_t Start(const StartRequest& request);
  /// The result of a start as it is known now, by the number of the start. A program that fails within half a
  /// second has not really started: DOSBox without a display, or a program without one of its libraries. If
  /// the 32-bit half of Wine seems to be missing, a program that ends within ten seconds has not started
  /// either. Then it is `StartCode::BadProgram`, otherwise the same number.
  std::int32_t Result(std::int32_t start);

 private:
  StartCode StartFound(const std::filesystem::path& file, const StartRequest& request);
  StartCode StartWine(const Runner& runner, const FileFacts& facts, const std::filesystem::path& file,
                      const StartRequest& request);
  StartCode StartForeign(const Runner& runner, const std::vector<std::string>& arguments);
  /// Starts a program and watches it.
  StartCode Run(const std::vector<std::string>& command, const std::vector<std::string>& environment,
                const Watching& watching);
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
