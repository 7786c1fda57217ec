#pragma once

#include <cstdint>

#include "platform/ActiveMovie.h"
#include "platform/Form.h"
#include "platform/Timer.h"

namespace orvanta {

class Shell;

/// The start screen: a picture, a strip below it and a voice. It finds out whether sound can be played.
class frmReklama : public Form {
 public:
  explicit frmReklama(Shell& shell);

  Image Picture1;
  PictureBox Picture2;
  ActiveMovie AMR;
  Timer Timer1;

  void Form_Load() override;
  AccessibleNode Accessible() const override;

 private:
  void Timer1_Timer();

  Shell& shell_;
  std::int16_t StartTick = 0;
};

}  // namespace orvanta
