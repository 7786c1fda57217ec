#pragma once

#include <memory>

namespace orvanta {

/// Width and height in pixels.
struct Size {
  int width = 0;
  int height = 0;
  bool empty() const { return width <= 0 || height <= 0; }
  bool operator==(const Size&) const = default;
};

/// A loaded picture at its real size. Only the host that made it can paint it.
class Picture {
 public:
  virtual ~Picture() = default;
  virtual Size size() const = 0;
};

/// Pictures are shared and never changed. A null pointer is the empty picture, of size 0.
using PicturePtr = std::shared_ptr<const Picture>;

}  // namespace orvanta
