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

  explicit Look(const Size& itsSize, Rgb colour = 0);
  Rgb At(int x, int y) const { return pixels[static_cast<std::size_t>(y * size.width + x)]; }
  void Fill(const Rect& area, Rgb colour);
  /// The edge of an area, one pixel thick.
  void Frame(const Rect& area, Rgb colour);
  /// How many pixels have a colour.
  int Count(Rgb colour) const;

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

/// The display that the test runs on: what a user sees there, and his hand on the mouse.
class Screen {
 public:
  Screen();

  Size Extent() const;
  Look See(const Rect& area) const;
  Rgb Pixel(Point place) const { return See({place.x, place.y, 1, 1}).At(0, 0); }
  CursorLook Cursor() const;

  /// The windows that the window manager knows, from the bottom to the top.
  std::vector<WindowId> Windows() const { return Numbers(root_, "_NET_CLIENT_LIST_STACKING"); }
  WindowId Active() const { return Number(root_, "_NET_ACTIVE_WINDOW"); }
  Rect PlaceOf(WindowId window) const;
  std::string TitleOf(WindowId window) const { return Bytes(window, "_NET_WM_NAME"); }
  bool HasState(WindowId window, const std::string& state) const;
  /// A property that is a number; 0 if the window has none of this name.
  std::uint32_t Number(WindowId window, const std::string& property) const;

  void MoveMouse(Point place) const;
  void Press() const;
  void Release() const;
  void Click(Point place) const;
  /// Presses at one place and releases at another, at a hand's pace.
  void Drag(Point from, Point to) const;
  void Rest() const;  ///< long enough for a tick of the program
  void PressReturn() const;
  /// What a task bar does when its entry is clicked.
  void Activate(WindowId window) const;
  /// What the window manager's close button does.
  void Close(WindowId window) const;

  /// Counts from now on how often anything is drawn into a window.
  void WatchDrawing(WindowId window);
  int DrawingSeen();
  void WatchAppearances() const;
  /// Waits for the next window that appears on the screen, ten seconds at most; gives whether one did.
  bool AwaitAppearance() const;

 private:
  friend class OtherWindow;
  std::uint32_t Atom(const std::string& name) const;
  std::string Bytes(WindowId window, const std::string& property) const;
  std::vector<std::uint32_t> Numbers(WindowId window, const std::string& property) const;
  void Tell(WindowId window, const std::string& message, std::uint32_t first, std::uint32_t second) const;
  void Fake(int type, int detail, Point place = {}) const;

  std::shared_ptr<xcb_connection_t> connection_;
  WindowId root_ = 0;
};

/// A window of another program, in one colour and without a frame.
class OtherWindow {
 public:
  /// Waits until it is active.
  OtherWindow(const Rect& place, Rgb colour);
  WindowId Id() const { return window_; }

 private:
  Screen screen_;  // a connection of its own, as another program has
  WindowId window_ = 0;
};

}  // namespace orvanta::test
