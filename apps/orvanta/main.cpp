#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "config/DiscDrive.h"
#include "platform/desktop/DesktopHost.h"
#include "platform/desktop/ShellFolder.h"
#include "startup/Shell.h"

namespace {

/// The message for a user who starts the program where there is no disc; empty if there is one.
std::string MissingDisc(const std::filesystem::path& folder) {
  const orvanta::DiscDrive drive(folder);
  const auto readable = [&drive](const char* name) {
    const std::filesystem::path file = drive.Find(name).path;
    std::error_code error;
    return std::filesystem::is_regular_file(file, error) && std::ifstream(file).good();
  };
  if (readable("D:\\Data\\Menu.ini") || readable("D:\\Data\\Param.ini")) return {};
  return "W folderze\r\n" + folder.string() +
         "\r\nnie ma płyty: nie znaleziono w nim folderu Data z plikiem Menu.ini albo Param.ini.\r\n\r\n"
         "Umieść program (albo dowiązanie do niego) w folderze płyty, obok folderu Data, i uruchom go tam.";
}

}  // namespace

int main(int argc, char** argv) {
  const std::filesystem::path folder = orvanta::ShellFolder(argc > 0 ? argv[0] : "");
  orvanta::DesktopHost host(argc, argv, folder);
  if (const std::string message = MissingDisc(folder); !message.empty()) {
    host.MsgBox(message, orvanta::kCriticalBox, "Orvanta Shell");
    return 1;
  }
  orvanta::Shell shell(host);
  shell.Run();
  return 0;
}
