#include "desktop/Screen.h"

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include "desktop/Processes.h"

namespace orvanta::test {

namespace {

template <class Reply>
std::unique_ptr<Reply, decltype(&std::free)> Owned(Reply* reply) {
  return {reply, &std::free};
}

// The X protocol counts pixels in 16 bits.
constexpr std::int16_t Short(int number) { return static_cast<std::int16_t>(number); }
constexpr std::uint16_t Wide(int number) { return static_cast<std::uint16_t>(number); }

}  // namespace

Look::Look(const Size& itsSize, Rgb colour)
    : size(itsSize), pixels(static_cast<std::size_t>(size.width * size.height), colour) {}

void Look::Fill(const Rect& area, Rgb colour) {
  const Rect part = Intersection(area, {0, 0, size.width, size.height});
  for (int y = part.top; y < part.Bottom(); ++y)
    std::fill_n(pixels.begin() + y * size.width + part.left, part.width, colour);
}

void Look::Frame(const Rect& area, Rgb colour) {
  for (const int y : {area.top, area.Bottom() - 1}) Fill({area.left, y, area.width, 1}, colour);
  for (const int x : {area.left, area.Right() - 1}) Fill({x, area.top, 1, area.height}, colour);
}

int Look::Count(Rgb colour) const { return static_cast<int>(std::ranges::count(pixels, colour)); }

std::string Difference(const Look& expected, const Look& seen) {
  if (expected.size != seen.size) return "sizes differ";
  int count = 0;
  std::string first;
  for (std::size_t i = 0; i < seen.pixels.size(); ++i) {
    const Rgb wanted = expected.pixels[i], there = seen.pixels[i];
    if (wanted == Look::kAnything || wanted == there || ++count > 1) continue;
    char text[80];
    const int at = static_cast<int>(i), width = seen.size.width;
    std::snprintf(text, sizeof text, "(%d,%d) is #%06x instead of #%06x", at % width, at / width, there,
                  wanted);
    first = text;
  }
  return count == 0 ? "" : std::to_string(count) + " pixels differ, the first: " + first;
}

Screen::Screen() : connection_(xcb_connect(nullptr, nullptr), xcb_disconnect) {
  xcb_connection_t* connection = connection_.get();
  if (xcb_connection_has_error(connection)) throw std::runtime_error("no display");
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  Owned(xcb_xfixes_query_version_reply(connection, xcb_xfixes_query_version(connection, 4, 0), nullptr));
  Owned(xcb_damage_query_version_reply(connection, xcb_damage_query_version(connection, 1, 1), nullptr));
}

Size Screen::Extent() const {
  const Rect place = PlaceOf(root_);
  return {place.width, place.height};
}

// What Xvfb gives with 24 planes: four bytes a pixel, blue first.
Look Screen::See(const Rect& area) const {
  Look look({area.width, area.height});
  const Size extent = Extent();
  const Rect part = Intersection(area, {0, 0, extent.width, extent.height});
  const auto asked = xcb_get_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, root_, Short(part.left),
                                   Short(part.top), Wide(part.width), Wide(part.height), ~0U);
  const auto reply = Owned(xcb_get_image_reply(connection_.get(), asked, nullptr));
  if (part.Empty() || !reply) return look;
  const auto* seen = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(reply.get()));
  for (int y = part.top - area.top; y < part.Bottom() - area.top; ++y)
    for (int x = part.left - area.left; x < part.Right() - area.left; ++x)
      look.pixels[static_cast<std::size_t>(y * area.width + x)] = *seen++ & 0xFFFFFF;
  return look;
}

CursorLook Screen::Cursor() const {
  const auto asked = xcb_xfixes_get_cursor_image(connection_.get());
  const auto reply = Owned(xcb_xfixes_get_cursor_image_reply(connection_.get(), asked, nullptr));
  if (!reply) return {};
  const std::uint32_t* pixels = xcb_xfixes_get_cursor_image_cursor_image(reply.get());
  const int count = reply->width * reply->height;
  return {{reply->xhot, reply->yhot}, {pixels, pixels + count}};
}

std::uint32_t Screen::Atom(const std::string& name) const {
  const auto asked = xcb_intern_atom(connection_.get(), 0, Wide(static_cast<int>(name.size())), name.c_str());
  const auto reply = Owned(xcb_intern_atom_reply(connection_.get(), asked, nullptr));
  return reply ? reply->atom : 0;
}

std::string Screen::Bytes(WindowId window, const std::string& property) const {
  const auto asked = xcb_get_property(connection_.get(), 0, window, Atom(property), XCB_ATOM_ANY, 0, 1000);
  const auto reply = Owned(xcb_get_property_reply(connection_.get(), asked, nullptr));
  if (!reply) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

std::vector<std::uint32_t> Screen::Numbers(WindowId window, const std::string& property) const {
  const std::string bytes = Bytes(window, property);
  std::vector<std::uint32_t> numbers(bytes.size() / 4);
  std::memcpy(numbers.data(), bytes.data(), 4 * numbers.size());
  return numbers;
}

std::uint32_t Screen::Number(WindowId window, const std::string& property) const {
  const auto numbers = Numbers(window, property);
  return numbers.empty() ? 0 : numbers.front();
}

Rect Screen::PlaceOf(WindowId window) const {
  xcb_connection_t* connection = connection_.get();
  const auto size = Owned(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
  const auto asked = xcb_translate_coordinates(connection, window, root_, 0, 0);
  const auto place = Owned(xcb_translate_coordinates_reply(connection, asked, nullptr));
  return size && place ? Rect{place->dst_x, place->dst_y, size->width, size->height} : Rect{};
}

bool Screen::HasState(WindowId window, const std::string& state) const {
  return std::ranges::count(Numbers(window, "_NET_WM_STATE"), Atom(state)) > 0;
}

void Screen::WatchDrawing(WindowId window) {
  xcb_damage_create(connection_.get(), xcb_generate_id(connection_.get()), window,
                    XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
  DrawingSeen();  // the whole window is reported as drawn when the watch begins
}

int Screen::DrawingSeen() {
  const auto* damage = xcb_get_extension_data(connection_.get(), &xcb_damage_id);
  int count = 0;
  Extent();  // whatever was drawn before now has been told after this answer
  while (const auto event = Owned(xcb_poll_for_event(connection_.get())))
    count += (event->response_type & 0x7F) == damage->first_event + XCB_DAMAGE_NOTIFY ? 1 : 0;
  return count;
}

void Screen::WatchAppearances() const {
  const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection_.get(), root_, XCB_CW_EVENT_MASK, &mask);
  Extent();
}

bool Screen::AwaitAppearance() const {
  constexpr int kPatience = 10000;
  for (pollfd socket{xcb_get_file_descriptor(connection_.get()), POLLIN, 0};;) {
    while (const auto event = Owned(xcb_poll_for_event(connection_.get())))
      if ((event->response_type & 0x7F) == XCB_MAP_NOTIFY) return true;
    if (poll(&socket, 1, kPatience) <= 0) return false;
  }
}

}  // namespace orvanta::test
