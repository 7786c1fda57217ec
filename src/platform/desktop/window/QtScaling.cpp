#include "platform/desktop/window/QtScaling.h"

#include <QFont>
#include <QLabel>
#include <QMessageBox>
#include <QProxyStyle>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <memory>

#include "platform/desktop/window/Zoom.h"

namespace orvanta {

namespace {

/// The desktop's style with all distances multiplied.
class LargeStyle : public QProxyStyle {
 public:
  explicit LargeStyle(double times) : times_(times) {}
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    return static_cast<int>(std::lround(times_ * QProxyStyle::pixelMetric(metric, option, widget)));
  }

 private:
  const double times_;
};

}  // namespace

void SwitchOffQtScaling() {
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  qunsetenv("QT_SCALE_FACTOR");
  qunsetenv("QT_SCREEN_SCALE_FACTORS");
}

int ZoomOfScreen(const QScreen& screen, std::optional<int> chosen) {
  const QSize size = screen.geometry().size();
  return chosen ? *chosen : ZoomFor({size.width(), size.height()}, screen.logicalDotsPerInch());
}

void MakeReadable(QWidget& window, int zoom) {
  const double times = TextZoom(zoom, window.screen()->logicalDotsPerInch());
  if (times <= 1) return;
  QFont font = window.font();
  font.setPointSizeF(font.pointSizeF() * times);
  window.setFont(font);
  auto style = std::make_unique<LargeStyle>(times);
  style->setParent(&window);
  window.setStyle(style.release());
  auto* box = qobject_cast<QMessageBox*>(&window);
  if (!box) return;
  // The icon has its own size, whatever the style says.
  if (const QPixmap icon = box->iconPixmap(); !icon.isNull())
    box->setIconPixmap(
        icon.scaled((QSizeF(icon.size()) * times).toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
  // Qt breaks the lines of a message at 500 pixels, however large the letters are.
  constexpr int kLine = 400;
  if (auto* text = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
    text->setMinimumWidth(std::min(text->sizeHint().width(), static_cast<int>(kLine * times)));
}

}  // namespace orvanta
