#include "startup/modMain.h"

#include "startup/ControlFiles.h"
#include "startup/Shell.h"

namespace orvanta {

void modMain::Main() {
  Host& host = shell_.host;
  if (host.PrevInstance()) host.EndProgram();
  CheckScreenSize();
  ShowPicOpen = false;
  ItemSoundHold = false;
  DiscRoot = shell_.ini.DiscRoot();
  ControlFilesHost* components = host.ControlFiles();
  if (components) WinSysDir = GetSysDir(*components);
  DiscSysDir = DiscRoot + "SYSTEM\\";
  if (components) CheckControls(*components, {WinSysDir, DiscSysDir});
  shell_.frmReklama->Show();
}

void modMain::CheckScreenSize() {
  const ScreenMetrics screen = shell_.host.Screen();
  SmallScreen = screen.Width / screen.TwipsPerPixelX < 800;
}

}  // namespace orvanta
