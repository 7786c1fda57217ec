#include "platform/desktop/window/Fonts.h"

#include <QFontDatabase>
#include <QStringList>

#include "platform/FontFamilies.h"

namespace orvanta {

QFont ScreenFont(const Font& font) {
  QStringList families;
  for (const std::string& family : FontFamilies(font.name)) families.append(QString::fromStdString(family));
  QFont screen;
  screen.setFamilies(families);
  screen.setBold(font.bold);
  screen.setPixelSize(PixelSize(font));
  return screen;
}

void PrivateFonts::Add(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return;
  const int id = QFontDatabase::addApplicationFont(QString::fromStdString(file.string()));
  if (id >= 0) added_[file].push_back(id);
}

void PrivateFonts::Remove(const std::filesystem::path& file) {
  const auto ids = added_.find(file);
  if (ids == added_.end()) return;
  QFontDatabase::removeApplicationFont(ids->second.back());
  ids->second.pop_back();
  if (ids->second.empty()) added_.erase(ids);
}

}  // namespace orvanta
