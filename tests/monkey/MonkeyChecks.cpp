// What holds whatever the user does.

#include "monkey/Monkey.h"
#include "support/EntryDisc.h"

namespace orvanta::test {

void Monkey::Must(bool holds, const char* what) {
  if (!holds && fault_.empty()) fault_ = std::string(what) + ", at " + std::to_string(Host().Now()) + " ms";
}

void Monkey::Check() {
  MainForm& form = Main();
  const Image &on = form.ButtonM(1), &off = form.ButtonM(2);
  Must(on.Visible != off.Visible, "one of the two sound buttons is there");
  Must(on.Visible == on.Enabled && off.Visible == off.Enabled, "the hidden sound button takes no click");
  Must(form.MenuLevel >= 0 && static_cast<std::size_t>(form.MenuLevel) < form.MenuPath.size(),
       "the level is one of the path");
  Must(!form.imgPomoc.Visible || !form.imgSeven.Visible, "at most one page is open");
  Must(form.Controls().size() ==
           designed_ + static_cast<std::size_t>(form.lblPos1.UBound() + form.picShot.UBound()),
       "the controls are those of the design and of the two arrays");
  CheckTransport();
  figures_.viewers += user_.shell.modMain.ShowPicOpen;
  figures_.films += user_.shell.frmKino.Loaded() != nullptr;
  figures_.details += !form.picTlo.Visible;
}

void Monkey::CheckTransport() {
  MainForm& form = Main();
  const int latch = form.PressedButton, state = form.AM3.CurrentState();
  const auto looks = [&](int button, int entry) {
    return form.ButtonM(button).Picture() == form.ImageList1(entry);
  };
  Must(latch == -1 || (latch >= 4 && latch <= 6), "the latch is one of the transport buttons");
  if (latch == 5) Must(looks(5, 18), "a latched Pauza looks pressed");
  // What follows holds unless the mouse has meddled with a wait.
  if (meddled_ || Depth() > 0 || form.picTlo.Visible || !form.ButtonM(6).Visible) return;
  if (latch == 4) Must(state != ActiveMovie::kPaused, "a latched Start means that music plays");
  if (latch == 5) Must(state == ActiveMovie::kPaused, "a latched Pauza means that music is paused");
  if (latch == 6) {
    Must(state <= ActiveMovie::kStopped, "a latched Stop means that nothing plays");
    Must(looks(6, 21), "a latched Stop looks pressed");
  }
}

void Monkey::CheckRest() {
  const Shell& shell = user_.shell;
  Must(Depth() == 0, "nothing waits");
  Must(!shell.frmKino.Loaded() && !shell.frmShowPic.Loaded(), "no window is left open");
  Must(!shell.modMain.ShowPicOpen, "the viewer is known to be closed");
  Must(Main().MousePointer == Form::kDefaultPointer, "the hourglass is gone");
  Must(Main().Timer1.Enabled, "the tick goes on");
  std::size_t loaded = 1;
  for (const Form* strip : std::initializer_list<const Form*>{
           shell.frmDociagLewo.Loaded(), shell.frmDociagGora.Loaded(), shell.frmDociagPrawo1.Loaded(),
           shell.frmDociagPrawo2.Loaded(), shell.frmDociagPrawo3.Loaded()}) {
    loaded += strip != nullptr;
  }
  Must(Host().windows.size() == loaded, "no window outlives its form");
}

}  // namespace orvanta::test
