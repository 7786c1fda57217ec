#pragma once

#include <functional>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/StackingHost.h"
#include "platform/headless/HeadlessWindow.h"

namespace orvanta {

/// Thrown if the program would wait for ever, or beyond `HeadlessHost::deadline`.
struct VirtualTimeOut : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A host without a screen: its clock moves only when the program waits or sleeps, its mouse follows a
/// script, and plain lists record what the program has done.
class HeadlessHost : public StackingHost {
 public:
  explicit HeadlessHost(std::filesystem::path discFolder) : driveRoot(std::move(discFolder)) {}

  // What the machine is like.
  std::filesystem::path driveRoot;
  Size screen{1024, 768};
  bool soundCard = true;
  int startResult = 33;
  /// When a start that seemed to succeed turns out to have failed.
  Milliseconds startFailsAt = std::numeric_limits<Milliseconds>::max();
  /// How long the user leaves a message box open, in milliseconds; the loop is pumped meanwhile.
  Milliseconds messageHold = 0;
  struct Media {
    double seconds = 1;
    Size film{};
    Milliseconds loadDelay = 0;
    double breaksAt = std::numeric_limits<double>::infinity();  ///< in seconds; nothing after it can be read
  };
  std::map<std::string, Media> media;  ///< what a file of this name plays, whatever its content
  Milliseconds deadline = 3600 * 1000;

  // What has happened.
  struct Message {
    std::string text;
    int style;
    std::string title;
  };
  std::vector<Message> messages;
  struct PlayerCall {
    Milliseconds time;
    const void* player;
    std::string file, call;
  };
  std::vector<PlayerCall> playerCalls;
  std::vector<StartRequest> started;
  std::vector<std::string> fonts,
      pictures;  ///< fonts with "+" or "-" before the name; pictures in the order of loading
  struct Pause {
    Milliseconds at, duration;
  };
  std::vector<Pause> sleeps;
  std::function<void()> OnSleep;  ///< called when a sleep begins, to check what is on the screen during it

  // The script.
  void At(Milliseconds time, std::function<void()> action);
  void After(Milliseconds delay, std::function<void()> action) { At(now_ + delay, std::move(action)); }
  void Click(Point at);
  void DoubleClick(Point at);
  /// Lets a screen reader press the thing with this name; does nothing if there is none.
  void Invoke(const std::string& name) { Assist(name, FormEvent::Kind::Invoke); }
  /// Lets a screen reader set the value of the thing with this name.
  void SetValue(const std::string& name, double value) { Assist(name, FormEvent::Kind::SetValue, value); }
  /// The sound server restarts: every player loses it.
  void RestartSoundServer() { ++soundServer_; }
  /// The number of the sound server that runs, for the players.
  int SoundServer() const { return soundServer_; }
  /// Runs the program for this time.
  void RunFor(Milliseconds duration);

  HeadlessWindow& WindowOf(const Form& form) const {
    return static_cast<HeadlessWindow&>(StackingHost::WindowOf(form));
  }

  Milliseconds Now() override { return now_; }
  void TakeInput() override;
  void WaitForInput(Milliseconds until) override;
  std::string AppPath() const override { return "D:\\"; }
  std::filesystem::path DriveRoot() const override { return driveRoot; }
  bool PrevInstance() const override { return false; }
  Size ScreenSize() const override { return screen; }
  std::unique_ptr<FormWindow> MakeWindow(Form& form, WindowKind kind) override;
  void MsgBox(const std::string& text, int style, const std::string& title) override;
  void Sleep(Milliseconds duration) override;
  PicturePtr LoadPicture(const std::filesystem::path& file) override;
  void AddFont(const std::filesystem::path& file) override {
    fonts.push_back("+" + file.filename().string());
  }
  void RemoveFont(const std::filesystem::path& file) override {
    fonts.push_back("-" + file.filename().string());
  }
  bool IsSoundCardEnabled() override { return soundCard; }
  std::unique_ptr<MoviePlayer> MakePlayer(MovieKind kind) override;
  int StartFile(const StartRequest& request) override;
  int StartResult(int start) override { return now_ < startFailsAt ? start : 11; }

 private:
  void Advance(Milliseconds to);
  void Assist(const std::string& name, FormEvent::Kind kind, double value = 0);

  Milliseconds now_ = 0;
  std::multimap<Milliseconds, std::function<void()>> script_;
  int soundServer_ = 0;
};

}  // namespace orvanta
