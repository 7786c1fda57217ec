#pragma once

#include <memory>

#include "platform/Geometry.h"

namespace orvanta {

/// A loaded picture at its own size. Only the host that loaded it can paint it.
class Picture {
 public:
  virtual ~Picture() = default;
  virtual Size PixelSize() const = 0;
};

/// Pictures are shared and never changed. A null pointer is the empty picture, of size 0.
using PicturePtr = std::shared_ptr<const Picture>;

}  // namespace orvanta
