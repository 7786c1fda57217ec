#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/Host.h"
#include "platform/desktop/Descriptor.h"

namespace orvanta {

/// A disc in Wine's prefix, ready for the start of a program.
///
/// The prefix is our own, `$XDG_DATA_HOME/orvanta/wine`; the user's `~/.wine` is never touched. In it the
/// disc is a CD-ROM drive, as a rule D (wiki.winehq.org, "Wine User's Guide": `dosdevices`). If the user has
/// set `WINEPREFIX`, that prefix is used as it is and nothing is changed in it: programs then find the disc
/// below Z, which is the root of the host's files.
///
/// Two discs at once: a drive belongs to its disc for as long as a process runs that was started with it;
/// such a process carries the drive in its environment. Meanwhile another disc gets the next drive, E, which
/// the prefix has for it, then F and so on, which are no CD-ROMs to Wine until its next session. The choice
/// is made under a lock that is held until this object goes, which must not be before the program's process
/// is there.
class WineDisc {
 public:
  /// `disc` is absolute, `environment` that of the programs. Makes the folders and the drive, and leaves the
  /// rest to Wine.
  WineDisc(std::filesystem::path disc, std::vector<std::string> environment);

  /// 0, or the error number (errno(3)) that kept the prefix from being made.
  int Error() const { return error_; }
  /// The environment for the program.
  const std::vector<std::string>& Environment() const { return environment_; }
  /// An argument as a Windows program understands it: what it names on the disc by a path that Wine opens.
  std::string Argument(const StartArgument& argument) const;
  /// The whole command line. The first time it lets Wine fill the prefix and learn of the drives' type before
  /// it starts the program, which takes up to a minute.
  std::vector<std::string> Command(const std::filesystem::path& wine,
                                   const std::vector<std::string>& arguments) const;
  /// Wine has yet to fill the prefix.
  bool IsNew() const { return isNew_; }

 private:
  void Prepare();
  char TakeDrive() const;
  void Link(char drive) const;
  std::filesystem::path Drive(char drive) const;

  std::filesystem::path disc_, prefix_;  ///< no `prefix_` of our own if the user has set one
  std::vector<std::string> environment_;
  Descriptor lock_;
  char drive_ = 'd';
  bool isNew_ = false;
  int error_ = 0;
};

}  // namespace orvanta
