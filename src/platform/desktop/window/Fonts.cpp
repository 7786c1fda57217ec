#include "platform/desktop/window/Fonts.h"

#include <QFontDatabase>
#include <QStringList>
#include <cmath>

namespace orvanta {

namespace {

/// Liberation's stand-in for a font of the old desktop; empty for any other.
QString StandIn(const QString& name) {
  static constexpr struct {
    const char* old;
    const char* now;
  } kTable[] = {{"MS Sans Serif", "Liberation Sans"}, {"Microsoft Sans Serif", "Liberation Sans"},
                {"Arial", "Liberation Sans"},         {"Helvetica", "Liberation Sans"},
                {"Tahoma", "Liberation Sans"},        {"Verdana", "Liberation Sans"},
                {"System", "Liberation Sans"},        {"Times New Roman", "Liberation Serif"},
                {"MS Serif", "Liberation Serif"},     {"Courier New", "Liberation Mono"},
                {"Courier", "Liberation Mono"}};
  // "Arial CE" was the same font with another code page.
  const QString plain = name.endsWith(" CE", Qt::CaseInsensitive) ? name.chopped(3) : name;
  for (const auto& entry : kTable) {
    if (plain.compare(QLatin1StringView(entry.old), Qt::CaseInsensitive) == 0)
      return QString::fromLatin1(entry.now);
  }
  return {};
}

}  // namespace

QFont ScreenFont(const Font& font) {
  const QString name = QString::fromStdString(font.name);
  QFont screen;
  screen.setFamilies(QStringList{name, StandIn(name), QStringLiteral("Liberation Sans")});
  screen.setBold(font.bold);
  screen.setPixelSize(std::max(1, static_cast<int>(std::nearbyint(font.size * 96 / 72))));
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
