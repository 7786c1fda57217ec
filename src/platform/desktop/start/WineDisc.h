#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/Host.h"
#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// A disc in Wine's prefix, ready for a program to be started.
///
/// The prefix is our own, `$XDG_DATA_HOME/orvanta/wine`; the user's `~/.wine` is never touched. There the
/// disc is a CD-ROM drive, normally D (wiki.winehq.org, "Wine User's Guide": `dosdevices`). If the user has
/// set `WINEPREFIX`, that prefix is used and not changed; programs then find the disc below Z, which is the
/// root of the host's files.
///
/// Two discs at once: a drive belongs to its disc as long as a process runs that was started with it; such a
/// process has the drive in its environment. Meanwhile another disc gets the next drive: E, which the prefix
/// has for this, then F and so on, which Wine treats as CD-ROMs only from its next session on. The drive is
/// chosen under a lock, which is held until this object is destroyed; that must not happen before the process
/// of the program exists.
class WineDisc {
 public:
  /// `disc` is an absolute path, `environment` that of the programs. Creates the folders and the drive; Wine
  /// does the rest.
  WineDisc(std::filesystem::path disc, std::vector<std::string> environment);

  /// 0, or the error number (errno(3)) that prevented the prefix from being created.
  int Error() const { return error_; }
  /// The environment for the program.
  const std::vector<std::string>& Environment() const { return environment_; }
  /// The path by which Windows programs open a file or folder of the host, absolute.
  std::string WindowsPath(const std::filesystem::path& path) const;
  /// An argument as a Windows program needs it: what it names on the disc becomes a path that Wine can open.
  std::string Argument(const StartArgument& argument) const;
  /// The whole command line. The first time, it lets Wine fill the prefix and learn the types of the drives
  /// before it starts the program, which takes up to a minute.
  std::vector<std::string> Command(const std::filesystem::path& wine,
                                   const std::vector<std::string>& arguments) const;
  /// Whether Wine has not filled the prefix yet.
  bool IsNew() const { return isNew_; }

 private:
  void Prepare();
  char TakeDrive() const;
  void Link(char drive) const;
  std::filesystem::path Drive(char drive) const;
  std::string DriveLetter() const { return {static_cast<char>(drive_ - 'a' + 'A')}; }

  std::filesystem::path disc_, prefix_;  ///< `prefix_` is empty if the user has set one
  std::vector<std::string> environment_;
  Descriptor lock_;
  char drive_ = 'd';
  bool isNew_ = false;
  int error_ = 0;
};

}  // namespace orvanta
