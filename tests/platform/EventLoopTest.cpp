#include <gtest/gtest.h>

#include "platform/Controls.h"
#include "platform/Timer.h"
#include "platform/headless/HeadlessHost.h"

namespace orvanta::test {
namespace {

/// A form of 200 by 200 pixels with a clock and a picture that covers it.
struct Window : Form {
  explicit Window(HeadlessHost& host)
      : Form(host, {.name = "Window", .width = 3000, .height = 3000, .centred = false}) {
    image.Move(0, 0, 200, 200);
  }
  Image image{*this, "image"};
  std::vector<Milliseconds> ticks;
  Timer timer{*this, 50, [this] { ticks.push_back(TheHost().Now()); }};
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
  EXPECT_EQ(clicks, 1) << "a click made by a click handler has to wait";
  EXPECT_EQ(form.ticks, Times{}) << "and so does a tick that became due meanwhile";
  Pump();
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(form.ticks, Times{400}) << "seven late ticks merge into one";
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
  EXPECT_EQ(form.ticks, (Times{150, 200, 720, 770, 840, 900, 960})) << "each was delivered by a nested pump";
}

}  // namespace
}  // namespace orvanta::test
