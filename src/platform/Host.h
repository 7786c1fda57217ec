#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "platform/EventLoop.h"
#include "platform/FormWindow.h"
#include "platform/MoviePlayer.h"
#include "platform/Picture.h"

namespace orvanta {

/// Thrown to end the program at once, with all its windows. Whoever runs the shell catches it.
struct ProgramEnd {};

/// How the first window of a started program is to appear. Where the window manager decides that, it is not
/// used.
enum class ShowMode { Normal = 1 };

/// A file to be opened by the platform. `status` tells what became of `name` on the disc.
struct StartRequest {
  enum class Status {
    Found,
    FileMissing,    ///< the folder is there, the file is not
    FolderMissing,  ///< a folder on the way, or the drive, is not there
  };
  Status status = Status::FileMissing;
  std::string name{};            ///< as the catalogue has it; an address (http:, mailto:) is told by it alone
  std::filesystem::path file{};  ///< on the host, if found
  std::string parameters{};      ///< a command line, split as Windows programs split theirs
  ShowMode show = ShowMode::Normal;
};

/// The screen in twips.
struct ScreenMetrics {
  double Width = 0;
  double Height = 0;
  int TwipsPerPixelX = kTwipsPerPixel;
  int TwipsPerPixelY = kTwipsPerPixel;
};

class ControlFilesHost;

/// Everything that the shell asks of the system that it runs on.
class Host : public EventSource {
 public:
  Host() : loop_(*this) {}
  virtual ~Host() = default;
  EventLoop& Loop() { return loop_; }

  /// The folder of the running program: a path of the disc's drive, and where that drive's root lies.
  virtual std::string AppPath() const = 0;
  virtual std::filesystem::path DriveRoot() const = 0;
  virtual bool PrevInstance() const = 0;
  /// The registry of components, null where the system has none.
  virtual ControlFilesHost* ControlFiles() { return nullptr; }

  /// In pixels.
  virtual Size ScreenSize() const = 0;
  ScreenMetrics Screen() const {
    return {.Width = ScreenSize().width * 1.0 * kTwipsPerPixel,
            .Height = ScreenSize().height * 1.0 * kTwipsPerPixel};
  }
  virtual Point CursorPos() const = 0;
  /// The form that is the active window, null while another program has it.
  virtual Form* ActiveForm() const = 0;
  virtual std::unique_ptr<FormWindow> MakeWindow(Form& form, WindowKind kind) = 0;
  /// Blocks until the user has closed the box; ticks go on. Style 16 is the critical icon. `text` is UTF-8.
  virtual void MsgBox(const std::string& text, int style, const std::string& title) = 0;

  /// Blocks the program; nothing is delivered meanwhile.
  virtual void Sleep(Milliseconds duration) = 0;

  /// Null if the file cannot be read as a picture.
  virtual PicturePtr LoadPicture(const std::filesystem::path& file) = 0;
  virtual void AddFont(const std::filesystem::path& file) = 0;
  virtual void RemoveFont(const std::filesystem::path& file) = 0;

  virtual bool IsSoundCardEnabled() = 0;
  virtual std::unique_ptr<MoviePlayer> MakePlayer(MovieKind kind) = 0;

  /// Starts without waiting: above 32 for success, else a code from 0 to 32 that names the failure.
  virtual int StartFile(const StartRequest& request) = 0;

 private:
  EventLoop loop_;
};

}  // namespace orvanta
