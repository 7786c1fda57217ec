#include <gtest/gtest.h>

#include <array>

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Region.h"
#include "platform/headless/HeadlessHost.h"

namespace orvanta::test {
namespace {

/// From the bottom to the top: `low`, the boxes, `high` and a frame that holds `inner`.
struct Board : Form {
  explicit Board(HeadlessHost& host)
      : Form(host, {.name = "Board", .width = 3000, .height = 3000, .centred = false}) {
    low.Move(0, 0, 100, 100);
    boxes(0).Move(10, 10, 50, 50);
    boxes(1).Move(20, 20, 50, 50);
    high.Move(40, 40, 20, 20);
    frame.Move(120, 120, 40, 40);
    inner.Move(-10, 30, 30, 30);
    for (Control* control : Controls()) Watch(*control);
    Visible = true;
  }
  void Watch(Control& control) {
    const auto note = [this, &control](const std::string& what, double x) {
      heard += control.Name + (control.Index < 0 ? "" : std::to_string(control.Index)) + what;
      if (!what.empty()) heard += " at " + std::to_string(static_cast<int>(x)) + "; ";
    };
    control.Click = [note] { note("", 0); };
    control.MouseMove = [note](const MouseEvent& e) { note(" move " + std::to_string(e.Button), e.X); };
    control.MouseUp = [note](const MouseEvent& e) { note(" up " + std::to_string(e.Button), e.X); };
  }

  Image low{*this, "low"};
  ControlArray<Image> boxes{*this, "boxes", 2};
  Image high{*this, "high"};
  PictureBox frame{*this, "frame"};
  Image inner{frame, "inner"};
  Line line{*this, "line"};
  std::string heard;
};

struct OnTheBoard : testing::Test {
  /// Does something, lets the board hear of it and gives what it heard.
  std::string Heard(const std::function<void()>& act) {
    host.Loop().Pump();
    board.heard.clear();
    act();
    host.Loop().Pump();
    return board.heard;
  }
  std::string Clicked(Point at) {
    const std::string heard = Heard([&] { host.Click(at); });
    return heard.substr(heard.find_last_of(' ') + 1);
  }
  /// What is painted again because of the action.
  Rect Painted(const std::function<void()>& act) {
    host.Loop().Pump();
    act();
    return host.WindowOf(board).dirty;
  }
  Image& LoadBox() {
    board.boxes.LoadNext();
    board.Watch(board.boxes(board.boxes.UBound()));
    return board.boxes(board.boxes.UBound());
  }

  HeadlessHost host{"."};
  Board board{host};
};

TEST_F(OnTheBoard, TheTopmostControlThatTakesTheMouseIsClicked) {
  EXPECT_EQ(Clicked({45, 45}), "high");
  board.high.Enabled = false;
  EXPECT_EQ(Clicked({45, 45}), "boxes1") << "a disabled control lets the mouse through";
  board.boxes(1).Visible = false;
  EXPECT_EQ(Clicked({45, 45}), "boxes0");
  EXPECT_EQ(Clicked({60, 60}), "low") << "the right and lower edge are outside";
  board.high.Enabled = true;
  Image& added = LoadBox();
  EXPECT_EQ(Clicked({15, 15}), "boxes0") << "not shown yet";
  added.Visible = true;
  EXPECT_EQ(Clicked({15, 15}), "boxes2") << "above its array";
  EXPECT_EQ(Clicked({45, 45}), "high") << "but under what the design put above that";
  EXPECT_EQ(Clicked({125, 155}), "inner");
  EXPECT_EQ(Clicked({115, 155}), "") << "its holder clips it";
}

TEST_F(OnTheBoard, APressedControlKeepsTheMouseUntilTheLastReleaseOrItsEnd) {
  host.MoveMouse({125, 155});
  host.Press();
  EXPECT_EQ(Heard([&] { host.MoveMouse({5, 300}); }), "inner move 1 at -105; ");
  EXPECT_EQ(Heard([&] { host.Press(kRightButton); }), "");
  EXPECT_EQ(Heard([&] { host.Release(kRightButton); }), "inner up 2 at -105; ");
  EXPECT_EQ(Heard([&] { host.Release(); }), "inner up 1 at -105; ") << "no click, the release was outside";
  LoadBox().Visible = true;
  host.MoveMouse({15, 15});
  host.Press();
  Heard([&] { board.boxes.UnloadAbove0(); });
  EXPECT_EQ(Heard([&] { host.MoveMouse({16, 16}), host.Release(); }), "boxes0 move 1 at 6; ");
  board.boxes.LoadNext();
  board.boxes(1).Visible = true;
  board.boxes.Click = [this](std::int16_t) { board.boxes.UnloadAbove0(); };
  Clicked({15, 15});
  EXPECT_EQ(board.boxes.UBound(), 0) << "unloaded by its own click";
}

TEST_F(OnTheBoard, AChangeMarksTheOldAndTheNewPlaceAndNothingElse) {
  EXPECT_EQ(Painted([&] { board.high.Left = 60; }), (Rect{40, 40, 40, 20}));
  EXPECT_EQ(Painted([&] { board.high.Left = 60; }), Rect{}) << "it is there already";
  EXPECT_EQ(Painted([&] { board.high.Visible = false; }), (Rect{60, 40, 20, 20}));
  EXPECT_EQ(Painted([&] { board.high.Top = 0; }), Rect{}) << "hidden";
  EXPECT_EQ(Painted([&] { board.line.Visible = true; }), (Rect{0, 0, 1, 1})) << "clipped by the form";
  EXPECT_EQ(Painted([&] { board.line.Place(50, 60, 50, 80); }), (Rect{0, 0, 51, 81}));
  EXPECT_EQ(Painted([&] { board.inner.Top = 20; }), (Rect{120, 140, 20, 20})) << "clipped by its holder";
  EXPECT_EQ(Painted([&] { board.boxes.UnloadAbove0(); }), (Rect{20, 20, 50, 50}));
  EXPECT_EQ(Painted([&] { board.low.Left = 1e300; }), (Rect{0, 0, 100, 100})) << "far outside";
  board.high.Picture = std::make_shared<PictureFile>("art", Size{30, 10});
  board.high.Picture = nullptr;
  EXPECT_EQ(board.high.Bounds(), (Rect{60, 0, 30, 10})) << "a lost picture leaves something to click";
  board.high.Visible = true;
  const int before = host.WindowOf(board).paints;
  board.high.Refresh();
  EXPECT_EQ(host.WindowOf(board).paints, before + 1) << "seen before the program blocks";
}

TEST(Region, LeavesOutWhatItGoesRoundTwice) {
  const std::array<Point, 8> twice{{{0, 0}, {9, 0}, {9, 9}, {0, 9}, {3, 3}, {6, 3}, {6, 6}, {3, 6}}};
  EXPECT_TRUE(!Region::Polygon(twice).Contains({5, 4}) && Region::Polygon(twice).Contains({7, 4}));
}

}  // namespace
}  // namespace orvanta::test
