#include "disctool/tool/CommandSupport.h"

#include <QByteArray>

#include "disctool/OutputText.h"
#include "disctool/command/DiscCommands.h"

namespace orvanta {

int Outcome(const std::string& problem) {
  if (problem.empty()) return kGood;
  std::cerr << "orvanta-disc: " << Printable(problem) << '\n';
  return kFaults;
}

int& PreparedForNoDisplay(int& argc) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  return argc;
}

}  // namespace orvanta
