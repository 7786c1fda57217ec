#include <gtest/gtest.h>

#include "platform/Controls.h"
#include "platform/FormSlot.h"
#include "platform/Timer.h"
#include "platform/headless/HeadlessHost.h"

namespace orvanta::test {
namespace {

/// A form of 200 by 200 pixels with a picture that covers it and a clock.
struct Window : Form {
  explicit Window(HeadlessHost& host, WindowKind kind = WindowKind::Main)
      : Form(host, {.name = "Window", .width = 3000, .height = 3000, .window = kind, .centred = false}) {
    image.Move(0, 0, 200, 200);
  }
  Image image{*this, "image"};
  std::vector<Milliseconds> ticks;
  Timer timer{*this, 50, [this] { ticks.push_back(TheHost().Now()); }};
};

/// A modal one that unloads itself at a click; its handler goes on with what belongs to the form.
struct Popup : Window {
  explicit Popup(HeadlessHost& ofHost) : Window(ofHost, WindowKind::Modal) {
    image.Click = [this] {
      Unload();
      EXPECT_TRUE(image.Name == "image" && !Visible);
    };
    timer.Enabled = true;
  }
};

struct Looping : testing::Test {
  using Times = std::vector<Milliseconds>;
  Looping() { form.Visible = true; }
  void Pump() { host.Loop().Pump(); }

  HeadlessHost host{"."};
  Window form{host};
  int clicks = 0;
};

TEST_F(Looping, APumpDeliversOnlyWhatWasDueWhenItBegan) {
  form.timer.Enabled = true;
  form.image.Click = [&] {
    ++clicks;
    host.Sleep(200);
    host.Click({5, 5});
  };
  host.Click({5, 5});
  Pump();
  EXPECT_EQ(clicks, 1) << "the click that a click brings waits";
  EXPECT_EQ(form.ticks, Times{}) << "and so does the tick that fell due meanwhile";
  Pump();
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(form.ticks, Times{400}) << "seven late ticks are one";
}

TEST_F(Looping, TicksKeepTheirPaceAndOneThatPumpsIsReenteredAtItsNextInterval) {
  host.RunFor(100);
  form.timer.Enabled = true;
  host.RunFor(120);
  host.Sleep(500);
  EXPECT_EQ(form.ticks, (Times{150, 200}));
  host.RunFor(60);
  EXPECT_EQ(form.ticks, (Times{150, 200, 720, 770}));
  form.timer.Enabled = false;
  host.RunFor(10);
  int depth = 0, deepest = 0;
  Timer pumping(form, 50, [&] {
    deepest = std::max(deepest, ++depth);
    if (depth < 3) Pump(), host.Sleep(60), Pump();
    --depth;
  });
  pumping.Enabled = form.timer.Enabled = true;
  host.RunFor(50);
  EXPECT_EQ(deepest, 3);
  EXPECT_EQ(form.ticks, (Times{150, 200, 720, 770, 840, 900, 960})) << "a nested pump has delivered each";
}

TEST_F(Looping, MovesOfTheMouseMergeBetweenPresses) {
  std::vector<double> seen;
  form.image.MouseMove = [&](const MouseEvent& e) { seen.push_back(e.X); };
  form.image.MouseDown = [&](const MouseEvent&) { seen.push_back(-1); };
  for (int x = 1; x < 20; ++x) x == 10 ? host.Press() : host.MoveMouse({x, 0});
  Pump();
  EXPECT_EQ(seen, (std::vector<double>{9, -1, 19}));
}

TEST_F(Looping, AModalFormTakesTheInputAndLeavesTheTicks) {
  form.Left = 300 * 15;
  form.timer.Enabled = true;
  FormSlot<Popup, HeadlessHost> popup(host);
  form.image.Click = [&] { ++clicks == 1 ? popup->ShowModal(form) : void(); };
  host.After(500, [&] { host.Click({305, 5}); });
  host.After(1000, [&] { EXPECT_TRUE(clicks == 1 && popup->ticks.size() == 19); });
  host.After(1001, [&] { host.Click({5, 5}); });
  host.Click({305, 5});
  host.RunFor(1);
  EXPECT_EQ(host.Now(), 1001);
  EXPECT_EQ(form.ticks.size(), 20U);
  EXPECT_EQ(host.windows.size(), 1U) << "the window has gone with the form";
  EXPECT_EQ(host.active, &form);
  host.Click({305, 5});
  Pump();
  EXPECT_EQ(clicks, 2);
  // A second one is loaded afresh and hears nothing of what the first was sent.
  popup->Visible = true;
  popup->Width = 6000;
  host.Click({5, 5});
  popup.Unload();
  host.RunFor(500);
  EXPECT_TRUE(!popup.Loaded() && popup->Width == 3000 && popup->ticks.empty());
}

TEST_F(Looping, AMessageBoxLetsNothingButTicksThroughAndNoWaitIsForEver) {
  form.image.Click = [] { FAIL(); };
  form.timer.Enabled = true;
  host.messageHold = 200;
  host.After(100, [&] { host.Click({5, 5}); });
  host.MsgBox("text", 16, "title");
  EXPECT_EQ(form.ticks.size(), 4U);
  EXPECT_THROW(host.Loop().RunUntil([] { return false; }), VirtualTimeOut);
}

}  // namespace
}  // namespace orvanta::test
