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

/// The program would wait for ever, or longer than `HeadlessHost::deadline`.
struct VirtualTimeOut : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A host without a screen: a clock that moves only when the program waits or sleeps, a mouse that follows a
/// script, and plain lists of what it was asked for.
class HeadlessHost : public StackingHost {
 public:
  explicit HeadlessHost(std::filesystem::path discFolder) : driveRoot(std::move(discFolder)) {}

  // How the machine is.
  std::filesystem::path driveRoot;
  Size screen{1024, 768};
  bool soundCard = true;
  int startResult = 33;
  /// When a start turns out to have failed after all.
  Milliseconds startFailsAt = std::numeric_limits<Milliseconds>::max();
  /// How long the user leaves a message box open; the loop is pumped meanwhile.
  Milliseconds messageHold = 0;
  struct Media {
    double seconds = 1;
    Size film{};
    Milliseconds loadDelay = 0;
    double breaksAt = std::numeric_limits<double>::infinity();  ///< seconds: nothing beyond can be read
  };
  std::map<std::string, Media> media;  ///< what a file of this name plays, whatever it holds
  Milliseconds deadline = 3600 * 1000;

  // What happened.
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
  std::vector<std::string> fonts, pictures;  ///< fonts with "+" or "-" before the name; pictures as loaded
  struct Pause {
    Milliseconds at, duration;
  };
  std::vector<Pause> sleeps;
  std::function<void()> OnSleep;  ///< called as a sleep begins, to see what stands on the screen during it

  // The script.
  void At(Milliseconds time, std::function<void()> action);
  void After(Milliseconds delay, std::function<void()> action) { At(now_ + delay, std::move(action)); }
  void Click(Point at);
  void DoubleClick(Point at);
  /// A screen reader presses what it knows by this name. Nothing happens if there is no such thing.
  void Invoke(const std::string& name) { Assist(name, FormEvent::Kind::Invoke); }
  /// It sets the value of what it knows by this name.
  void SetValue(const std::string& name, double value) { Assist(name, FormEvent::Kind::SetValue, value); }
  /// The sound server goes away and comes back at once: all that is open loses it.
  void RestartSoundServer() { ++soundServer_; }
  /// Which sound server runs, for the players.
  int SoundServer() const { return soundServer_; }
  /// Lets the program run for so long.
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
