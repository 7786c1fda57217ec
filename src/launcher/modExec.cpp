#include "launcher/modExec.h"

#include "launcher/ExecErrorText.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

constexpr int kCriticalBox = 16;

StartRequest::Status StatusOf(FoundPath::Outcome outcome) {
  switch (outcome) {
    case FoundPath::Outcome::Found: return StartRequest::Status::Found;
    case FoundPath::Outcome::FileMissing: return StartRequest::Status::FileMissing;
    case FoundPath::Outcome::FolderMissing: break;
  }
  return StartRequest::Status::FolderMissing;
}

}  // namespace

bool modExec::ExecItem(const std::string& entry) {
  const std::string file = shell_.ini.IniRead(entry, "Execute", kMenuFile);
  const std::string parameters = shell_.ini.IniRead(entry, "Parameters", kMenuFile);
  shell_.MainForm->MousePointer = Form::kHourglassPointer;
  const FoundPath found = shell_.ini.Drive().Find(file);
  const int result = shell_.host.StartFile({StatusOf(found.outcome), file, found.path, parameters});
  if (result > 32) WaitForProgram();
  shell_.MainForm->MousePointer = Form::kDefaultPointer;
  ExecError(result);
  return result > 32;
}

void modExec::WaitForProgram() {
  constexpr Milliseconds kPoll = 50;
  // The tick looks for the active window. But if Start was clicked while the music fades, the tick stands
  // still until this wait is over, so the wait has to look itself.
  const auto active = [this] {
    return shell_.MainForm->Timer1.Enabled ? shell_.modActiveWindow.AppActive
                                           : shell_.modActiveWindow.CheckActive();
  };
  while (active()) shell_.host.Loop().PumpOrWait(shell_.host.Now() + kPoll);
}

void modExec::ExecError(std::int32_t code) {
  if (const auto text = ExecErrorText(code)) shell_.host.MsgBox(*text, kCriticalBox, "Orvanta Shell");
}

}  // namespace orvanta
