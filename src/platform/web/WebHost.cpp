#include "platform/web/WebHost.h"

#include "platform/web/Browser.h"
#include "platform/web/WebPicture.h"
#include "platform/web/WebPlayer.h"
#include "platform/web/WebWindow.h"

namespace orvanta {

namespace {

/// What `BrowserNextInput` reports; `page/input.js` has the same numbers.
enum class Input { Move, Press, SecondPress, Release, Leave, Restore, EndWholeScreen };

constexpr int kCriticalIcon = 16;

}  // namespace

void WebHost::EndProgram() {
  BrowserEnd();
  // Nothing unwinds here: the program stays suspended and goes with its page.
  for (;;) BrowserWait(-1);
}

Milliseconds WebHost::Now() { return static_cast<Milliseconds>(BrowserNow()); }

void WebHost::TakeInput() {
  std::int32_t kind = 0, x = 0, y = 0, detail = 0;
  while (BrowserNextInput(&kind, &x, &y, &detail)) TakeIn(kind, {x, y}, detail);
  for (std::size_t i = 0; i < players_.size(); ++i) players_[i]->TakeFrame();
  PaintWindows();
  ShowOrder();
}

void WebHost::TakeIn(int kind, Point place, int detail) {
  switch (Input{kind}) {
    case Input::Move: return MoveMouse(place);
    case Input::Press: return Press(detail);
    case Input::SecondPress: return PressAgain(detail);
    case Input::Release: return Release(detail);
    case Input::Leave:
      for (StackedWindow* window : windows) Loop().Post({FormEvent::Kind::MouseLeave, &window->form});
      return;
    case Input::Restore:
      for (StackedWindow* window : windows) {
        if (static_cast<WebWindow*>(window)->Number() == detail) return Restore(window->form);
      }
      return;
    case Input::EndWholeScreen:
      if (windows.back()->kind != WindowKind::FullScreen) return;
      Press();
      return Release();
  }
}

void WebHost::ShowOrder() {
  std::vector<int> order;
  for (const StackedWindow* window : windows)
    order.push_back(static_cast<const WebWindow*>(window)->Number());
  if (order == shownOrder_) return;
  shownOrder_ = order;
  BrowserStackWindows(order.data(), static_cast<int>(order.size()));
}

void WebHost::WaitForInput(Milliseconds deadline) {
  BrowserWait(deadline == kNever ? -1 : static_cast<double>(std::max<Milliseconds>(0, deadline - Now())));
}

Size WebHost::ScreenSize() const {
  std::int32_t size[2] = {};
  BrowserScreenSize(size);
  return {size[0], size[1]};
}

std::unique_ptr<FormWindow> WebHost::MakeWindow(Form& form, WindowKind kind) {
  return std::make_unique<WebWindow>(*this, form, kind);
}

void WebHost::MsgBox(const std::string& text, int style, const std::string& title) {
  EventLoop::Modal modal(Loop(), nullptr);
  Form* const before = active;
  ActivateOther();
  BrowserShowMessage(text.c_str(), title.c_str(), style == kCriticalIcon);
  Loop().RunUntil([] { return !BrowserMessageOpen(); });
  modal.End();
  if (before && !active) Activate(*before);
}

void WebHost::Sleep(Milliseconds duration) {
  // What was painted shows itself while the page lives on.
  ShowOrder();
  BrowserSleep(static_cast<double>(duration));
}

PicturePtr WebHost::LoadPicture(const std::filesystem::path& file) {
  std::int32_t size[2] = {};
  const int number = BrowserLoadPicture(file.c_str(), size);
  return number == 0 ? nullptr : std::make_shared<WebPicture>(number, Size{size[0], size[1]});
}

void WebHost::AddFont(const std::filesystem::path& file) { BrowserAddFont(file.c_str()); }

void WebHost::RemoveFont(const std::filesystem::path& file) { BrowserRemoveFont(file.c_str()); }

bool WebHost::IsSoundCardEnabled() { return BrowserHasSound(); }

std::unique_ptr<MoviePlayer> WebHost::MakePlayer(MovieKind kind) {
  return std::make_unique<WebPlayer>(*this, kind);
}

int WebHost::StartFile(const StartRequest& request) {
  return BrowserStart(request.file.c_str(), request.name.c_str());
}

}  // namespace orvanta
