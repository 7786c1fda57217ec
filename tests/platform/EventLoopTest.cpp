#include <gtest/gtest.h>

#include "platform/FormSlot.h"
#include "platform/Timer.h"
#include "support/TestForm.h"

namespace orvanta::test {
namespace {

class Looping : public testing::Test {
 protected:
  HeadlessHost host{"."};
  TestForm form{host};
  std::vector<Milliseconds> ticks;

  void Pump() { host.Loop().Pump(); }
};

TEST_F(Looping, APumpDeliversOnlyWhatWasDueWhenItBegan) {
  Image image(form, "image");
  image.Move(0, 0, 100, 100);
  int clicks = 0;
  Timer timer(form, 50, [&] { ticks.push_back(host.Now()); });
  timer.Enabled = true;
  image.Click = [&] {
    ++clicks;
    host.Sleep(200);
    host.Click({5, 5});
  };
  form.Visible = true;
  host.Click({5, 5});
  Pump();
  EXPECT_EQ(clicks, 1) << "the click that a click brings waits";
  EXPECT_TRUE(ticks.empty()) << "and so does the tick that fell due meanwhile";
  Pump();
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(ticks, std::vector<Milliseconds>{400}) << "seven late ticks are one";
}

TEST_F(Looping, SleepDeliversNothingAndTicksKeepTheirPace) {
  Timer timer(form, 50, [&] { ticks.push_back(host.Now()); });
  host.RunFor(100);
  EXPECT_TRUE(ticks.empty());
  timer.Enabled = true;
  host.RunFor(120);
  EXPECT_EQ(ticks, (std::vector<Milliseconds>{150, 200}));
  host.Sleep(500);
  EXPECT_EQ(ticks.size(), 2U);
  host.RunFor(60);
  EXPECT_EQ(ticks, (std::vector<Milliseconds>{150, 200, 720, 770}));
  timer.Enabled = false;
  host.RunFor(10);
  timer.Enabled = true;
  host.RunFor(49);
  EXPECT_EQ(ticks.size(), 4U) << "enabling begins a new interval";
}

TEST_F(Looping, ATickThatPumpsIsReenteredAtItsNextInterval) {
  int depth = 0, deepest = 0;
  Timer timer(form, 50, [&] {
    deepest = std::max(deepest, ++depth);
    if (depth < 3) {
      Pump();
      host.Sleep(60);
      Pump();
    }
    --depth;
  });
  timer.Enabled = true;
  host.RunFor(50);
  EXPECT_EQ(deepest, 3);
  EXPECT_EQ(host.Now(), 50 + 2 * 60);
}

TEST_F(Looping, ATickThatAnotherTicksPumpHasDeliveredDoesNotComeAgain) {
  Timer first(form, 50, [&] { Pump(); });
  Timer second(form, 50, [&] { ticks.push_back(host.Now()); });
  first.Enabled = second.Enabled = true;
  host.RunFor(50);
  EXPECT_EQ(ticks, std::vector<Milliseconds>{50});
}

TEST_F(Looping, MovesOfTheMouseMergeBetweenPresses) {
  Image image(form, "image");
  image.Move(0, 0, 100, 100);
  std::vector<double> seen;
  image.MouseMove = [&](const MouseEvent& e) { seen.push_back(e.X); };
  image.MouseDown = [&](const MouseEvent&) { seen.push_back(-1); };
  form.Visible = true;
  for (int x = 1; x < 10; ++x) host.MoveMouse({x, 0});
  host.Press();
  for (int x = 10; x < 20; ++x) host.MoveMouse({x, 0});
  Pump();
  EXPECT_EQ(seen, (std::vector<double>{9, -1, 19}));
}

/// A modal form that unloads itself at a click.
class Popup : public TestForm {
 public:
  explicit Popup(HeadlessHost& ofHost)
      : TestForm(ofHost, WindowKind::Modal), image(*this, "image"), timer(*this, 20, [this] { ++ticks; }) {
    image.Move(0, 0, 200, 200);
    image.Click = [this] {
      const std::string before = image.Name;
      Unload();
      // The handler goes on with what belongs to the form.
      EXPECT_EQ(image.Name, before);
      EXPECT_FALSE(Visible);
    };
    timer.Enabled = true;
  }
  Image image;
  Timer timer;
  int ticks = 0;
};

TEST_F(Looping, AModalFormTakesTheInputAndLeavesTheTicks) {
  form.Left = 300 * 15;
  Image image(form, "image");
  image.Move(0, 0, 100, 100);
  int clicks = 0;
  Timer timer(form, 50, [&] { ticks.push_back(host.Now()); });
  timer.Enabled = true;
  FormSlot<Popup, HeadlessHost> popup(host);
  image.Click = [&] {
    if (++clicks == 1) popup->ShowModal(form);
  };
  form.Visible = true;
  host.After(500, [&] { host.Click({305, 5}); });
  host.After(1000, [&] { EXPECT_EQ(clicks, 1); });
  host.After(1000, [&] { EXPECT_GT(popup->ticks, 40); });
  host.After(1001, [&] { host.Click({5, 5}); });
  host.Click({305, 5});
  host.RunFor(1);
  EXPECT_EQ(popup.Loaded(), nullptr);
  EXPECT_EQ(host.Now(), 1001);
  EXPECT_EQ(ticks.size(), 20U);
  EXPECT_EQ(host.windows.size(), 1U) << "the window has gone with the form";
  EXPECT_EQ(host.active, &form);
  host.Click({305, 5});
  Pump();
  EXPECT_EQ(clicks, 2);
}

TEST_F(Looping, AnUnloadedFormIsLoadedAfreshAndHearsNothingOfBefore) {
  FormSlot<Popup, HeadlessHost> popup(host);
  popup->Visible = true;
  popup->Width = 6000;
  host.Click({5, 5});
  host.Click({6, 6});
  popup.Unload();
  EXPECT_EQ(host.windows.size(), 1U);
  host.RunFor(500);
  EXPECT_EQ(popup.Loaded(), nullptr);
  EXPECT_EQ(popup->Width, 3000);
  EXPECT_EQ(popup->ticks, 0);
}

TEST_F(Looping, AMessageBoxLetsNothingButTicksThrough) {
  Image image(form, "image");
  image.Move(0, 0, 100, 100);
  int clicks = 0;
  image.Click = [&] { ++clicks; };
  Timer timer(form, 50, [&] { ticks.push_back(host.Now()); });
  timer.Enabled = true;
  form.Visible = true;
  host.messageHold = 200;
  host.After(100, [&] { host.Click({5, 5}); });
  host.MsgBox("text", 16, "title");
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(ticks.size(), 4U);
}

TEST_F(Looping, AProgramThatWouldWaitForEverIsCaught) {
  EXPECT_THROW(host.Loop().RunUntil([] { return false; }), VirtualTimeOut);
}

}  // namespace
}  // namespace orvanta::test
