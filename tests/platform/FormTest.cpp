#include <gtest/gtest.h>

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/headless/HeadlessHost.h"

namespace orvanta::test {
namespace {

/// From bottom to top: `low`, the boxes, `high`, and a frame that contains `inner`.
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
    control.Click = [this, &control] {
      clicked = control.Name + (control.Index < 0 ? "" : std::to_string(control.Index));
    };
  }

  Image low{*this, "low"};
  ControlArray<Image> boxes{*this, "boxes", 2};
  Image high{*this, "high"};
  PictureBox frame{*this, "frame"};
  Image inner{frame, "inner"};
  std::string clicked;
};

struct OnTheBoard : testing::Test {
  std::string Clicked(Point at) {
    board.clicked.clear();
    host.Click(at);
    host.Loop().Pump();
    return board.clicked;
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
  EXPECT_EQ(Clicked({60, 60}), "low") << "the right and lower edges are outside";
  board.high.Enabled = true;
  board.boxes.LoadNext();
  Image& added = board.boxes(2);
  board.Watch(added);
  EXPECT_EQ(Clicked({15, 15}), "boxes0") << "not shown yet";
  added.Visible = true;
  EXPECT_EQ(Clicked({15, 15}), "boxes2") << "a new element is above its array";
  EXPECT_EQ(Clicked({45, 45}), "high") << "but below what the design put above the array";
  EXPECT_EQ(Clicked({125, 155}), "inner");
  EXPECT_EQ(Clicked({115, 155}), "") << "the frame clips it";
}

TEST_F(OnTheBoard, AReleaseThatWentToAnotherWindowLeavesNoControlUnclickable) {
  std::string seen;
  board.low.MouseUp = [&](const MouseEvent&) { seen += "up "; };
  host.MoveMouse({5, 5});
  host.Press(kRightButton);
  host.Press(kLeftButton);
  host.Loop().Pump();
  host.ReleaseUntold(kRightButton);
  host.Release(kLeftButton);
  host.Loop().Pump();
  EXPECT_EQ(Clicked({45, 45}), "high");
  host.Press(kRightButton);
  host.Loop().Pump();
  host.ReleaseUntold(kRightButton);
  EXPECT_EQ(Clicked({15, 15}), "boxes0") << "pressed without a move before";
  host.MoveMouse({5, 5});
  host.Press();
  host.Loop().Pump();
  EXPECT_EQ(seen, "up ");
  const EventLoop::Modal modal(host.Loop(), nullptr);
  EXPECT_EQ(seen, "up up ") << "a modal window ends the press when it opens";
}

TEST_F(OnTheBoard, TheSecondPressOfADoubleClickAndAPressOnAHiddenFormAreNotClicks) {
  int clicks = 0;
  board.low.Click = [&] { ++clicks; };
  host.DoubleClick({5, 5});
  host.Loop().Pump();
  EXPECT_EQ(clicks, 1);
  host.Click({5, 5});
  board.Visible = false;
  host.Loop().Pump();
  board.Visible = true;
  host.Press();
  host.Loop().Pump();
  host.Release();
  board.WindowState = Form::kMinimised;
  board.WindowState = Form::kNormal;
  host.Loop().Pump();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(Clicked({45, 45}), "high") << "the release has ended the press";
}

// Otherwise a drag would lag behind the mouse on a slow machine.
TEST_F(OnTheBoard, MovesOfTheMouseMergeBetweenPresses) {
  std::vector<double> seen;
  board.low.MouseMove = [&](const MouseEvent& e) { seen.push_back(e.X); };
  board.low.MouseDown = [&](const MouseEvent&) { seen.push_back(-1); };
  for (int x = 1; x < 20; ++x) x == 10 ? host.Press() : host.MoveMouse({x, 0});
  host.Loop().Pump();
  EXPECT_EQ(seen, (std::vector<double>{9, -1, 19}));
}

}  // namespace
}  // namespace orvanta::test
