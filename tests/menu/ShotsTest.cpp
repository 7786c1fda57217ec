// The strip of screenshots, its slider and the viewer.

#include <gtest/gtest.h>

#include "support/EntryDisc.h"

namespace orvanta::test {
namespace {

class Shots : public ::testing::Test {
 protected:
  MainForm& Main() { return user.Main(); }
  void Begin(int shots) {
    for (int i = 1; i <= shots; ++i) disc.Set("Gra", "Shot" + std::to_string(i), "shot.gif");
    EntryDisc::Begin(user, EntryDisc::kProgram);
  }
  /// Takes the knob with a button of the mouse and moves it by so many pixels.
  void Drag(int by, int button = kLeftButton) {
    const Point knob = user.MiddleOf(Main().imgSSuwak);
    user.host.MoveMouse(knob);
    user.host.Press(button);
    user.Run(10);
    user.host.MoveMouse({knob.x + 70, knob.y + by});
    user.Run(10);
    user.host.Release(button);
    user.Run(10);
  }
  /// Clicks a screenshot, does `act` while the viewer is open, and closes it by a click on its picture.
  void View(int index, const std::function<void()>& act) {
    user.host.After(500, act);
    user.host.After(1000, [this] { user.host.Click(user.MiddleOf(user.shell.frmShowPic->picPic)); });
    user.Click(Main().picShot(index));
    EXPECT_FALSE(user.shell.frmShowPic.Loaded());
    EXPECT_FALSE(user.shell.modMain.ShowPicOpen);
  }

  EntryDisc disc;
  TestShell user{disc};
};

TEST_F(Shots, StandBelowEachOtherAtTheSizeOfTheDesign) {
  disc.Picture("shot.gif", 640, 480);
  Begin(3);
  disc.Set("Gra", "Shot5", "shot.gif");
  ASSERT_EQ(Main().picShot.UBound(), 2);
  for (int i = 0; i <= 2; ++i) EXPECT_EQ(Main().picShot(i).Bounds(), (Rect{7, 6 + 85 * i, 123, 82}));
  EXPECT_FALSE(Main().imgSSuwak.Visible()) << "three fill the frame";
  EXPECT_EQ(Main().SuwakScale, 0.0F);
}

TEST_F(Shots, ARunEndsAtItsFirstGap) {
  disc.Set("Gra", "Shot3", "shot.gif");
  Begin(1);
  EXPECT_EQ(Main().picShot.UBound(), 0);
}

TEST_F(Shots, AFourthBringsTheSlider) {
  Begin(4);
  EXPECT_TRUE(Main().imgSSuwak.Visible() && Main().imgSSlider.Visible());
  EXPECT_EQ(Main().imgSSlider.Bounds(), (Rect{138, 10, 20, 270}));
  EXPECT_EQ(Main().imgSSuwak.Bounds(), (Rect{140, 20, 16, 20}));
  EXPECT_EQ(Main().SuwakRange, 90);
  EXPECT_FLOAT_EQ(Main().SuwakScale, 0.5F);
  Drag(5);
  EXPECT_DOUBLE_EQ(Main().picShot(0).Top, 3.5) << "not rounded";
  Drag(1000);
  EXPECT_DOUBLE_EQ(Main().imgSSuwak.Top, 200);
  EXPECT_DOUBLE_EQ(Main().picShot(3).Top, 171);
  EXPECT_DOUBLE_EQ(Main().picShot(3).Top + Main().picShot(3).Height, 253);
  Drag(-1000);
  EXPECT_DOUBLE_EQ(Main().imgSSuwak.Top, 20);
  EXPECT_DOUBLE_EQ(Main().picShot(0).Top, 6);
}

TEST_F(Shots, OnlyTheLeftButtonMovesTheKnob) {
  Begin(4);
  const Point knob = user.MiddleOf(Main().imgSSuwak);
  user.host.MoveMouse(knob);
  user.host.Press(kRightButton);
  user.Run(10);
  EXPECT_TRUE(Main().SuwakDrag);
  EXPECT_EQ(Main().SuwakGrab, -1);
  EXPECT_EQ(Main().imgSSuwak.MouseIcon(), Pointer::OpenHand);
  user.host.MoveMouse({knob.x, knob.y + 50});
  user.Run(10);
  user.host.Release(kRightButton);
  user.Run(10);
  EXPECT_FALSE(Main().SuwakDrag);
  EXPECT_DOUBLE_EQ(Main().imgSSuwak.Top, 20);
  user.host.MoveMouse(knob);
  user.host.Press();
  user.Run(10);
  EXPECT_EQ(Main().imgSSuwak.MouseIcon(), Pointer::ClosedHand);
}

TEST_F(Shots, ASecondEntryBeginsAtTheTopAndRemembersTheLastPlaceOfTheKnob) {
  for (int i = 1; i <= 4; ++i) disc.Set("Film", "Shot" + std::to_string(i), "shot.gif");
  Begin(4);
  Drag(40);
  EXPECT_DOUBLE_EQ(Main().picShot(0).Top, 6 - 20);
  user.Click(Main().imgUp);
  user.Choose(EntryDisc::kFilm);
  EXPECT_DOUBLE_EQ(Main().picShot(0).Top, 6);
  EXPECT_DOUBLE_EQ(Main().imgSSuwak.Top, 20);
  Drag(40);
  EXPECT_DOUBLE_EQ(Main().imgSSuwak.Top, 60) << "the knob moves to where it stood before";
  EXPECT_DOUBLE_EQ(Main().picShot(0).Top, 6) << "so the pictures are not moved";
  Drag(1);
  EXPECT_DOUBLE_EQ(Main().picShot(0).Top, 6 - 20.5) << "until the next pixel";
}

TEST_F(Shots, OneSetOfVariablesServesBothSliders) {
  Begin(4);
  EXPECT_EQ(Main().YMin, 20);
  user.Click(Main().ButtonM(3));
  EXPECT_EQ(Main().YMin, 40) << "the tall page has set up the other one";
  EXPECT_EQ(Main().SuwakRange, 600 - 309);
  user.Click(Main().ButtonM(3));
  EXPECT_EQ(Main().SuwakRange, 90);
  user.Click(Main().imgUp);
  EXPECT_EQ(Main().SuwakScale, 0.0F);
}

TEST_F(Shots, TheViewerShowsTheFilesSizeAndClosesByItsPictureAlone) {
  Begin(4);
  disc.Picture("shot.gif", 10, 10);
  const std::size_t loads = user.host.pictures.size();
  View(3, [&] {
    const frmShowPic& viewer = *user.shell.frmShowPic;
    EXPECT_EQ(viewer.Place(), (Rect{352, 256, 320, 256})) << "320 by 240 and the line of 16, in the centre";
    EXPECT_EQ(viewer.lblTxt.Bounds(), (Rect{0, 240, 320, 16}));
    EXPECT_EQ(viewer.lblTxt.Caption(), "kliknij rysunek aby zniknął...  ");
    EXPECT_EQ(viewer.lblTxt.ForeColor, 0x80FFFF);
    EXPECT_EQ(user.host.pictures.size(), loads) << "nothing is read anew";
    EXPECT_TRUE(user.shell.modActiveWindow.AppActive);
    user.host.Click(user.MiddleOf(viewer.lblTxt));
  });
  EXPECT_TRUE(user.host.active == &Main());
}

TEST_F(Shots, ThePictureThatTheFrameCutsOffOpensWhole) {
  disc.Picture("last.gif", 200, 100);
  disc.Set("Gra", "Shot4", "last.gif");
  for (int i = 1; i <= 3; ++i) disc.Set("Gra", "Shot" + std::to_string(i), "shot.gif");
  EntryDisc::Begin(user, EntryDisc::kProgram);
  Drag(40);
  const Rect form = Main().Place();
  user.host.After(500, [&] {
    EXPECT_EQ(Shown(user.shell.frmShowPic->picPic), "last.gif");
    user.host.Click(user.MiddleOf(user.shell.frmShowPic->picPic));
  });
  user.host.Click({form.left + 388 + 20, form.top + 184 + 257});
  user.Run(10);
}

TEST_F(Shots, TheViewerKeepsTheMainWindowFromClicksAndTheTickGoing) {
  Begin(1);
  View(0, [&] {
    user.host.Click(user.MiddleOf(Main().ButtonM(0)));
    user.host.MoveMouse(user.MiddleOf(Main().ButtonM(8)));
    user.host.After(100, [&] { EXPECT_EQ(Shown(Main().ButtonM(8)), "min1.gif") << "it counts as active"; });
  });
  EXPECT_FALSE(user.ended);
}

TEST_F(Shots, AButtonLetGoOverTheViewerIsNotHeldBelowIt) {
  Begin(1);
  user.host.MoveMouse(user.MiddleOf(Main().picShot(0)));
  user.host.Press(kRightButton);
  user.Run(10);
  View(0, [&] { user.host.Release(kRightButton); });
  user.Click(Main().imgUp);
  EXPECT_EQ(Main().MenuLevel, 0) << "the click reaches what lies under the cursor";
}

TEST_F(Shots, TheViewerStaysOpenWhileTheMainWindowIsMinimised) {
  Begin(1);
  View(0, [&] {
    user.host.Minimise(Main());
    user.host.After(60, [&] {
      EXPECT_EQ(Main().WindowState, Form::kMinimised);
      user.host.Activate(*user.shell.frmShowPic);
    });
    user.host.After(400, [&] { EXPECT_TRUE(user.shell.modActiveWindow.AppActive); });
  });
  user.Run(1500);
  EXPECT_FALSE(user.shell.modActiveWindow.AppActive);
  user.host.Restore(Main());
  user.Run(100);
  EXPECT_TRUE(user.shell.modActiveWindow.AppActive);
}

TEST_F(Shots, WithoutAPictureTheViewerCanBeClosed) {
  disc.Remove("Gra", "Shot1");
  EntryDisc::Begin(user, EntryDisc::kProgram);
  View(0, [&] { EXPECT_FALSE(user.shell.frmShowPic->Place().Empty()); });
}

}  // namespace
}  // namespace orvanta::test
