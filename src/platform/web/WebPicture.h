#pragma once

#include "platform/Picture.h"
#include "platform/web/Browser.h"

namespace orvanta {

/// A picture that the browser has decoded.
class WebPicture : public Picture {
 public:
  WebPicture(int ofBrowser, Size size) : number(ofBrowser), size_(size) {}
  ~WebPicture() override { BrowserDropPicture(number); }
  WebPicture(const WebPicture&) = delete;
  WebPicture& operator=(const WebPicture&) = delete;
  Size PixelSize() const override { return size_; }

  const int number;  ///< the browser's

 private:
  Size size_;
};

}  // namespace orvanta
