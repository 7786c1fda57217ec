// The user's hand, what he asks of the window manager, and his other windows.

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include "desktop/Processes.h"
#include "desktop/Screen.h"

namespace orvanta::test {

void Screen::Fake(int type, int detail, Point place) const {
  xcb_test_fake_input(connection_.get(), static_cast<std::uint8_t>(type), static_cast<std::uint8_t>(detail),
                      XCB_CURRENT_TIME, root_, static_cast<std::int16_t>(place.x),
                      static_cast<std::int16_t>(place.y), 0);
  xcb_flush(connection_.get());
}

void Screen::MoveMouse(Point place) const { Fake(XCB_MOTION_NOTIFY, 0, place); }
void Screen::Press() const { Fake(XCB_BUTTON_PRESS, 1); }
void Screen::Release() const { Fake(XCB_BUTTON_RELEASE, 1); }

void Screen::Click(Point place) const {
  MoveMouse(place);
  // A window manager can lose a press in whose instant the pointer comes.
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  Press();
  Release();
  Rest();
}

void Screen::Drag(Point from, Point to) const {
  MoveMouse(from);
  Press();
  Rest();
  MoveMouse(to);
  Rest();
  Release();
}

// Window managers hold a press back while they look at it; a hand that moves on meanwhile would drag.
void Screen::Rest() const { std::this_thread::sleep_for(std::chrono::milliseconds(80)); }

void Screen::PressReturn() const {
  constexpr int kReturn = 36;  // on the keyboard that Xvfb has
  for (const int type : {XCB_KEY_PRESS, XCB_KEY_RELEASE}) Fake(type, kReturn);
}

void Screen::Tell(WindowId window, const std::string& message, std::uint32_t first,
                  std::uint32_t second) const {
  xcb_client_message_event_t event{XCB_CLIENT_MESSAGE, 32, 0, window, Atom(message), {}};
  event.data.data32[0] = first;
  event.data.data32[1] = second;
  xcb_send_event(connection_.get(), 0, root_,
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&event));
  xcb_flush(connection_.get());
}

// 2 tells the window manager that a task bar asks (Extended Window Manager Hints, _NET_ACTIVE_WINDOW).
void Screen::Activate(WindowId window) const { Tell(window, "_NET_ACTIVE_WINDOW", 2, 0); }
void Screen::Close(WindowId window) const { Tell(window, "_NET_CLOSE_WINDOW", 0, 2); }

OtherWindow::OtherWindow(const Rect& place, Rgb colour) {
  xcb_connection_t* connection = screen_.connection_.get();
  window_ = xcb_generate_id(connection);
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, window_, screen_.root_,
                    static_cast<std::int16_t>(place.left), static_cast<std::int16_t>(place.top),
                    static_cast<std::uint16_t>(place.width), static_cast<std::uint16_t>(place.height), 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL, &colour);
  // No frame (Motif's window manager hints, which every window manager reads) and a place of its own choice
  // (ICCCM, WM_NORMAL_HINTS, USPosition).
  const std::uint32_t bare[5]{2}, chosen[18]{1};
  const std::uint32_t hints = screen_.Atom("_MOTIF_WM_HINTS");
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, hints, hints, 32, 5, bare);
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NORMAL_HINTS,
                      XCB_ATOM_WM_SIZE_HINTS, 32, 18, chosen);
  xcb_map_window(connection, window_);
  xcb_flush(connection);
  Soon([&] { return screen_.Active() == window_; });
}

}  // namespace orvanta::test
