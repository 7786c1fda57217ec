#include "platform/desktop/DesktopHost.h"

#include <QMessageBox>
#include <QScreen>
#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>
#include <vector>

#include "platform/desktop/media/GstPlayer.h"
#include "platform/desktop/media/SoundCard.h"
#include "platform/desktop/window/DesktopWindow.h"
#include "platform/desktop/window/ProgramAccess.h"
#include "platform/desktop/window/QtPicture.h"
#include "platform/desktop/window/QtScaling.h"
#include "platform/desktop/window/ShellIcon.h"
#include "platform/desktop/window/XWindow.h"

namespace orvanta {

namespace {

/// Those of the program that exist now.
std::vector<DesktopWindow*> Windows() {
  std::vector<DesktopWindow*> windows;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* window = dynamic_cast<DesktopWindow*>(widget)) windows.push_back(window);
  return windows;
}

/// Before Qt starts: a pixel is one of the screen, and windows can say where they stand, which Wayland alone
/// does not let them.
int& PreparedForQt(int& argc) {
  argc = std::min(argc, 1);  // Qt would obey options of its own
  SwitchOffQtScaling();
  // Nothing here lives on GLib's main loop, and Qt's own takes half the time to find that nothing happened.
  qputenv("QT_NO_GLIB", "1");
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  const bool mayChoose = platform.isEmpty() || platform.startsWith("wayland");
  if (mayChoose && qEnvironmentVariableIsSet("DISPLAY")) qputenv("QT_QPA_PLATFORM", "xcb;wayland");
  return argc;
}

}  // namespace

DesktopHost::DesktopHost(int& argc, char** argv, std::filesystem::path discFolder, std::optional<int> zoom)
    : starter_(discFolder),
      application_(PreparedForQt(argc), argv),
      discFolder_(std::move(discFolder)),
      instance_(InstanceLock::Acquire(InstancePlaceFromEnvironment())),
      chosenZoom_(zoom),
      zoom_(LookAtScreen()) {
  application_.setQuitOnLastWindowClosed(false);
  clock_.start();
  OfferAccess();
}

ScreenZoom DesktopHost::LookAtScreen() const {
  const QScreen& screen = *(mainWindow_ ? mainWindow_->screen() : QGuiApplication::primaryScreen());
  const QRect place = screen.geometry();
  return {{place.x(), place.y(), place.width(), place.height()}, ZoomOfScreen(screen, chosenZoom_)};
}

void DesktopHost::FollowScreen() {
  const ScreenZoom now = LookAtScreen();
  if (now == zoom_) return;
  zoom_ = now;
  for (DesktopWindow* window : Windows()) window->FollowScreen();
}

void DesktopHost::PutMainWindowOnTop() {
  if (auto* window = dynamic_cast<DesktopWindow*>(mainWindow_)) window->ComeToTop();
}

void DesktopHost::FollowWorkspace(std::uint32_t workspace) {
  for (DesktopWindow* window : Windows()) window->FollowWorkspace(workspace);
}

Point DesktopHost::CursorPos() const { return zoom_.ToProgram(cursor_.Place(clock_.elapsed())); }

Form* DesktopHost::ActiveForm() const {
  const auto* window = dynamic_cast<const DesktopWindow*>(QApplication::activeWindow());
  if (!window) {
    const bool waiting =
        expected_ && clock_.elapsed() < expectedUntil_ && expected_->WindowState != Form::kMinimised;
    return waiting ? expected_ : nullptr;
  }
  return window->isMinimized() ? nullptr : &window->TheForm();
}

void DesktopHost::StopExpecting(const Form& form) {
  if (expected_ == &form) expected_ = nullptr;
}

void DesktopHost::ExpectActivation(Form& next) {
  constexpr Milliseconds kPatience = 500;
  expected_ = &next;
  expectedUntil_ = Now() + kPatience;
}

void DesktopHost::TakeInput() {
  FollowAccess();
  QCoreApplication::processEvents();
  FollowScreen();
  cursor_.Look(Now());
}

void DesktopHost::WaitForQt(Milliseconds deadline) {
  if (deadline != kNever) {
    const Milliseconds left = std::clamp<Milliseconds>(deadline - Now(), 0, 3600 * 1000);
    wake_.start(static_cast<int>(left), Qt::PreciseTimer, &alarm_);
  }
  FollowAccess();
  QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  wake_.stop();
  FollowScreen();
  cursor_.Look(Now());
}

std::unique_ptr<FormWindow> DesktopHost::MakeWindow(Form& form, WindowKind kind) {
  return std::make_unique<DesktopWindow>(*this, form, kind);
}

void DesktopHost::MsgBox(const std::string& text, int style, const std::string& title) {
  QMessageBox box(style == kCriticalBox ? QMessageBox::Critical : QMessageBox::NoIcon, WindowTitle(title),
                  QString::fromStdString(text).remove(QLatin1Char('\r')), QMessageBox::Ok);
  box.setWindowIcon(ShellIcon());
  box.setTextFormat(Qt::PlainText);
  box.setWindowModality(Qt::ApplicationModal);
  MakeReadable(box, zoom_.factor);
  EventLoop::Modal modal(Loop(), nullptr);
  QObject::connect(&box, &QDialog::finished, [&modal] { modal.End(); });
  box.show();
  Loop().RunUntil([&box] { return !box.isVisible(); });
}

void DesktopHost::Sleep(Milliseconds duration) {
  FlushToScreen();
  cursor_.Doubt();
  std::this_thread::sleep_for(std::chrono::milliseconds(std::max<Milliseconds>(0, duration)));
}

PicturePtr DesktopHost::LoadPicture(const std::filesystem::path& file) { return LoadQtPicture(file); }

bool DesktopHost::IsSoundCardEnabled() { return orvanta::IsSoundCardEnabled(); }

std::unique_ptr<MoviePlayer> DesktopHost::MakePlayer(MovieKind kind) { return MakeGstPlayer(kind); }

}  // namespace orvanta
