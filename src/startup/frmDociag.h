#pragma once

#include "config/Schema.h"
#include "platform/Controls.h"
#include "platform/Form.h"

namespace orvanta {

class Shell;

/// One of the five strips: the side of the main window where it starts, and its distance in pixels from the
/// window's upper edge (for the strip at the top, from its left edge).
struct EdgeStrip {
  enum class Side { Left, Top, Right };
  const char* name;
  KeyRef<Kind::Picture> picture;
  Side side;
  int offset;
};

// The numbers of the keys count from top to bottom, those of the forms from bottom to top.
inline constexpr EdgeStrip kDociagLewo{"frmDociagLewo", {"GLOBAL", "LeftPic"}, EdgeStrip::Side::Left, 137};
inline constexpr EdgeStrip kDociagGora{"frmDociagGora", {"GLOBAL", "UpperPic"}, EdgeStrip::Side::Top, 208};
inline constexpr EdgeStrip kDociagPrawo1{
    "frmDociagPrawo1", {"GLOBAL", "RightPic3"}, EdgeStrip::Side::Right, 424};
inline constexpr EdgeStrip kDociagPrawo2{
    "frmDociagPrawo2", {"GLOBAL", "RightPic2"}, EdgeStrip::Side::Right, 369};
inline constexpr EdgeStrip kDociagPrawo3{
    "frmDociagPrawo3", {"GLOBAL", "RightPic1"}, EdgeStrip::Side::Right, 314};

/// A strip from a tab of the main window's outline to the edge of the screen: one stretched picture. It takes
/// its position from the main window when it is loaded. A click on it raises the whole group.
class frmDociag : public Form {
 public:
  frmDociag(Shell& shell, const EdgeStrip& strip);

  Image Image1;

  void Form_Load() override;
  AccessibleNode Accessible() const override { return {.role = AccessibleRole::Decoration}; }

 private:
  void SizeImage();
  void PlaceForm();

  Shell& shell_;
  const EdgeStrip strip_;
};

}  // namespace orvanta
