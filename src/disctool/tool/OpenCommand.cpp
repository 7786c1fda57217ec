#include "disctool/tool/OpenCommand.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QMessageBox>
#include <QProgressDialog>
#include <QScreen>
#include <algorithm>
#include <chrono>
#include <csignal>
#include <optional>
#include <system_error>

#include "disctool/OutputText.h"
#include "disctool/Translation.h"
#include "disctool/disc/Catalogue.h"
#include "disctool/image/DiscCache.h"
#include "disctool/image/VolumeFiles.h"
#include "platform/desktop/DesktopHost.h"
#include "platform/desktop/Display.h"
#include "platform/desktop/window/QtScaling.h"
#include "platform/desktop/window/ShellIcon.h"
#include "startup/Shell.h"

namespace orvanta {
namespace {

constexpr std::chrono::milliseconds kPatience{500};
constexpr int kSteps = 1000;

/// A window that appears after half a second of work; most discs are open by then.
class ProgressWindow {
 public:
  ProgressWindow(std::optional<int> zoom, int& argc, char** argv) : zoom_(zoom), argc_(argc), argv_(argv) {}

  void Show(std::uintmax_t done, std::uintmax_t all) {
    if (!bar_ && (!hasDisplay_ || std::chrono::steady_clock::now() < due_)) return;
    if (!bar_) Open();
    const auto part = static_cast<double>(done) / static_cast<double>(std::max(done, all));
    if (const int step = static_cast<int>(part * kSteps); step != bar_->value()) bar_->setValue(step);
    QCoreApplication::processEvents();
  }

 private:
  void Open() {
    SwitchOffQtScaling();
    application_.emplace(argc_, argv_);
    QApplication::setWindowIcon(ShellIcon());
    bar_.emplace(QString::fromStdString(Translated("Unpacking the disc...")),
                 QString::fromStdString(Translated("Cancel")), 0, kSteps);
    bar_->setWindowTitle("Orvanta Shell");
    bar_->setMinimumDuration(0);
    bar_->setAutoReset(false);
    MakeReadable(*bar_, ZoomOfScreen(*bar_->screen(), zoom_));
    // The same as interrupting it in a terminal: the unpacking cleans up, and the program ends.
    QObject::connect(&*bar_, &QProgressDialog::canceled, [] { std::raise(SIGTERM); });
  }

  const std::optional<int> zoom_;
  int& argc_;
  char** argv_;
  const bool hasDisplay_ = HasDisplay();
  const std::chrono::steady_clock::time_point due_ = std::chrono::steady_clock::now() + kPatience;
  std::optional<QApplication> application_;
  std::optional<QProgressDialog> bar_;
};

std::string Open(const Request& request, int& argc, char** argv) {
  const std::optional<int> zoom = request.Zoom();
  std::optional<ProgressWindow> window(std::in_place, zoom, argc, argv);
  const DiscCache cache(request.CacheLimit().value_or(DiscCache::kDefaultLimit));
  const OpenedDisc disc = cache.Open(
      request.words[0], [&window](std::uintmax_t done, std::uintmax_t all) { window->Show(done, all); });
  window.reset();
  if (!disc.problem.empty()) return disc.problem;
  WriteVolumeFiles(request.words[0], disc.folder);
  return RunShell(disc.folder, zoom, argc, argv);
}

}  // namespace

std::string RunShell(const std::filesystem::path& disc, std::optional<int> zoom, int& argc, char** argv) {
  if (Catalogue(FolderTree(disc)).Empty()) return NoDiscIn(disc);
  if (!HasDisplay()) return Translated("there is no display to open a window on");
  std::error_code error;
  const std::filesystem::path root = std::filesystem::absolute(disc, error);
  std::filesystem::current_path(root, error);
  if (error) return disc.string() + ": " + error.message();
  DesktopHost host(argc, argv, root, zoom);
  if (host.PrevInstance()) return Translated("the shell is already running on this display");
  Shell shell(host);
  shell.Run();
  return {};
}

bool ErrorsAreRead() {
  struct stat status {};
  return isatty(STDERR_FILENO) != 0 || (fstat(STDERR_FILENO, &status) == 0 && S_ISFIFO(status.st_mode));
}

std::string OpenInWindows(const Request& request, int& argc, char** argv) {
  std::string problem = Open(request, argc, argv);
  if (problem.empty() || !HasDisplay()) return problem;
  SwitchOffQtScaling();
  const QApplication application(argc, argv);
  QApplication::setWindowIcon(ShellIcon());
  QMessageBox box(QMessageBox::Critical, "Orvanta Shell", QString::fromStdString(Printable(problem)));
  box.setTextFormat(Qt::PlainText);
  MakeReadable(box, ZoomOfScreen(*box.screen(), request.Zoom()));
  box.exec();
  return problem;
}

}  // namespace orvanta
