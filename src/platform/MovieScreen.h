#pragma once

#include "platform/Form.h"

namespace orvanta {

class ActiveMovie;

/// A film that fills the screen: the current picture as large as possible, on black.
class MovieScreen : public Form {
 public:
  MovieScreen(Form& owner, const ActiveMovie& movie);
  /// Shows it over the whole screen as it is now.
  void Cover();
  void Paint(Canvas& canvas, const Rect& area) const override;
  AccessibleNode Accessible() const override;

 protected:
  void Form_Click() override;

 private:
  const ActiveMovie& movie_;
};

}  // namespace orvanta
