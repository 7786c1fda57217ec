#include <iostream>

#include "platform/desktop/DesktopHost.h"
#include "platform/desktop/Display.h"
#include "platform/desktop/ShellFolder.h"
#include "startup/Shell.h"

int main(int argc, char** argv) {
  if (!orvanta::HasDisplay()) {
    std::cerr << "orvanta: nie ma ekranu, na którym można otworzyć okno\n";
    return 1;
  }
  orvanta::DesktopHost host(argc, argv, orvanta::ShellFolder(argc > 0 ? argv[0] : ""));
  return orvanta::Shell(host).Run() ? 0 : 1;
}
