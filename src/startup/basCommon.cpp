#include "startup/basCommon.h"

#include "startup/Shell.h"

namespace orvanta {

void basCommon::DociagToFront() {
  shell_.frmDociagLewo->Show();
  shell_.frmDociagGora->Show();
  shell_.frmDociagPrawo1->Show();
  shell_.frmDociagPrawo2->Show();
  shell_.frmDociagPrawo3->Show();
  shell_.MainForm->Show();
}

}  // namespace orvanta
