#include "platform/desktop/start/WineDisc.h"

#include <fcntl.h>
#include <sys/file.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

namespace orvanta {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view PrefixVariable = "WINEPREFIX=", DriveVariable = "ORVANTA_WINE_DRIVE=";
/// The drives that the prefix has from the beginning: Wine learns only at the start of its session which
/// drives are CD-ROMs.
constexpr std::string_view OwnDrives = "de";
constexpr std::string_view AllDrives = "defghijklmnopqrstuvwxy";

/// The input of Wine's registry editor, which runs once; afterwards the file is empty.
constexpr const char* DriveTypesFile = "drives.reg";
constexpr std::string_view DriveTypes =
    "REGEDIT4\r\n\r\n"
    "[HKEY_LOCAL_MACHINE\\Software\\Wine\\Drives]\r\n"
    "\"d:\"=\"cdrom\"\r\n"
    "\"e:\"=\"cdrom\"\r\n";

/// Its arguments are Wine, the prefix, and the command line of the program. Wine fills the prefix before it
/// does anything else; meanwhile it must neither offer to download other software nor take over the desktop's
/// file types. Drive types take effect with Wine's next session.
constexpr const char* FirstStart =
    "wine=$1; cd \"$2\" || exit; shift 2\n"
    "WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe=' \"$wine\" regedit /S drives.reg || exit\n"
    "timeout 20 wineserver -w\n"
    ": > drives.reg\n"
    "cd \"$OLDPWD\"; exec \"$wine\" \"$@\"\n";

std::string_view ValueOf(const std::vector<std::string>& environment, std::string_view variable) {
  const auto found =
      std::ranges::find_if(environment, [&](const auto& v) { return v.starts_with(variable); });
  return found == environment.end() ? std::string_view() : std::string_view(*found).substr(variable.size());
}

/// The prefix according to the XDG Base Directories; empty if the user has no home.
fs::path OwnPrefix(const std::vector<std::string>& environment) {
  fs::path data = ValueOf(environment, "XDG_DATA_HOME=");
  if (!data.is_absolute()) {
    const fs::path home = ValueOf(environment, "HOME=");
    if (!home.is_absolute()) return {};
    data = home / ".local/share";
  }
  return data / "orvanta/wine";
}

/// The drives with which the running programs of a prefix were started, according to proc(5). The processes
/// of other users cannot be read, but they cannot run in this prefix either.
std::string DrivesInUse(const fs::path& prefix) {
  const std::string inPrefix = std::string(PrefixVariable) + prefix.string();
  std::string drives;
  std::error_code error;
  for (fs::directory_iterator process("/proc", error), end; !error && process != end;
       process.increment(error)) {
    std::ifstream variables(process->path() / "environ", std::ios::binary);
    bool here = false;
    char drive = 0;
    for (std::string variable; std::getline(variables, variable, '\0');) {
      here = here || variable == inPrefix;
      if (variable.starts_with(DriveVariable)) drive = variable.back();
    }
    if (here) drives += drive;
  }
  return drives;
}

std::string WithBackslashes(std::string path) {
  std::ranges::replace(path, '/', '\\');
  return path;
}

}  // namespace

WineDisc::WineDisc(fs::path disc, std::vector<std::string> environment)
    : disc_(std::move(disc)), environment_(std::move(environment)) {
  if (ValueOf(environment_, PrefixVariable).empty()) prefix_ = OwnPrefix(environment_);
  if (prefix_.empty()) return;
  Prepare();
  if (error_ != 0) return;
  drive_ = TakeDrive();
  Link(drive_);
  std::erase_if(environment_, [](const auto& v) { return v.starts_with(PrefixVariable); });
  environment_.push_back(std::string(PrefixVariable) + prefix_.string());
  environment_.push_back(std::string(DriveVariable) + drive_);
}

void WineDisc::Prepare() {
  std::error_code error;
  const bool isThere = fs::exists(prefix_ / "dosdevices", error);
  fs::create_directories(prefix_, error);
  lock_ = Descriptor(open(prefix_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!lock_ || flock(lock_.get(), LOCK_EX) != 0) {
    error_ = error ? error.value() : errno;
    return;
  }
  if (!isThere) {
    fs::create_directory(prefix_ / "drive_c", error);
    std::ofstream(prefix_ / DriveTypesFile, std::ios::binary) << DriveTypes;
    fs::create_directory(prefix_ / "dosdevices", error);
    fs::create_symlink("../drive_c", Drive('c'), error);
    fs::create_symlink("/", Drive('z'), error);
    for (const char drive : OwnDrives) fs::create_symlink("no disc", Drive(drive), error);
  }
  const std::uintmax_t left = fs::file_size(prefix_ / DriveTypesFile, error);
  isNew_ = !error && left > 0;
}

fs::path WineDisc::Drive(char drive) const { return prefix_ / "dosdevices" / (std::string(1, drive) + ":"); }

char WineDisc::TakeDrive() const {
  std::error_code error;
  const std::string inUse = DrivesInUse(prefix_);
  const auto canBeOurs = [&](char drive) {
    const bool taken = inUse.find(drive) != inUse.npos;
    if (taken) return fs::read_symlink(Drive(drive), error) == disc_;
    // A drive that exists and is not one of the prefix's own may be the user's.
    return OwnDrives.find(drive) != OwnDrives.npos || !fs::exists(Drive(drive), error);
  };
  const auto found = std::ranges::find_if(AllDrives, canBeOurs);
  return found == AllDrives.end() ? OwnDrives.front() : *found;
}

void WineDisc::Link(char drive) const {
  std::error_code error;
  const fs::path made = prefix_ / "dosdevices" / "new drive";
  fs::remove(made, error);
  fs::create_directory_symlink(disc_, made, error);
  fs::rename(made, Drive(drive), error);
}

std::string WineDisc::WindowsPath(const fs::path& path) const {
  const fs::path below = path.lexically_relative(disc_);
  const bool onDrive = !prefix_.empty() && !below.empty() && *below.begin() != "..";
  if (!onDrive) return "Z:" + WithBackslashes(path.string());
  return DriveLetter() + ":\\" + (below == "." ? "" : WithBackslashes(below.string()));
}

std::string WineDisc::Argument(const StartArgument& argument) const {
  if (!argument.file.empty()) return WindowsPath(argument.file);
  const std::string& text = argument.text;
  const bool onDisc = text.starts_with("D:") || text.starts_with("d:");
  return onDisc && !prefix_.empty() ? DriveLetter() + text.substr(1) : text;
}

std::vector<std::string> WineDisc::Command(const fs::path& wine,
                                           const std::vector<std::string>& arguments) const {
  std::vector<std::string> command{wine};
  if (isNew_) command = {"/bin/sh", "-c", FirstStart, "sh", wine, prefix_};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return command;
}

}  // namespace orvanta
