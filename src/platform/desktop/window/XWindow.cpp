#include "platform/desktop/window/XWindow.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWidget>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace orvanta {

namespace {

xcb_connection_t* Connection() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->connection() : nullptr;
}

xcb_atom_t Atom(xcb_connection_t* connection, const char* name) {
  const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
      xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
  return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

}  // namespace

void SkipTaskBar(QWidget& window) {
  xcb_connection_t* connection = Connection();
  if (!connection) return;
  const std::array<xcb_atom_t, 2> states{Atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                                         Atom(connection, "_NET_WM_STATE_SKIP_PAGER")};
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                      Atom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, states.size(), states.data());
}

void FlushToScreen() {
  if (xcb_connection_t* connection = Connection()) xcb_flush(connection);
}

}  // namespace orvanta
