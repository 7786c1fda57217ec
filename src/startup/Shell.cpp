#include "startup/Shell.h"

namespace orvanta {

namespace {

std::string WithBackslash(std::string folder) {
  if (folder.empty() || folder.back() != '\\') folder += '\\';
  return folder;
}

}  // namespace

Shell::Shell(Host& itsHost)
    : host(itsHost), ini(WithBackslash(itsHost.AppPath()), DiscDrive(itsHost.DriveRoot())) {}

void Shell::Run() {
  try {
    modMain.Main();
    host.Loop().RunUntil([] { return false; });
  } catch (const ProgramEnd&) {
    // The shell destroys the forms.
  }
}

}  // namespace orvanta
