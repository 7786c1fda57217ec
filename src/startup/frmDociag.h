#pragma once

#include <string>

#include "config/Schema.h"
#include "platform/Controls.h"
#include "platform/Form.h"

namespace orvanta {

class Shell;

/// A strip from a tab of the main window's outline to the edge of the screen: one stretched picture. It takes
/// its place from the main window when it is loaded. A click lifts the whole group.
class frmDociag : public Form {
 public:
  frmDociag(Shell& shell, const char* name, KeyRef<Kind::Picture> key);

  Image Image1;

  void Form_Load() override;

 protected:
  /// Sets the size of `Image1` that depends on the main window.
  virtual void SizeImage() = 0;
  /// Sets the form's place.
  virtual void PlaceForm() = 0;

  Shell& shell_;

 private:
  const KeyRef<Kind::Picture> key_;
};

class frmDociagLewo : public frmDociag {
 public:
  explicit frmDociagLewo(Shell& shell);

 protected:
  void SizeImage() override;
  void PlaceForm() override;
};

class frmDociagGora : public frmDociag {
 public:
  explicit frmDociagGora(Shell& shell);

 protected:
  void SizeImage() override;
  void PlaceForm() override;
};

/// One of the three on the right, at `top` pixels below the main window's upper edge.
class frmDociagPrawo : public frmDociag {
 public:
  frmDociagPrawo(Shell& shell, const char* name, KeyRef<Kind::Picture> key, int top);

 protected:
  void SizeImage() override;
  void PlaceForm() override;

 private:
  const int top_;
};

// The digits of the keys run downwards, those of the forms upwards.
struct frmDociagPrawo1 : frmDociagPrawo {
  explicit frmDociagPrawo1(Shell& shell);
};
struct frmDociagPrawo2 : frmDociagPrawo {
  explicit frmDociagPrawo2(Shell& shell);
};
struct frmDociagPrawo3 : frmDociagPrawo {
  explicit frmDociagPrawo3(Shell& shell);
};

}  // namespace orvanta
