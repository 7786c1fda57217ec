#pragma once

#include <QFont>
#include <filesystem>
#include <map>
#include <vector>

#include "platform/Canvas.h"

namespace orvanta {

/// The font that a text is painted with: a font of the disc or an installed one with that name, otherwise a
/// Liberation font, whose letters have the same widths as those of the fonts that discs ask for. 72 points
/// are 96 pixels.
QFont ScreenFont(const Font& font);

/// The font files of the disc, which only this program can use.
class PrivateFonts {
 public:
  /// A file that is not a font changes nothing.
  void Add(const std::filesystem::path& file);
  void Remove(const std::filesystem::path& file);

 private:
  std::map<std::filesystem::path, std::vector<int>> added_;
};

}  // namespace orvanta
