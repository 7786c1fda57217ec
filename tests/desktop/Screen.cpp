#include "desktop/Screen.h"

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace orvanta::test {

namespace {

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> Owned(Reply* reply) {
  return {reply, &std::free};
}

// What Xvfb gives with 24 planes: four bytes a pixel, blue first.
std::vector<Rgb> PixelsOf(xcb_connection_t* connection, WindowId root, const Rect& area) {
  const auto reply = Owned(xcb_get_image_reply(
      connection,
      xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, root, static_cast<std::int16_t>(area.left),
                    static_cast<std::int16_t>(area.top), static_cast<std::uint16_t>(area.width),
                    static_cast<std::uint16_t>(area.height), ~0U),
      nullptr));
  if (!reply) return {};
  const auto* data = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(reply.get()));
  std::vector<Rgb> pixels(data, data + area.width * area.height);
  for (Rgb& pixel : pixels) pixel &= 0xFFFFFF;
  return pixels;
}

}  // namespace

void Screen::Disconnect::operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }

Screen::Screen() : connection_(xcb_connect(nullptr, nullptr)) {
  if (xcb_connection_has_error(Connection())) throw std::runtime_error("no display");
  root_ = xcb_setup_roots_iterator(xcb_get_setup(Connection())).data->root;
  std::free(
      xcb_xfixes_query_version_reply(Connection(), xcb_xfixes_query_version(Connection(), 4, 0), nullptr));
  std::free(
      xcb_damage_query_version_reply(Connection(), xcb_damage_query_version(Connection(), 1, 1), nullptr));
}

Screen::~Screen() = default;

Size Screen::Extent() const {
  const Rect place = PlaceOf(root_);
  return {place.width, place.height};
}

Look Screen::See(const Rect& area) const {
  Look look(area.width, area.height);
  const Size extent = Extent();
  const Rect part = Intersection(area, {0, 0, extent.width, extent.height});
  if (part.Empty()) return look;
  const std::vector<Rgb> seen = PixelsOf(Connection(), root_, part);
  if (seen.empty()) return look;
  for (int y = 0; y < part.height; ++y)
    std::copy_n(seen.begin() + y * part.width, part.width,
                look.pixels.begin() + (part.top - area.top + y) * area.width + part.left - area.left);
  return look;
}

CursorLook Screen::Cursor() const {
  const auto reply = Owned(
      xcb_xfixes_get_cursor_image_reply(Connection(), xcb_xfixes_get_cursor_image(Connection()), nullptr));
  if (!reply) return {};
  const std::uint32_t* data = xcb_xfixes_get_cursor_image_cursor_image(reply.get());
  return {
      reply->width, reply->height, {reply->xhot, reply->yhot}, {data, data + reply->width * reply->height}};
}

std::uint32_t Screen::Atom(const std::string& name) const {
  const auto reply = Owned(xcb_intern_atom_reply(
      Connection(), xcb_intern_atom(Connection(), 0, static_cast<std::uint16_t>(name.size()), name.c_str()),
      nullptr));
  return reply ? reply->atom : 0;
}

std::vector<std::uint32_t> Screen::Numbers(WindowId window, const std::string& property) const {
  const auto reply = Owned(xcb_get_property_reply(
      Connection(), xcb_get_property(Connection(), 0, window, Atom(property), XCB_ATOM_ANY, 0, 1000),
      nullptr));
  if (!reply || reply->format != 32) return {};
  const auto* data = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {data, data + xcb_get_property_value_length(reply.get()) / 4};
}

std::vector<WindowId> Screen::Windows() const { return Numbers(root_, "_NET_CLIENT_LIST_STACKING"); }

Rect Screen::PlaceOf(WindowId window) const {
  const auto size =
      Owned(xcb_get_geometry_reply(Connection(), xcb_get_geometry(Connection(), window), nullptr));
  const auto place = Owned(xcb_translate_coordinates_reply(
      Connection(), xcb_translate_coordinates(Connection(), window, root_, 0, 0), nullptr));
  if (!size || !place) return {};
  return {place->dst_x, place->dst_y, size->width, size->height};
}

std::string Screen::TitleOf(WindowId window) const {
  const auto reply = Owned(xcb_get_property_reply(
      Connection(), xcb_get_property(Connection(), 0, window, Atom("_NET_WM_NAME"), XCB_ATOM_ANY, 0, 1000),
      nullptr));
  if (!reply) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

bool Screen::HasState(WindowId window, const std::string& state) const {
  const auto states = Numbers(window, "_NET_WM_STATE");
  return std::find(states.begin(), states.end(), Atom(state)) != states.end();
}

bool Screen::IsMapped(WindowId window) const {
  const auto reply = Owned(xcb_get_window_attributes_reply(
      Connection(), xcb_get_window_attributes(Connection(), window), nullptr));
  return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

WindowId Screen::Active() const {
  const auto active = Numbers(root_, "_NET_ACTIVE_WINDOW");
  return active.empty() ? 0 : active.front();
}

WindowId Screen::OwnerOf(WindowId window) const {
  const auto owner = Numbers(window, "WM_TRANSIENT_FOR");
  return owner.empty() ? 0 : owner.front();
}

int Screen::PidOf(WindowId window) const {
  const auto pid = Numbers(window, "_NET_WM_PID");
  return pid.empty() ? 0 : static_cast<int>(pid.front());
}

void Screen::WatchDrawing(WindowId window) {
  DrawingSeen();
  xcb_damage_create(Connection(), xcb_generate_id(Connection()), window,
                    XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
  // The whole window is reported as drawn when the watch begins.
  Extent();
  DrawingSeen();
}

int Screen::DrawingSeen() {
  const auto* damage = xcb_get_extension_data(Connection(), &xcb_damage_id);
  int count = 0;
  Extent();  // whatever was drawn before now has been told after this answer
  while (const auto event = Owned(xcb_poll_for_event(Connection())))
    count += (event->response_type & 0x7F) == damage->first_event + XCB_DAMAGE_NOTIFY ? 1 : 0;
  return count;
}

void Screen::WatchAppearances() const {
  const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(Connection(), root_, XCB_CW_EVENT_MASK, &mask);
  Extent();
}

bool Screen::AwaitAppearance() const {
  constexpr int kPatience = 10000;
  for (pollfd socket{xcb_get_file_descriptor(Connection()), POLLIN, 0};;) {
    while (const auto event = Owned(xcb_poll_for_event(Connection())))
      if ((event->response_type & 0x7F) == XCB_MAP_NOTIFY) return true;
    if (poll(&socket, 1, kPatience) <= 0) return false;
  }
}

}  // namespace orvanta::test
