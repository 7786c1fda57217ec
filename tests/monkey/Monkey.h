#pragma once

#include <random>
#include <string>

#include "monkey/MonkeyDisc.h"

namespace orvanta::test {

/// What the monkeys of a run have seen and done.
struct Figures {
  long steps = 0, discs = 0, shells = 0, exits = 0;
  long details = 0, starts = 0, viewers = 0, films = 0, messages = 0, nested = 0;
  int depth = 0;
};

/// A user who does anything at any time, also while the program waits inside something, and who looks after
/// each step whether what must always hold does hold. Steps come in bursts; after a burst the monkey only
/// closes what stands open, and the program must come to rest.
class Monkey {
 public:
  Monkey(TestShell& user, const MonkeyDisc& disc, std::mt19937& random, Figures& figures)
      : user_(user), disc_(disc), random_(random), figures_(figures) {}

  /// Lives for so many steps, or until the program ends or something is wrong.
  void Live(long steps);
  /// The first thing that was wrong; empty if nothing was.
  const std::string& Fault() const { return fault_; }

 private:
  void Burst(int steps);
  void Step();
  void Calm();
  void GoUp();

  void Act();
  void Click(Point at);
  void Hold(int button);
  void Drag();
  void ChangeWindows();
  Point MiddleOf(const Control& control);
  Point Somewhere();
  Point OnControl(Form& form);
  Form& Front();

  void Check();
  void CheckTransport();
  void CheckRest();
  void Must(bool holds, const char* what);
  MainForm& Main() { return user_.Main(); }
  HeadlessHost& Host() { return user_.host; }
  int Depth() { return user_.host.Loop().Depth(); }

  TestShell& user_;
  const MonkeyDisc& disc_;
  std::mt19937& random_;
  Figures& figures_;
  std::string fault_;
  int stepsLeft_ = 0;
  int calms_ = 0;
  bool resting_ = true;   // the burst is over and the program came back to its loop
  bool meddled_ = false;  // the mouse did something while the program waited inside something
  int held_ = 0;
  std::size_t designed_ = 0;  // controls of the main window that are there in every view
};

}  // namespace orvanta::test
