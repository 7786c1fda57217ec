#include "desktop/support/Screen.h"

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xfixes.h>
#include <xcb/xtest.h>

#include <QString>
#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "desktop/support/Processes.h"

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

int Look::Count(Rgb colour) const {
  return static_cast<int>(
      std::ranges::count_if(pixels, [&](Rgb pixel) { return (pixel & ~kMixed) == colour; }));
}

bool Look::IsAll(Rgb colour, int tolerance) const {
  return std::ranges::all_of(pixels, [&](Rgb pixel) {
    for (const int shift : {0, 8, 16})
      if (std::abs(static_cast<int>(pixel >> shift & 0xFF) - static_cast<int>(colour >> shift & 0xFF)) >
          tolerance)
        return false;
    return true;
  });
}

std::string Difference(const Look& expected, const Look& seen) {
  for (std::size_t i = 0; i < seen.pixels.size(); ++i) {
    const Rgb wanted = expected.pixels.at(i), there = seen.pixels[i];
    if (wanted == Look::kAnything || wanted == there) continue;
    const int at = static_cast<int>(i), width = seen.size.width;
    return QString::asprintf("(%d,%d) is #%06x instead of #%06x", at % width, at / width, there, wanted)
        .toStdString();
  }
  return "";
}

Screen::Screen() : Screen(1) {
  const Rect whole = Whole();
  zoom_ = std::max(1, std::min(whole.width / 1024, whole.height / 768));
}

Screen::Screen(int zoom) : connection_(xcb_connect(nullptr, nullptr), xcb_disconnect), zoom_(zoom) {
  xcb_connection_t* connection = connection_.get();
  if (xcb_connection_has_error(connection)) throw std::runtime_error("no display");
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  const std::uint32_t appearances = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection, root_, XCB_CW_EVENT_MASK, &appearances);
  Owned(xcb_xfixes_query_version_reply(connection, xcb_xfixes_query_version(connection, 4, 0), nullptr));
  Owned(xcb_damage_query_version_reply(connection, xcb_damage_query_version(connection, 1, 1), nullptr));
}

Look Screen::See(const Rect& area) const {
  Look large = SeeScreen({area.left * zoom_, area.top * zoom_, area.width * zoom_, area.height * zoom_});
  if (zoom_ == 1) return large;
  Look look({area.width, area.height});
  for (int y = 0; y < large.size.height; ++y)
    for (int x = 0; x < large.size.width; ++x) {
      Rgb& pixel = look.At(x / zoom_, y / zoom_);
      if (x % zoom_ == 0 && y % zoom_ == 0) pixel = large.At(x, y);
      if (large.At(x, y) != (pixel & ~Look::kMixed)) pixel |= Look::kMixed;
    }
  return look;
}

// What Xvfb gives with 24 planes: four bytes a pixel, blue first.
Look Screen::SeeScreen(const Rect& area) const {
  Look look({area.width, area.height});
  const Rect part = Intersection(area, ScreenPlaceOf(root_));
  const auto asked = xcb_get_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, root_, Short(part.left),
                                   Short(part.top), Wide(part.width), Wide(part.height), ~0U);
  const auto reply = Owned(xcb_get_image_reply(connection_.get(), asked, nullptr));
  if (!reply) return look;
  const auto* seen = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(reply.get()));
  for (int y = part.top - area.top; y < part.Bottom() - area.top; ++y)
    for (int x = part.left - area.left; x < part.Right() - area.left; ++x) look.At(x, y) = *seen++ & 0xFFFFFF;
  return look;
}

CursorLook Screen::Cursor() const {
  const auto asked = xcb_xfixes_get_cursor_image(connection_.get());
  const auto reply = Owned(xcb_xfixes_get_cursor_image_reply(connection_.get(), asked, nullptr));
  if (!reply) return {};
  const std::uint32_t* pixels = xcb_xfixes_get_cursor_image_cursor_image(reply.get());
  const int count = reply->width * reply->height;
  return {{reply->xhot / zoom_, reply->yhot / zoom_}, {pixels, pixels + count}};
}

std::uint32_t Screen::Atom(const std::string& name) const {
  const auto asked = xcb_intern_atom(connection_.get(), 0, Wide(static_cast<int>(name.size())), name.c_str());
  const auto reply = Owned(xcb_intern_atom_reply(connection_.get(), asked, nullptr));
  return reply ? reply->atom : 0;
}

template <class T>
std::vector<T> Screen::Property(WindowId window, const std::string& name) const {
  const auto asked = xcb_get_property(connection_.get(), 0, window, Atom(name), XCB_ATOM_ANY, 0, 1000);
  const auto reply = Owned(xcb_get_property_reply(connection_.get(), asked, nullptr));
  if (!reply) return {};
  const auto* first = static_cast<const T*>(xcb_get_property_value(reply.get()));
  return {first, first + static_cast<std::size_t>(xcb_get_property_value_length(reply.get())) / sizeof(T)};
}

std::vector<WindowId> Screen::Windows() const {
  if (HasManager()) return Property<WindowId>(root_, "_NET_CLIENT_LIST_STACKING");
  const auto asked = xcb_query_tree(connection_.get(), root_);
  const auto reply = Owned(xcb_query_tree_reply(connection_.get(), asked, nullptr));
  const WindowId* first = xcb_query_tree_children(reply.get());
  std::vector<WindowId> windows(first, first + reply->children_len);
  std::erase_if(windows, [&](WindowId window) { return !IsMapped(window); });
  return windows;
}

bool Screen::IsMapped(WindowId window) const {
  const auto asked = xcb_get_window_attributes(connection_.get(), window);
  const auto reply = Owned(xcb_get_window_attributes_reply(connection_.get(), asked, nullptr));
  return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

WindowId Screen::Active() const {
  if (HasManager()) return Number(root_, "_NET_ACTIVE_WINDOW");
  const auto asked = xcb_get_input_focus(connection_.get());
  const auto reply = Owned(xcb_get_input_focus_reply(connection_.get(), asked, nullptr));
  return reply ? reply->focus : 0;
}

std::string Screen::TitleOf(WindowId window) const {
  const auto title = Property<char>(window, "_NET_WM_NAME");
  return {title.begin(), title.end()};
}

std::uint32_t Screen::Number(WindowId window, const std::string& property) const {
  const auto numbers = Property<std::uint32_t>(window, property);
  return numbers.empty() ? 0 : numbers.front();
}

Rect Screen::ScreenPlaceOf(WindowId window) const {
  xcb_connection_t* connection = connection_.get();
  const auto size = Owned(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
  const auto asked = xcb_translate_coordinates(connection, window, root_, 0, 0);
  const auto place = Owned(xcb_translate_coordinates_reply(connection, asked, nullptr));
  return size && place ? Rect{place->dst_x, place->dst_y, size->width, size->height} : Rect{};
}

Rect Screen::PlaceOf(WindowId window) const {
  const Rect found = ScreenPlaceOf(window);
  // One beside the program's pixels is seen to be wrong.
  for (const int edge : {found.left, found.top, found.width, found.height})
    if (edge % zoom_ != 0) return found;
  return {found.left / zoom_, found.top / zoom_, found.width / zoom_, found.height / zoom_};
}

bool Screen::HasState(WindowId window, const std::string& state) const {
  return std::ranges::count(Property<std::uint32_t>(window, "_NET_WM_STATE"), Atom(state)) > 0;
}

void Screen::Fake(int type, int detail, Point place) const {
  xcb_test_fake_input(connection_.get(), static_cast<std::uint8_t>(type), static_cast<std::uint8_t>(detail),
                      XCB_CURRENT_TIME, root_, Short(place.x), Short(place.y), 0);
  xcb_flush(connection_.get());
}

void Screen::MoveMouse(Point place) const {
  Fake(XCB_MOTION_NOTIFY, 0, {place.x * zoom_ + zoom_ - 1, place.y * zoom_ + zoom_ - 1});
}
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

// Window managers hold a press back while they look at it; a hand that moves on meanwhile would drag.
void Screen::Rest() const { std::this_thread::sleep_for(std::chrono::milliseconds(80)); }

void Screen::Hand(const std::string& command) {
  if (std::system(("xdotool " + command).c_str()) != 0) throw std::runtime_error(command);
}

void Screen::Ask(WindowId window, const std::string& message, std::uint32_t first) const {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window ? window : root_;
  event.type = Atom(message);
  event.data.data32[0] = first;
  xcb_send_event(connection_.get(), 0, root_,
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&event));
  xcb_flush(connection_.get());
}

void Screen::SetResources(const std::string& lines) const {
  xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, root_, XCB_ATOM_RESOURCE_MANAGER,
                      XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(lines.size()), lines.data());
  xcb_flush(connection_.get());
}

void Screen::WatchDrawing(WindowId window) {
  xcb_damage_create(connection_.get(), xcb_generate_id(connection_.get()), window,
                    XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
  DrawingSeen();  // the whole window is reported as drawn when the watch begins
}

int Screen::DrawingSeen() {
  const auto* damage = xcb_get_extension_data(connection_.get(), &xcb_damage_id);
  int count = 0;
  Whole();  // whatever was drawn before now has been told after this answer
  while (const auto event = Owned(xcb_poll_for_event(connection_.get())))
    count += (event->response_type & 0x7F) == damage->first_event + XCB_DAMAGE_NOTIFY ? 1 : 0;
  return count;
}

bool Screen::AwaitAppearance() const {
  constexpr int kPatience = 10000;
  for (pollfd socket{xcb_get_file_descriptor(connection_.get()), POLLIN, 0};;) {
    while (const auto event = Owned(xcb_poll_for_event(connection_.get())))
      if ((event->response_type & 0x7F) == XCB_MAP_NOTIFY) return true;
    if (poll(&socket, 1, kPatience) <= 0) return false;
  }
}

OtherWindow::OtherWindow(const Rect& place, Rgb colour, const std::string& type) {
  xcb_connection_t* connection = screen_.connection_.get();
  const int zoom = screen_.zoom_;
  window_ = xcb_generate_id(connection);
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, window_, screen_.root_, Short(place.left * zoom),
                    Short(place.top * zoom), Wide(place.width * zoom), Wide(place.height * zoom), 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL, &colour);
  // No frame (Motif's window manager hints, which every window manager reads) and a place of its own choice
  // (ICCCM, WM_NORMAL_HINTS, USPosition).
  const std::uint32_t bare[5]{2}, chosen[18]{1};
  const std::uint32_t hints = screen_.Atom("_MOTIF_WM_HINTS");
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, hints, hints, 32, 5, bare);
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NORMAL_HINTS,
                      XCB_ATOM_WM_SIZE_HINTS, 32, 18, chosen);
  if (!type.empty()) {
    const std::uint32_t types[]{screen_.Atom("_NET_WM_WINDOW_TYPE_" + type)};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, screen_.Atom("_NET_WM_WINDOW_TYPE"),
                        XCB_ATOM_ATOM, 32, 1, types);
  }
  if (type == "DOCK") {
    // Left, right, top, bottom; then where each begins and ends.
    const auto height = static_cast<std::uint32_t>(place.height * zoom);
    const std::uint32_t strut[12]{0, 0, height, 0, 0, 0, 0, 0, 0, Wide(place.width * zoom - 1)};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window_, screen_.Atom("_NET_WM_STRUT_PARTIAL"),
                        XCB_ATOM_CARDINAL, 32, 12, strut);
  }
  xcb_map_window(connection, window_);
  if (!screen_.HasManager())
    xcb_set_input_focus(connection, XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
  xcb_flush(connection);
  Soon([&] { return screen_.IsMapped(window_) && (!type.empty() || screen_.Active() == window_); });
}

}  // namespace orvanta::test
