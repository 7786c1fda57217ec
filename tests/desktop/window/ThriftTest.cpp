// What the program costs. Each limit is a share of something measured in the same run, or of one processor.

#include <QImageReader>
#include <algorithm>
#include <ctime>

#include "desktop/support/Programs.h"
#include "desktop/support/ShellOnScreen.h"
#include "support/Project.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

class Thrift : public ShellOnScreen {
 protected:
  const fs::path demo_ = ProjectFolder() / "discs/demo/Data";

  /// What lies between the start of a program and its first window, in seconds.
  struct Beginning {
    double clock = 100, processor = 100;
    void Lessen(const Beginning& other) {
      clock = std::min(clock, other.clock);
      processor = std::min(processor, other.processor);
    }
  };
  Beginning UntilTheFirstWindow(const std::string& command) const {
    // The window manager may not be done with the window before.
    EXPECT_TRUE(Soon([&] { return screen_.Windows().size() == 1; }));
    const Screen watcher;
    const auto begin = Clock::now();
    const Program program({command});
    EXPECT_TRUE(watcher.AwaitAppearance());
    const Beginning result{SecondsSince(begin), program.MainThread()};
    EXPECT_TRUE(Soon([&] { return screen_.Windows().size() == 2; }));
    return result;
  }
};

// Faults: a timer that repaints what has not changed, a wait that spins.
TEST_F(Thrift, AtRestNothingIsPaintedAndTheProcessorSleeps) {
  disc_.Menu("MAINMENU", {"Programy"});
  Start();
  PointAt(MiddleOf(LabelBox(0)));
  std::this_thread::sleep_for(std::chrono::milliseconds(500));
  std::vector<Screen> watchers(Windows().size());
  for (std::size_t i = 0; i < watchers.size(); ++i) watchers[i].WatchDrawing(Windows()[i]);
  double share = 1;
  for (int round = 0; round < 2; ++round) {
    const double before = program_->Processor();
    const auto begin = Clock::now();
    std::this_thread::sleep_for(std::chrono::seconds(3));
    share = std::min(share, (program_->Processor() - before) / SecondsSince(begin));
  }
  EXPECT_LE(share, 0.005);
  for (Screen& watcher : watchers) EXPECT_EQ(watcher.DrawingSeen(), 0);
  // The watchers do see what is drawn.
  PointAside();
  EXPECT_TRUE(Soon([&] { return watchers.back().DrawingSeen() > 0; }));
}

// Fault: work or waiting before the start screen that can come later.
TEST_F(Thrift, TheFirstWindowIsThereSoon) {
  fs::copy_file(demo_ / "start.gif", disc_.Data() / "startpic.gif", fs::copy_options::overwrite_existing);
  setenv("PICTURE", (disc_.Data() / "startpic.gif").c_str(), 1);
  setenv("ZOOM", std::to_string(screen_.Zoom()).c_str(), 1);
  Beginning bare, ours;
  for (int round = 0; round < 10; ++round) {
    bare.Lessen(UntilTheFirstWindow(BareWindowProgram()));
    ours.Lessen(UntilTheFirstWindow(disc_.Folder() / "orvanta"));
  }
  // The clock depends on what else the machine does, so it only tells of a wait that does not belong there.
  EXPECT_LE(ours.processor, 1.5 * bare.processor);
  EXPECT_LE(ours.clock, bare.clock + 0.2);
}

// Fault: labels out of sight that are painted, measured or reloaded at each move.
TEST_F(Thrift, ADragOverAThousandLabelsIsCheap) {
  disc_.Menu("MAINMENU", std::vector<std::string>(1001, "Pozycja 1000"));
  Start();
  const Point knob = InMain(Point{90 + 455, 140 + 50});
  const auto knobAt = [&](int y) { return screen_.Pixel(InMain(Point{90 + 448, 140 + y})) == kKnob; };
  ASSERT_TRUE(Soon([&] { return knobAt(40); }));
  screen_.MoveMouse(knob);
  screen_.Press();
  screen_.Rest();
  const double before = program_->Processor();
  constexpr int kMoves = 200;
  for (int y = 1; y <= kMoves; ++y) {
    screen_.MoveMouse({knob.x, knob.y + y});
    ASSERT_TRUE(Soon([&] { return knobAt(40 + y + 19); }));
  }
  const double each = (program_->Processor() - before) / kMoves;
  screen_.Release();
  EXPECT_LE(each, 0.002 * screen_.Zoom());
}

// Fault: pictures that are read twice, scaled again and again or painted while they are out of sight.
TEST_F(Thrift, OpeningAnEntryCostsLittleMoreThanItsPictures) {
  const fs::path art = disc_.Data() / "art.gif";
  fs::copy_file(demo_ / "start.gif", art);
  disc_.Picture("dot.gif", 8, 8);
  disc_.Menu("MAINMENU", {"Obrazki", "Kropki"});
  for (const std::string entry : {"Obrazki", "Kropki"}) {
    disc_.Entry(entry, {{"Execute", "%:\\brak.exe"}});
    for (int shot = 1; shot <= 6; ++shot)
      disc_.Set(entry, "Shot" + std::to_string(shot), entry == "Obrazki" ? "art.gif" : "dot.gif");
  }
  Start();
  const auto opening = [&](int index) {
    PointAt(MiddleOf(LabelBox(index)));
    screen_.Rest();
    screen_.Rest();
    const double before = program_->Processor();
    ClickMain(MiddleOf(LabelBox(index)));
    EXPECT_TRUE(Becomes({388 + 148, 184 + 30}, kKnob));
    screen_.Rest();
    const double used = program_->Processor() - before;
    ClickMain({515, 110});
    EXPECT_TRUE(Becomes({380, 300}, kArea));
    return used;
  };
  const auto decoding = [&] {
    timespec begin{}, end{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &begin);
    for (int i = 0; i < 6; ++i)
      EXPECT_FALSE(QImageReader(QString::fromStdString(art.string())).read().isNull());
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &end);
    return static_cast<double>(end.tv_sec - begin.tv_sec) +
           static_cast<double>(end.tv_nsec - begin.tv_nsec) / 1e9;
  };
  double pictures = 1, dots = 1, alone = 1;
  for (int round = 0; round < 4; ++round) {
    pictures = std::min(pictures, opening(0));
    dots = std::min(dots, opening(1));
    alone = std::min(alone, decoding());
  }
  EXPECT_LE(pictures - dots, 1.3 * alone)
      << pictures << " s less " << dots << " s, against " << alone << " s";
}

}  // namespace
}  // namespace orvanta::test
