#pragma once

#include <cstdint>

#include "buttons/PictureButtons.h"
#include "platform/ActiveMovie.h"
#include "platform/ControlArray.h"
#include "platform/Form.h"
#include "platform/ImageList.h"
#include "platform/Timer.h"

namespace orvanta {

class Shell;

/// The cinema window: an entry's film on a picture of a cinema, with five buttons.
class frmKino : public Form {
 public:
  explicit frmKino(Shell& shell);

  PictureBox Picture1;
  ControlArray<Image> ButtonM;
  ActiveMovie AM0;
  Timer Timer1;
  ImageList ImageList1;

  /// The latched button reflects the state of the film; None means that the film has run to its end.
  KinoButton PressedButton = KinoButton::Play;

  void Form_Load() override;
  void Form_Activate() override;
  void Form_Unload() override;
  void ButtonM_Click(KinoButton button);
  AccessibleNode Accessible() const override;

 protected:
  void CloseRequested() override { Unload(); }

 private:
  void KinoButtonsInit();
  void Timer1_Timer();
  void PlaceFilm();
  void Press(KinoButton button);
  void Restore(KinoButton button);
  void Play();
  void StopAndClose();
  void Pause();
  void SetFullScreen(bool on);

  Shell& shell_;
  bool KinoPlaced = false;
};

/// The left or top edge, in pixels, of something `extent` pixels long that is centred on `middle`. Half of an
/// odd extent is rounded to even.
std::int16_t CentredEdge(std::int16_t middle, double extent);

}  // namespace orvanta
