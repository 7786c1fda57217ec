#include "platform/headless/HeadlessHost.h"

#include <algorithm>

#include "platform/headless/HeadlessPlayer.h"

namespace orvanta {

void HeadlessHost::At(Milliseconds time, std::function<void()> action) {
  script_.emplace(time, std::move(action));
}

void HeadlessHost::TakeInput() {
  while (!script_.empty() && script_.begin()->first <= now_) {
    // Removed first, since the action may add to the script.
    const auto action = std::move(script_.begin()->second);
    script_.erase(script_.begin());
    action();
  }
  PaintWindows();
}

void HeadlessHost::WaitForInput(Milliseconds until) {
  if (!script_.empty()) until = std::min(until, script_.begin()->first);
  Advance(std::max(until, now_));
}

void HeadlessHost::Advance(Milliseconds to) {
  if (to > deadline) throw VirtualTimeOut("the program waits past the deadline of the virtual clock");
  now_ = to;
}

void HeadlessHost::Sleep(Milliseconds duration) {
  sleeps.push_back({now_, duration});
  if (OnSleep) OnSleep();
  Advance(now_ + std::max<Milliseconds>(0, duration));
}

void HeadlessHost::Click(Point at) {
  MoveMouse(at);
  Press();
  Release();
}

void HeadlessHost::DoubleClick(Point at) {
  Click(at);
  PressAgain();
  Release();
}

void HeadlessHost::RunFor(Milliseconds duration) {
  const Milliseconds end = now_ + duration;
  while (now_ < end) Loop().PumpOrWait(end);
}

std::unique_ptr<FormWindow> HeadlessHost::MakeWindow(Form& form, WindowKind kind) {
  return std::make_unique<HeadlessWindow>(*this, form, kind);
}

std::unique_ptr<MoviePlayer> HeadlessHost::MakePlayer(MovieKind kind) {
  return std::make_unique<HeadlessPlayer>(*this, kind);
}

void HeadlessHost::MsgBox(const std::string& text, int style, const std::string& title) {
  messages.push_back({text, style, title});
  const auto modal = std::make_shared<EventLoop::Modal>(Loop(), nullptr);
  Form* const before = active;
  bool open = true;
  ActivateOther();
  After(messageHold, [&, box = std::weak_ptr(modal)] {
    // The program may have ended meanwhile.
    if (box.expired()) return;
    open = false;
    box.lock()->End();
    if (before && !active) Activate(*before);
  });
  Loop().RunUntil([&] { return !open; });
}

PicturePtr HeadlessHost::LoadPicture(const std::filesystem::path& file) {
  pictures.push_back(file.filename().string());
  return ReadPictureFile(file);
}

int HeadlessHost::StartFile(const StartRequest& request) {
  started.push_back(request);
  return startResult;
}

}  // namespace orvanta
