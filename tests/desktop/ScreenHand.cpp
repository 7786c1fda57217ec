// The user's hand, and what he asks of the window manager.

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <chrono>
#include <thread>

#include "desktop/Screen.h"

namespace orvanta::test {

void Screen::Fake(std::uint8_t type, std::uint8_t detail, Point place) const {
  xcb_test_fake_input(Connection(), type, detail, XCB_CURRENT_TIME, root_, static_cast<std::int16_t>(place.x),
                      static_cast<std::int16_t>(place.y), 0);
  xcb_flush(Connection());
}

void Screen::MoveMouse(Point place) const { Fake(XCB_MOTION_NOTIFY, 0, place); }
void Screen::Press(int button) const { Fake(XCB_BUTTON_PRESS, static_cast<std::uint8_t>(button)); }
void Screen::Release(int button) const { Fake(XCB_BUTTON_RELEASE, static_cast<std::uint8_t>(button)); }

void Screen::Click(Point place, int button) const {
  MoveMouse(place);
  Press(button);
  Release(button);
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
  constexpr std::uint8_t kReturn = 36;  // on the keyboard that Xvfb has
  Fake(XCB_KEY_PRESS, kReturn);
  Fake(XCB_KEY_RELEASE, kReturn);
}

void Screen::Tell(WindowId window, const std::string& message, std::uint32_t first,
                  std::uint32_t second) const {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = Atom(message);
  event.data.data32[0] = first;
  event.data.data32[1] = second;
  xcb_send_event(Connection(), 0, root_,
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&event));
  xcb_flush(Connection());
}

// 2 tells the window manager that a task bar asks (Extended Window Manager Hints, _NET_ACTIVE_WINDOW).
void Screen::Activate(WindowId window) const { Tell(window, "_NET_ACTIVE_WINDOW", 2, 0); }
void Screen::Close(WindowId window) const { Tell(window, "_NET_CLOSE_WINDOW", 0, 2); }

}  // namespace orvanta::test
