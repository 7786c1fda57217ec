#include <gtest/gtest.h>

#include "platform/ControlArray.h"
#include "support/TestForm.h"
#include "support/TestShell.h"

namespace orvanta::test {
namespace {

using Names = std::vector<std::string>;

/// From the bottom to the top: `low`, the boxes, `high` and a frame that holds `inner`.
class Board : public TestForm {
 public:
  explicit Board(HeadlessHost& host)
      : TestForm(host),
        low(*this, "low"),
        boxes(*this, "boxes", 2),
        high(*this, "high"),
        frame(*this, "frame"),
        inner(frame, "inner"),
        line(*this, "line") {
    low.Move(0, 0, 100, 100);
    boxes(0).Move(10, 10, 50, 50);
    boxes(1).Move(20, 20, 50, 50);
    high.Move(40, 40, 20, 20);
    frame.Move(120, 120, 40, 40);
    inner.Move(-10, 30, 30, 30);
    for (Control* control : Controls()) Watch(*control);
    Visible = true;
  }

  Image low;
  ControlArray<Image> boxes;
  Image high;
  PictureBox frame;
  Image inner;
  Line line;
  Names heard;

  void Watch(Control& control) {
    const std::string name = control.Name + (control.Index < 0 ? "" : std::to_string(control.Index));
    control.Click = [this, name] { heard.push_back(name); };
    control.MouseMove = [this, name](const MouseEvent& e) { Note(name + " move", e); };
    control.MouseUp = [this, name](const MouseEvent& e) { Note(name + " up", e); };
  }

 private:
  void Note(const std::string& what, const MouseEvent& e) {
    heard.push_back(what + " " + std::to_string(e.Button) + " at " + std::to_string(static_cast<int>(e.X)) +
                    "," + std::to_string(static_cast<int>(e.Y)));
  }
};

class OnTheBoard : public testing::Test {
 protected:
  HeadlessHost host{"."};
  Board board{host};

  std::string Clicked(Point at) {
    host.MoveMouse(at);
    host.Loop().Pump();
    host.Press();
    host.Loop().Pump();
    board.heard.clear();
    host.Release();
    host.Loop().Pump();
    return board.heard.empty() ? "" : board.heard.back();
  }
  /// What is painted again because of the action.
  template <class Action>
  Rect Painted(Action action) {
    host.Loop().Pump();
    action();
    return host.WindowOf(board).dirty;
  }
};

TEST_F(OnTheBoard, TheTopmostControlThatTakesTheMouseIsClicked) {
  EXPECT_EQ(Clicked({45, 45}), "high");
  board.high.Enabled = false;
  EXPECT_EQ(Clicked({45, 45}), "boxes1") << "a disabled control lets the mouse through";
  board.boxes(1).Visible = false;
  EXPECT_EQ(Clicked({45, 45}), "boxes0");
  EXPECT_EQ(Clicked({60, 60}), "low") << "the right and lower edge are outside";
  EXPECT_EQ(Clicked({150, 10}), "");
  // A new element stands above its array, under what the design put above that.
  board.high.Enabled = true;
  board.boxes.LoadNext();
  board.Watch(board.boxes(2));
  EXPECT_EQ(Clicked({15, 15}), "boxes0") << "not shown yet";
  board.boxes(2).Visible = true;
  EXPECT_EQ(Clicked({15, 15}), "boxes2");
  EXPECT_EQ(Clicked({45, 45}), "high");
  EXPECT_EQ(Clicked({125, 155}), "inner");
  EXPECT_EQ(Clicked({115, 155}), "") << "its holder clips it";
  EXPECT_EQ(Clicked({125, 165}), "");
  EXPECT_EQ(Clicked({125, 125}), "frame");
}

TEST_F(OnTheBoard, APressedControlKeepsTheMouseUntilTheLastRelease) {
  host.MoveMouse({125, 155});
  host.Press();
  host.Loop().Pump();
  board.heard.clear();
  host.MoveMouse({5, 300});
  host.Loop().Pump();
  host.Press(kRightButton);
  host.MoveMouse({6, 300});
  host.Release(kRightButton);
  host.Release();
  host.Loop().Pump();
  EXPECT_EQ(board.heard, (Names{"inner move 1 at -105,150", "inner move 3 at -104,150",
                                "inner up 2 at -104,150", "inner up 1 at -104,150"}))
      << "and is not clicked, since the release was outside";
  EXPECT_EQ(Clicked({5, 5}), "low");
}

TEST_F(OnTheBoard, AControlThatGoesWhileItIsHeldHearsNothingMore) {
  board.boxes.LoadNext();
  board.Watch(board.boxes(2));
  board.boxes(2).Visible = true;
  host.MoveMouse({15, 15});
  host.Press();
  host.Loop().Pump();
  board.heard.clear();
  board.boxes.UnloadAbove0();
  host.MoveMouse({16, 16});
  host.Release();
  host.Loop().Pump();
  EXPECT_EQ(board.heard, Names{"boxes0 move 1 at 6,6"});
  // One that unloads itself by its own click.
  board.boxes.LoadNext();
  board.boxes(1).Visible = true;
  board.boxes.Click = [this](std::int16_t) { board.boxes.UnloadAbove0(); };
  Clicked({15, 15});
  EXPECT_EQ(board.boxes.UBound(), 0);
}

TEST_F(OnTheBoard, AChangeMarksTheOldAndTheNewPlaceAndNothingElse) {
  EXPECT_EQ(Painted([&] { board.high.Left = 60; }), (Rect{40, 40, 40, 20}));
  EXPECT_EQ(Painted([&] { board.high.Left = 60; }), Rect{}) << "it is there already";
  EXPECT_EQ(Painted([&] { board.high.Visible = false; }), (Rect{60, 40, 20, 20}));
  EXPECT_EQ(Painted([&] { board.high.Top = 0; }), Rect{});
  EXPECT_EQ(Painted([&] { board.line.BorderWidth = 3; }), Rect{}) << "a line begins hidden";
  EXPECT_EQ(Painted([&] { board.line.Visible = true; }), (Rect{0, 0, 2, 2})) << "clipped by the form";
  EXPECT_EQ(Painted([&] { board.line.Place(50, 60, 50, 80); }), (Rect{0, 0, 52, 82}));
  EXPECT_EQ(Painted([&] { board.inner.Top = 20; }), (Rect{120, 140, 20, 20})) << "clipped by its holder";
  EXPECT_EQ(Painted([&] { board.frame.Visible = false; }), (Rect{120, 120, 40, 40}));
  EXPECT_EQ(Painted([&] { board.inner.Top = 0; }), Rect{});
  EXPECT_EQ(Painted([&] { board.boxes.UnloadAbove0(); }), (Rect{20, 20, 50, 50}));
  EXPECT_EQ(Painted([&] { board.low.Left = 1e300; }), (Rect{0, 0, 100, 100})) << "far outside";
  EXPECT_EQ(Painted([&] { board.Visible = false, board.low.Left = 0; }), Rect{});
}

TEST_F(OnTheBoard, RefreshIsSeenBeforeTheProgramBlocks) {
  HeadlessWindow& window = host.WindowOf(board);
  host.Loop().Pump();
  const int before = window.paints;
  board.high.Left = 0;
  board.high.Refresh();
  host.Sleep(1000);
  EXPECT_EQ(window.paints, before + 1);
}

TEST(Controls, TakeTheSizeOfTheirPictures) {
  HeadlessHost host(".");
  TestForm form(host);
  const auto art = std::make_shared<PictureFile>("art", Size{30, 20});
  Image image(form, "image");
  image.Picture = art;
  EXPECT_EQ(image.Bounds(), (Rect{0, 0, 30, 20}));
  image.Picture = nullptr;
  EXPECT_EQ(image.Bounds(), (Rect{0, 0, 30, 20})) << "a lost picture leaves something to click";
  image.Stretch = true;
  image.Width = 7;
  image.Picture = art;
  EXPECT_EQ(image.Bounds(), (Rect{0, 0, 7, 20}));
  PictureBox box(form, "box");
  box.Picture = art;
  EXPECT_EQ(box.Bounds(), Rect{});
  box.AutoSize = true;
  box.Picture = std::make_shared<PictureFile>("art", Size{8, 9});
  EXPECT_EQ(box.Bounds(), (Rect{0, 0, 8, 9}));
}

TEST(RestingProgram, PaintsNothing) {
  TestDisc disc;
  disc.Menu("MAINMENU", std::vector<std::string>(20, "Gra"));
  TestShell user(disc);
  user.Start();
  user.host.MoveMouse(user.MiddleOf(user.Main().lblPos1(2)));
  user.Run(2000);
  std::vector<int> before, after;
  for (const HeadlessWindow* window : user.host.windows) before.push_back(window->paints);
  user.Run(10 * 60 * 1000);
  for (const HeadlessWindow* window : user.host.windows) after.push_back(window->paints);
  EXPECT_EQ(before, after);
  EXPECT_EQ(before.size(), 6U);
}

}  // namespace
}  // namespace orvanta::test
