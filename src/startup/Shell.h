#pragma once

#include <array>
#include <filesystem>
#include <string>

#include "buttons/modMouse.h"
#include "config/IniRead.h"
#include "config/Settings.h"
#include "config/Values.h"
#include "launcher/modExec.h"
#include "media/frmKino.h"
#include "menu/frmShowPic.h"
#include "platform/FormSlot.h"
#include "platform/Host.h"
#include "startup/MainForm.h"
#include "startup/basCommon.h"
#include "startup/frmDociag.h"
#include "startup/frmReklama.h"
#include "startup/modActiveWindow.h"
#include "startup/modMain.h"

namespace orvanta {

/// The whole program: the state of the modules, and the forms by name. Several shells can exist in one
/// process.
class Shell {
 public:
  explicit Shell(Host& host);

  /// Runs until the program ends. False, and the user has been told, if there is no disc to show; a second
  /// instance of the program ends without a word either way.
  bool Run();

  /// The file or folder that a path of the disc leads to; empty if it does not exist.
  std::filesystem::path HostFile(const std::string& path) const { return ini.Drive().Find(path).path; }
  /// Null if the path does not lead to a picture.
  PicturePtr LoadPicture(const std::string& path) { return host.LoadPicture(HostFile(path)); }

  using StripSlot = FormSlot<frmDociag, Shell, EdgeStrip>;

  Host& host;
  const INI_Read ini;
  const Settings settings{ini};

  orvanta::basCommon basCommon{*this};
  orvanta::modMain modMain{*this};
  orvanta::modActiveWindow modActiveWindow{*this};
  orvanta::modMouse modMouse{*this};
  orvanta::modExec modExec{*this};

  FormSlot<orvanta::frmReklama, Shell> frmReklama{*this};
  FormSlot<orvanta::MainForm, Shell> MainForm{*this};
  StripSlot frmDociagLewo{*this, kDociagLewo};
  StripSlot frmDociagGora{*this, kDociagGora};
  StripSlot frmDociagPrawo1{*this, kDociagPrawo1};
  StripSlot frmDociagPrawo2{*this, kDociagPrawo2};
  StripSlot frmDociagPrawo3{*this, kDociagPrawo3};
  FormSlot<orvanta::frmShowPic, Shell> frmShowPic{*this};
  FormSlot<orvanta::frmKino, Shell> frmKino{*this};

  /// The five strips, in the order in which they are shown and raised.
  std::array<StripSlot*, 5> Strips() {
    return {&frmDociagLewo, &frmDociagGora, &frmDociagPrawo1, &frmDociagPrawo2, &frmDociagPrawo3};
  }
};

}  // namespace orvanta
