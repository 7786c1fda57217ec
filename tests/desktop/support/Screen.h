#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/Geometry.h"

struct xcb_connection_t;

namespace orvanta::test {

/// A colour as the screen has it: 0xRRGGBB.
using Rgb = std::uint32_t;
using WindowId = std::uint32_t;

/// A part of the screen, or what it is expected to look like. Pixels count from its own corner.
struct Look {
  /// Of an expected pixel: any colour will do.
  static constexpr Rgb kAnything = 0xFF000000;
  /// Of a seen one: it is not a square of one colour. Its upper left screen pixel's colour is in the other
  /// bits.
  static constexpr Rgb kMixed = 0x01000000;

  explicit Look(const Size& itsSize, Rgb colour = 0);
  Rgb& At(int x, int y) {
    const int place = y * size.width + x;
    return pixels.at(static_cast<std::size_t>(place));
  }
  void Fill(const Rect& area, Rgb colour);
  /// The edge of an area, one pixel thick.
  void Frame(const Rect& area, Rgb colour);
  /// How many pixels have a colour, or have it in their upper left corner.
  int Count(Rgb colour) const;
  /// Whether every pixel has a colour, as exactly as films and compositors keep it.
  bool IsAll(Rgb colour, int tolerance = 2) const;

  Size size;
  std::vector<Rgb> pixels;
};

/// Where and how a look is not as expected; empty if it is.
std::string Difference(const Look& expected, const Look& seen);

/// Pictures of pointers differ if their pixels or their hot spots do.
struct CursorLook {
  Point hotSpot;
  std::vector<std::uint32_t> pixels;
  bool operator==(const CursorLook&) const = default;
};

/// The display that the test runs on: what a user sees there, and his hand on the mouse. All places are in
/// program pixels, so that one story is told on screens of every zoom.
class Screen {
 public:
  /// The zoom that is due on a desktop of 96 dots per inch.
  Screen();
  explicit Screen(int zoom);

  int Zoom() const { return zoom_; }

  Look See(const Rect& area) const;
  Rgb Pixel(Point place) const { return See({place.x, place.y, 1, 1}).At(0, 0); }
  /// Its hot spot is in program pixels, its pixels are the screen's.
  CursorLook Cursor() const;

  /// The windows that the window manager knows, from the bottom to the top. Without one, those on the screen.
  std::vector<WindowId> Windows() const;
  /// Without a window manager, the one with the focus.
  WindowId Active() const;
  Rect Whole() const { return PlaceOf(root_); }
  Rect PlaceOf(WindowId window) const;
  std::string TitleOf(WindowId window) const;
  bool HasState(WindowId window, const std::string& state) const;
  /// A property that is a number; 0 if the window has none of this name.
  std::uint32_t Number(WindowId window, const std::string& property) const;

  /// To the last screen pixel of a program pixel.
  void MoveMouse(Point place) const;
  void Press() const;
  void Release() const;
  void Click(Point place) const;
  void Rest() const;  ///< long enough for a tick of the program
  /// Does what a command of xdotool says.
  static void Hand(const std::string& command);
  /// Asks the window manager for something about a window, or about the whole screen if that is 0 (Extended
  /// Window Manager Hints: a message to the root window).
  void Ask(WindowId window, const std::string& message, std::uint32_t first) const;
  /// What a task bar does when its entry is clicked.
  static void Activate(WindowId window) { Hand("windowactivate " + std::to_string(window)); }

  /// Sets the resources of the display, as a desktop does when it starts.
  void SetResources(const std::string& lines) const;

  /// Counts from now on how often anything is drawn into a window.
  void WatchDrawing(WindowId window);
  int DrawingSeen();
  /// Waits for the next window that appears on the screen, ten seconds at most; gives whether one did.
  bool AwaitAppearance() const;

 private:
  friend class OtherWindow;
  std::uint32_t Atom(const std::string& name) const;
  template <class T>
  std::vector<T> Property(WindowId window, const std::string& name) const;
  Rect ScreenPlaceOf(WindowId window) const;
  Look SeeScreen(const Rect& area) const;
  bool IsMapped(WindowId window) const;
  bool HasManager() const { return Number(root_, "_NET_SUPPORTING_WM_CHECK") != 0; }
  void Fake(int type, int detail, Point place = {}) const;

  std::shared_ptr<xcb_connection_t> connection_;
  WindowId root_ = 0;
  int zoom_ = 1;
};

/// A window of another program, in one colour and without a frame.
///
/// `type` is one of the Extended Window Manager Hints' (_NET_WM_WINDOW_TYPE): the desktop, or a dock, which
/// keeps its part of the screen's upper edge for itself.
class OtherWindow {
 public:
  /// Waits until it is seen, and active if it is of no type.
  OtherWindow(const Rect& place, Rgb colour, const std::string& type = "");
  WindowId Id() const { return window_; }

 private:
  Screen screen_;  // a connection of its own, as another program has
  WindowId window_ = 0;
};

}  // namespace orvanta::test
