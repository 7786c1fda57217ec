#include "startup/modFonts.h"

#include "startup/Shell.h"

namespace orvanta {

void FontResource(Shell& shell, const std::string& path, bool add) {
  if (!add) return shell.host.RemoveFont(shell.HostFile(path));
  shell.host.AddFont(shell.HostFile(path));
  shell.host.Sleep(500);
}

}  // namespace orvanta
