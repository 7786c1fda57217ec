#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/EventLoop.h"
#include "platform/FormWindow.h"
#include "platform/MoviePlayer.h"
#include "platform/Picture.h"

namespace orvanta {

/// Thrown where a host ends the program by unwinding. Whoever runs the shell catches it.
struct ProgramEnd {};

/// The style of a message box with the critical icon.
inline constexpr int kCriticalBox = 16;

/// A word of a started program's command line.
struct StartArgument {
  std::string text;              ///< UTF-8, as written in the catalogue
  std::filesystem::path file{};  ///< the file that it names on the disc, on the host; empty if there is none
};

/// A file for the platform to open. `status` is the result of looking up `name` on the disc.
struct StartRequest {
  enum class Status {
    Found,
    FileMissing,    ///< the folder exists, the file does not
    FolderMissing,  ///< a folder on the way, or the drive, does not exist
  };
  Status status = Status::FileMissing;
  std::string name{};            ///< as written in the catalogue; an address (http:, mailto:) has only this
  std::filesystem::path file{};  ///< the file on the host, if found
  std::string parameters{};      ///< the command line as written in the catalogue
  std::vector<StartArgument> arguments{};  ///< its words, split as Windows programs do
};

/// The screen in twips.
struct ScreenMetrics {
  double Width = 0;
  double Height = 0;
  int TwipsPerPixelX = kTwipsPerPixel;
  int TwipsPerPixelY = kTwipsPerPixel;
};

class ControlFilesHost;

/// Everything that the shell needs from the system that it runs on.
class Host : public EventSource {
 public:
  Host() : loop_(*this) {}
  virtual ~Host() = default;
  EventLoop& Loop() { return loop_; }

  /// Ends the program at once, with all its windows.
  [[noreturn]] virtual void EndProgram() { throw ProgramEnd{}; }

  /// The folder of the running program, as a path of the disc's drive, and the folder of the host that is the
  /// root of that drive.
  virtual std::string AppPath() const = 0;
  virtual std::filesystem::path DriveRoot() const = 0;
  virtual bool PrevInstance() const = 0;
  /// The registry of components; null if the system has none.
  virtual ControlFilesHost* ControlFiles() { return nullptr; }

  /// In pixels.
  virtual Size ScreenSize() const = 0;
  ScreenMetrics Screen() const {
    return {.Width = ScreenSize().width * 1.0 * kTwipsPerPixel,
            .Height = ScreenSize().height * 1.0 * kTwipsPerPixel};
  }
  virtual Point CursorPos() const = 0;
  /// The form whose window is active; null while another program is.
  virtual Form* ActiveForm() const = 0;
  virtual std::unique_ptr<FormWindow> MakeWindow(Form& form, WindowKind kind) = 0;
  /// Blocks until the user has closed the box; ticks go on. `style` is `kCriticalBox`; `text` is
  /// UTF-8.
  virtual void MsgBox(const std::string& text, int style, const std::string& title) = 0;

  /// Blocks the program; meanwhile nothing is delivered.
  virtual void Sleep(Milliseconds duration) = 0;

  /// Null if the file cannot be read as a picture.
  virtual PicturePtr LoadPicture(const std::filesystem::path& file) = 0;
  virtual void AddFont(const std::filesystem::path& file) = 0;
  virtual void RemoveFont(const std::filesystem::path& file) = 0;

  virtual bool IsSoundCardEnabled() = 0;
  virtual std::unique_ptr<MoviePlayer> MakePlayer(MovieKind kind) = 0;

  /// Starts the file without waiting. The result is above 32 for success; a code from 0 to 32 names the
  /// failure.
  virtual int StartFile(const StartRequest& request) = 0;
  /// The result of a start by now: `start`, which `StartFile` returned for it, or the code of a failure that
  /// showed only later.
  virtual int StartResult(int start) { return start; }

 private:
  EventLoop loop_;
};

}  // namespace orvanta
