#include "platform/desktop/window/QtScaling.h"

#include <QFont>
#include <QProxyStyle>
#include <QScreen>
#include <QWidget>
#include <cmath>
#include <memory>

#include "platform/desktop/window/Zoom.h"

namespace orvanta {

namespace {

/// The desktop's style with every distance so many times as large.
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
}

}  // namespace orvanta
