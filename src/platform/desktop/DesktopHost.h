#pragma once

#include <QApplication>
#include <QBasicTimer>
#include <QElapsedTimer>
#include <filesystem>
#include <memory>
#include <optional>

#include "platform/Host.h"
#include "platform/desktop/InstanceLock.h"
#include "platform/desktop/start/FileStarter.h"
#include "platform/desktop/window/CursorWatch.h"
#include "platform/desktop/window/EnlargedPictures.h"
#include "platform/desktop/window/Fonts.h"
#include "platform/desktop/window/Zoom.h"

namespace orvanta {

/// The host that people use: windows, pictures and text by Qt, sound and film by GStreamer.
///
/// Qt takes in and paints only while the event loop asks for it, and hands everything on to the loop's queue:
/// no handler of the shell ever runs, and nothing is thrown, inside a call from Qt.
class DesktopHost : public Host {
 public:
  /// `discFolder` is the root of the drive, absolute. Of the arguments none but the program's name is read.
  /// Without a `zoom` of 1 or more, the screen of the main window decides.
  DesktopHost(int& argc, char** argv, std::filesystem::path discFolder, std::optional<int> zoom = {});

  /// The program's screen, from whose corner every place of the program counts, and its zoom.
  const ScreenZoom& Zoom() const { return zoom_; }
  /// The art of all windows, enlarged.
  EnlargedPictures& Pictures() { return pictures_; }
  /// The window whose screen is the program's; null if there is none.
  void SetMainWindow(QWidget* window) { mainWindow_ = window; }
  /// If it is on the screen, without activating it.
  void PutMainWindowOnTop();
  /// The main window has been sent to another workspace.
  void FollowWorkspace(std::uint32_t workspace);
  /// Lets Qt wait for an event, to `deadline` at the longest, and handle it.
  void WaitForQt(Milliseconds deadline);
  /// The active window goes away, and the window manager, which may be slow, will activate `next`. Until it
  /// does, `next` counts as active, for half a second at most.
  void ExpectActivation(Form& next);
  /// `form` has become active, or goes away.
  void StopExpecting(const Form& form);
  /// What the program's windows are told of the cursor.
  CursorWatch& Cursor() const { return cursor_; }

  Milliseconds Now() override { return clock_.elapsed(); }
  void TakeInput() override;
  void WaitForInput(Milliseconds deadline) override { WaitForQt(deadline); }
  std::string AppPath() const override { return "D:\\"; }
  std::filesystem::path DriveRoot() const override { return discFolder_; }
  bool PrevInstance() const override { return !instance_; }
  Size ScreenSize() const override { return zoom_.ProgramSize(); }
  Point CursorPos() const override;
  Form* ActiveForm() const override;
  std::unique_ptr<FormWindow> MakeWindow(Form& form, WindowKind kind) override;
  void MsgBox(const std::string& text, int style, const std::string& title) override;
  void Sleep(Milliseconds duration) override;
  PicturePtr LoadPicture(const std::filesystem::path& file) override;
  void AddFont(const std::filesystem::path& file) override { fonts_.Add(file); }
  void RemoveFont(const std::filesystem::path& file) override { fonts_.Remove(file); }
  bool IsSoundCardEnabled() override;
  std::unique_ptr<MoviePlayer> MakePlayer(MovieKind kind) override;
  int StartFile(const StartRequest& request) override { return starter_.Start(request); }
  int StartResult(int start) override { return starter_.Result(start); }

 private:
  ScreenZoom LookAtScreen() const;
  void FollowScreen();

  FileStarter starter_;  // before Qt's variables are set: started programs get none of them
  QApplication application_;
  const std::filesystem::path discFolder_;
  const std::optional<InstanceLock> instance_;
  const std::optional<int> chosenZoom_;
  QWidget* mainWindow_ = nullptr;
  ScreenZoom zoom_;
  EnlargedPictures pictures_;
  PrivateFonts fonts_;
  QElapsedTimer clock_;
  QObject alarm_;  // who is woken: a timer's event needs somebody to go to
  QBasicTimer wake_;
  mutable CursorWatch cursor_;
  Form* expected_ = nullptr;  // counts as active until `expectedUntil_`
  Milliseconds expectedUntil_ = 0;
};

}  // namespace orvanta
