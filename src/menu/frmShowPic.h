#pragma once

#include "platform/Controls.h"
#include "platform/Form.h"

namespace orvanta {

class Shell;

/// Shows one screenshot at its real size until it is clicked.
class frmShowPic : public Form {
 public:
  explicit frmShowPic(Shell& shell);

  Image picPic;
  Label lblTxt;

  void Form_Load() override;
  void Form_Unload() override;
  AccessibleNode Accessible() const override;

 protected:
  void CloseRequested() override { Unload(); }

 private:
  Shell& shell_;
};

}  // namespace orvanta
