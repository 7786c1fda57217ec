#include "startup/Shell.h"

namespace orvanta {

namespace {

std::string NoDisc(const std::filesystem::path& folder) {
  return "W folderze\r\n" + folder.string() +
         "\r\nnie ma płyty: nie znaleziono w nim folderu Data z plikiem Menu.ini albo Param.ini.\r\n\r\n"
         "Umieść program (albo dowiązanie do niego) w folderze płyty, obok folderu Data, i uruchom go tam.";
}

std::string WithBackslash(std::string folder) {
  if (folder.empty() || folder.back() != '\\') folder += '\\';
  return folder;
}

}  // namespace

Shell::Shell(Host& itsHost)
    : host(itsHost), ini(WithBackslash(itsHost.AppPath()), DiscDrive(itsHost.DriveRoot())) {}

bool Shell::Run() {
  try {
    if (!host.PrevInstance() && !ini.HasDisc()) {
      host.MsgBox(NoDisc(host.DriveRoot()), kCriticalBox, "Orvanta Shell");
      return false;
    }
    modMain.Main();
    host.Loop().RunUntil([] { return false; });
  } catch (const ProgramEnd&) {
    // The shell destroys the forms.
  }
  return true;
}

}  // namespace orvanta
