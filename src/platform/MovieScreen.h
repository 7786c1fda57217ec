#pragma once

#include "platform/Form.h"

namespace orvanta {

class ActiveMovie;

/// The whole screen while it shows a film: black, with the present picture as large as it fits.
class MovieScreen : public Form {
 public:
  MovieScreen(Form& owner, const ActiveMovie& movie);
  void Paint(Canvas& canvas, const Rect& area) const override;
  AccessibleNode Accessible() const override;

 protected:
  void Form_Click() override;

 private:
  const ActiveMovie& movie_;
};

}  // namespace orvanta
