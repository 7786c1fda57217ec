#include "platform/desktop/window/XWindow.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWidget>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace orvanta {

namespace {

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_connection_t* Connection() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->connection() : nullptr;
}

xcb_atom_t Atom(xcb_connection_t* connection, const char* name) {
  const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
  const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
  return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

xcb_window_t IdOf(const QWidget& window) { return static_cast<xcb_window_t>(window.winId()); }

/// The numbers in a window's property.
std::vector<std::uint32_t> Numbers(xcb_connection_t* connection, xcb_window_t window, const char* name) {
  constexpr std::uint32_t kMost = 1000;
  const auto asked =
      xcb_get_property(connection, 0, window, Atom(connection, name), XCB_GET_PROPERTY_TYPE_ANY, 0, kMost);
  const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, asked, nullptr), &std::free);
  if (!reply || reply->format != 32) return {};
  const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {first, first + reply->value_len};
}

xcb_window_t Root(xcb_connection_t* connection) {
  return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

}  // namespace

void SkipTaskBar(QWidget& window) {
  xcb_connection_t* connection = Connection();
  if (!connection) return;
  const std::array<xcb_atom_t, 2> states{Atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                                         Atom(connection, "_NET_WM_STATE_SKIP_PAGER")};
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, IdOf(window), Atom(connection, "_NET_WM_STATE"),
                      XCB_ATOM_ATOM, 32, states.size(), states.data());
}

void RefuseFocus(QWidget& window) {
  xcb_connection_t* connection = Connection();
  if (!connection) return;
  std::vector<std::uint32_t> protocols = Numbers(connection, IdOf(window), "WM_PROTOCOLS");
  std::erase(protocols, Atom(connection, "WM_TAKE_FOCUS"));
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, IdOf(window), Atom(connection, "WM_PROTOCOLS"),
                      XCB_ATOM_ATOM, 32, static_cast<std::uint32_t>(protocols.size()), protocols.data());
}

void ForbidMoving(QWidget& window) {
  xcb_connection_t* connection = Connection();
  if (!connection) return;
  constexpr std::uint32_t kFunctions = 1, kDecorations = 2, kMinimise = 1 << 3, kClose = 1 << 5;
  const std::array<std::uint32_t, 5> hints{kFunctions | kDecorations, kMinimise | kClose};
  const xcb_atom_t name = Atom(connection, "_MOTIF_WM_HINTS");
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, IdOf(window), name, name, 32, hints.size(),
                      hints.data());
}

bool IsOnScreen(QWidget& window) {
  xcb_connection_t* connection = Connection();
  if (!connection) return false;
  constexpr std::uint32_t kIconic = 3;  // ICCCM, WM_STATE
  const std::vector<std::uint32_t> state = Numbers(connection, IdOf(window), "WM_STATE");
  if (!state.empty() && state.front() == kIconic) return false;
  const auto asked = xcb_get_window_attributes(connection, IdOf(window));
  const Owned<xcb_get_window_attributes_reply_t> reply(
      xcb_get_window_attributes_reply(connection, asked, nullptr), &std::free);
  return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

std::optional<std::vector<std::uint32_t>> WindowsAbove(const QWidget& window) {
  xcb_connection_t* connection = Connection();
  if (!connection) return {};
  std::vector<std::uint32_t> windows = Numbers(connection, Root(connection), "_NET_CLIENT_LIST_STACKING");
  const auto own = std::ranges::find(windows, IdOf(window));
  if (own == windows.end()) return {};
  windows.erase(windows.begin(), own + 1);
  const xcb_atom_t panel = Atom(connection, "_NET_WM_WINDOW_TYPE_DOCK");
  std::erase_if(windows, [&](xcb_window_t other) {
    const std::vector<std::uint32_t> types = Numbers(connection, other, "_NET_WM_WINDOW_TYPE");
    return std::ranges::find(types, panel) != types.end();
  });
  return windows;
}

std::optional<std::uint32_t> NewWorkspace(const QWidget& window, const void* event) {
  xcb_connection_t* connection = Connection();
  if (!connection) return {};
  const auto* change = static_cast<const xcb_property_notify_event_t*>(event);
  if ((change->response_type & 0x7F) != XCB_PROPERTY_NOTIFY) return {};
  static constexpr const char* kWorkspace = "_NET_WM_DESKTOP";
  if (change->atom != Atom(connection, kWorkspace)) return {};
  const std::vector<std::uint32_t> number = Numbers(connection, IdOf(window), kWorkspace);
  return number.empty() ? std::nullopt : std::optional(number.front());
}

void SendToWorkspace(const QWidget& window, std::uint32_t workspace) {
  xcb_connection_t* connection = Connection();
  if (!connection) return;
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = IdOf(window);
  message.type = Atom(connection, "_NET_WM_DESKTOP");
  message.data.data32[0] = workspace;
  message.data.data32[1] = 1;  // asked for by a program
  xcb_send_event(connection, 0, Root(connection),
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&message));
}

void FlushToScreen() {
  if (xcb_connection_t* connection = Connection()) xcb_flush(connection);
}

}  // namespace orvanta
