#pragma once

#include "platform/StackingHost.h"

namespace orvanta {

/// The shell on a web page: each window a canvas, the page its screen.
class WebHost : public StackingHost {
 public:
  /// `driveRoot` holds the disc's folders and files by name. Only the INI files have contents there; the
  /// browser fetches every other file when it is asked for.
  explicit WebHost(std::filesystem::path driveRoot) : driveRoot_(std::move(driveRoot)) {}

  [[noreturn]] void EndProgram() override;
  Milliseconds Now() override;
  void TakeInput() override;
  void WaitForInput(Milliseconds deadline) override;
  std::string AppPath() const override { return "D:\\"; }
  std::filesystem::path DriveRoot() const override { return driveRoot_; }
  bool PrevInstance() const override { return false; }
  Size ScreenSize() const override;
  std::unique_ptr<FormWindow> MakeWindow(Form& form, WindowKind kind) override;
  void MsgBox(const std::string& text, int style, const std::string& title) override;
  void Sleep(Milliseconds duration) override;
  PicturePtr LoadPicture(const std::filesystem::path& file) override;
  void AddFont(const std::filesystem::path& file) override;
  void RemoveFont(const std::filesystem::path& file) override;
  bool IsSoundCardEnabled() override;
  std::unique_ptr<MoviePlayer> MakePlayer(MovieKind kind) override;
  int StartFile(const StartRequest& request) override;

  /// For the players: who is asked for new frames.
  void Add(class WebPlayer& player) { players_.push_back(&player); }
  void Remove(WebPlayer& player) { std::erase(players_, &player); }

 private:
  void TakeIn(int kind, Point place, int detail);
  void ShowOrder();

  const std::filesystem::path driveRoot_;
  std::vector<int> shownOrder_;
  std::vector<WebPlayer*> players_;
};

}  // namespace orvanta
