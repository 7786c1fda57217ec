#pragma once

#include <QFont>
#include <filesystem>
#include <map>
#include <vector>

#include "platform/Canvas.h"

namespace orvanta {

/// The font that a text is painted with: the disc's own or an installed one of that name, else Liberation,
/// whose letters are as wide as those of the fonts that discs ask for. Points are taken at 96 pixels to the
/// inch.
QFont ScreenFont(const Font& font);

/// The font files of the disc, known to this program alone.
class PrivateFonts {
 public:
  /// A file that is no font changes nothing.
  void Add(const std::filesystem::path& file);
  void Remove(const std::filesystem::path& file);

 private:
  std::map<std::filesystem::path, std::vector<int>> added_;
};

}  // namespace orvanta
