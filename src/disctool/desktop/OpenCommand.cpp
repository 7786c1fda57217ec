#include "disctool/desktop/OpenCommand.h"

#include <cstdlib>

#include "disctool/Catalogue.h"
#include "platform/desktop/DesktopHost.h"
#include "startup/Shell.h"

namespace orvanta {
namespace {

/// Without a display Qt ends the process, and not with a word that helps.
bool HasDisplay() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    if (const char* value = std::getenv(name); value && *value) return true;
  return false;
}

}  // namespace

std::string RunShell(const std::filesystem::path& disc, int& argc, char** argv) {
  if (Catalogue(disc).Empty())
    return disc.string() + ": there is no disc here: neither Data/Menu.ini nor Data/Param.ini";
  if (!HasDisplay()) return "there is no display to open a window on";
  DesktopHost host(argc, argv, disc);
  if (host.PrevInstance()) return "the shell is running already on this display";
  Shell shell(host);
  shell.Run();
  return {};
}

}  // namespace orvanta
