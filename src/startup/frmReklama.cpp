#include "startup/frmReklama.h"

#include "startup/Shell.h"

namespace orvanta {

frmReklama::frmReklama(Shell& shell)
    : Form(shell.host, {.name = "frmReklama", .width = 9600, .height = 7170, .window = WindowKind::Splash}),
      Picture1(*this, "Picture1"),
      Picture2(*this, "Picture2"),
      AMR(*this, "AMR", MovieKind::Sound),
      Timer1(*this, 500, [this] { Timer1_Timer(); }),
      shell_(shell) {
  Picture1.Stretch = true;
  Timer1.Enabled = true;
}

void frmReklama::Form_Load() {
  const Settings& settings = shell_.settings;
  shell_.basCommon.SoundCardOK = shell_.host.IsSoundCardEnabled();
  if (!settings.Has(KeyRef<Kind::Picture>{"GLOBAL", "StartPic"})) {
    Height = 0;
    Width = 0;
    Visible = false;
    StartTick = 100;
    return;
  }
  if (shell_.basCommon.SoundCardOK) {
    AMR.Left = Width();
    AMR.Top = Height();
    AMR.FileName(shell_.HostFile(settings.Sound({"VOICES", "Start"})));
  }
  Picture1.Picture = shell_.LoadPicture(settings.Picture({"GLOBAL", "StartPic"}));
  Picture1.Move(0, 0, 640, 450);
  Picture2.Picture = shell_.LoadPicture(settings.Picture({"GLOBAL", "UnderPic"}));
  Picture2.Move(0, 448, 640, 30);
  Refresh();
  MousePointer = kHourglassPointer;
  Visible = true;
  StartTick = 0;
}

AccessibleNode frmReklama::Accessible() const {
  AccessibleNode window = Form::Accessible();
  window.name = "Ekran startowy";
  return window;
}

void frmReklama::Timer1_Timer() {
  ++StartTick;
  const bool speaking = shell_.basCommon.SoundCardOK && AMR.CurrentState() == ActiveMovie::kRunning;
  if (speaking || StartTick <= 1) return;
  Timer1.Enabled = false;
  shell_.MainForm->Show();
}

}  // namespace orvanta
