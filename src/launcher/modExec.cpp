#include "launcher/modExec.h"

#include "launcher/ExecErrorText.h"
#include "launcher/RequestFor.h"
#include "startup/Shell.h"

namespace orvanta {

namespace {

/// The greatest number with which the host reports a failure.
constexpr int LastFailure = 32;

}  // namespace

bool modExec::ExecItem(const std::string& entry) {
  const std::string file = shell_.ini.IniRead(entry, "Execute", kMenuFile);
  const std::string parameters = shell_.ini.IniRead(entry, "Parameters", kMenuFile);
  shell_.MainForm->MousePointer = Form::kHourglassPointer;
  const int start = shell_.host.StartFile(RequestFor(file, parameters, shell_.ini.Drive()));
  const int result = WaitForProgram(start);
  shell_.MainForm->MousePointer = Form::kDefaultPointer;
  ExecError(result);
  return result > LastFailure;
}

int modExec::WaitForProgram(int start) {
  constexpr Milliseconds kPoll = 50;
  // The tick looks for the active window. But if Start was clicked while the music fades, the tick stands
  // still until this wait is over, so the wait has to look itself.
  const auto active = [this] {
    return shell_.MainForm->Timer1.Enabled ? shell_.modActiveWindow.AppActive
                                           : shell_.modActiveWindow.CheckActive();
  };
  int result = start;
  while (result > LastFailure && active()) {
    shell_.host.Loop().PumpOrWait(shell_.host.Now() + kPoll);
    result = shell_.host.StartResult(start);
  }
  return result;
}

void modExec::ExecError(std::int32_t code) {
  if (const auto text = ExecErrorText(code)) shell_.host.MsgBox(*text, kCriticalBox, "Orvanta Shell");
}

}  // namespace orvanta
