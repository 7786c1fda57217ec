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
class Look {
 public:
  /// Of an expected pixel: any colour will do.
  static constexpr Rgb kAnything = 0xFF000000;

  Look(int width, int height, Rgb colour = 0);
  int width, height;
  std::vector<Rgb> pixels;

  Rgb At(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
  void Fill(const Rect& area, Rgb colour);
  /// The edge of an area, one pixel thick.
  void Frame(const Rect& area, Rgb colour);
  /// How many pixels of an area have a colour.
  int Count(const Rect& area, Rgb colour) const;
};

/// Where and how a look is not as expected; empty if it is.
std::string Difference(const Look& expected, const Look& seen);

struct CursorLook {
  int width = 0, height = 0;
  Point hotSpot;
  std::vector<std::uint32_t> argb;  ///< premultiplied
};

/// The display that the test runs on: what a user sees there, and his hand on the mouse.
class Screen {
 public:
  Screen();
  ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  Size Extent() const;
  Look See(const Rect& area) const;
  Rgb Pixel(Point place) const { return See({place.x, place.y, 1, 1}).At(0, 0); }
  CursorLook Cursor() const;

  /// The windows that the window manager knows, from the bottom to the top.
  std::vector<WindowId> Windows() const;
  Rect PlaceOf(WindowId window) const;
  std::string TitleOf(WindowId window) const;
  bool HasState(WindowId window, const std::string& state) const;
  bool IsMapped(WindowId window) const;
  WindowId Active() const;
  WindowId OwnerOf(WindowId window) const;
  int PidOf(WindowId window) const;

  void MoveMouse(Point place) const;
  void Press(int button = 1) const;
  void Release(int button = 1) const;
  void Click(Point place, int button = 1) const;
  /// Presses at one place and releases at another, at a hand's pace.
  void Drag(Point from, Point to) const;
  void Rest() const;  ///< long enough for a tick of the program
  void PressReturn() const;
  /// What a task bar does when its entry is clicked.
  void Activate(WindowId window) const;
  /// What the window manager's close button does.
  void Close(WindowId window) const;

  /// Counts from now on how often anything is drawn into a window. A second call begins anew.
  void WatchDrawing(WindowId window);
  int DrawingSeen();
  /// Waits for the next window that appears on the screen, ten seconds at most; gives whether one did.
  bool AwaitAppearance() const;
  void WatchAppearances() const;

  xcb_connection_t* Connection() const { return connection_.get(); }
  WindowId Root() const { return root_; }
  std::uint32_t Atom(const std::string& name) const;

 private:
  struct Disconnect {
    void operator()(xcb_connection_t* connection) const;
  };
  std::vector<std::uint32_t> Numbers(WindowId window, const std::string& property) const;
  void Tell(WindowId window, const std::string& message, std::uint32_t first, std::uint32_t second) const;
  void Fake(std::uint8_t type, std::uint8_t detail, Point place = {}) const;

  std::unique_ptr<xcb_connection_t, Disconnect> connection_;
  WindowId root_ = 0;
};

}  // namespace orvanta::test
