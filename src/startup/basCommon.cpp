#include "startup/basCommon.h"

#include "startup/Shell.h"

namespace orvanta {

void basCommon::DociagToFront() {
  for (Shell::StripSlot* strip : shell_.Strips()) (*strip)->Show();
  shell_.MainForm->Show();
}

}  // namespace orvanta
