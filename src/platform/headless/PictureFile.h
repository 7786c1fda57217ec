#pragma once

#include <filesystem>
#include <string>

#include "platform/Picture.h"

namespace orvanta {

/// A picture of which only the file name and the size are known.
class PictureFile : public Picture {
 public:
  PictureFile(std::string ofName, Size size) : name(std::move(ofName)), size_(size) {}
  Size PixelSize() const override { return size_; }

  const std::string name;

 private:
  Size size_;
};

/// Reads the size from the header of a GIF or PNG file. Null if the file is neither, or ends before its
/// header does.
PicturePtr ReadPictureFile(const std::filesystem::path& file);

}  // namespace orvanta
