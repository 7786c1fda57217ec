#include "desktop/OtherWindow.h"

#include <xcb/xcb.h>

#include <array>
#include <cstdlib>

#include "desktop/ForkedShell.h"

namespace orvanta::test {

OtherWindow::OtherWindow(const Rect& place, Rgb colour) {
  xcb_connection_t* connection = screen_.Connection();
  window_ = xcb_generate_id(connection);
  const std::array<std::uint32_t, 2> values{colour, XCB_EVENT_MASK_BUTTON_PRESS};
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, window_, screen_.Root(),
                    static_cast<std::int16_t>(place.left), static_cast<std::int16_t>(place.top),
                    static_cast<std::uint16_t>(place.width), static_cast<std::uint16_t>(place.height), 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK,
                    values.data());
  // No frame (Motif's window manager hints, which every window manager reads) and a place of its own choice
  // (ICCCM, WM_NORMAL_HINTS, USPosition).
  const std::array<std::uint32_t, 5> bare{2, 0, 0, 0, 0};
  const std::uint32_t hints = screen_.Atom("_MOTIF_WM_HINTS");
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, hints, hints, 32, bare.size(), bare.data());
  const std::array<std::uint32_t, 18> chosen{1};
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NORMAL_HINTS,
                      XCB_ATOM_WM_SIZE_HINTS, 32, chosen.size(), chosen.data());
  xcb_map_window(connection, window_);
  xcb_flush(connection);
  Eventually([&] { return screen_.IsMapped(window_) && screen_.Active() == window_; });
}

std::vector<Point> OtherWindow::Clicks() {
  screen_.Extent();
  std::vector<Point> clicks;
  while (xcb_generic_event_t* event = xcb_poll_for_event(screen_.Connection())) {
    if ((event->response_type & 0x7F) == XCB_BUTTON_PRESS) {
      const auto* press = reinterpret_cast<const xcb_button_press_event_t*>(event);
      clicks.push_back({press->event_x, press->event_y});
    }
    std::free(event);
  }
  return clicks;
}

}  // namespace orvanta::test
