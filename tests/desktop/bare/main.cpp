// The least that Qt can do: one window with one picture, ZOOM times as large. What starting the program costs
// is compared with it.

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace {

class Window : public QWidget {
 public:
  Window(QPixmap picture, int zoom)
      : QWidget(nullptr, Qt::FramelessWindowHint), picture_(std::move(picture)) {
    setFixedSize(640 * zoom, 478 * zoom);
  }

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(rect(), picture_); }

 private:
  const QPixmap picture_;
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  Window window(QPixmap(qEnvironmentVariable("PICTURE")), qEnvironmentVariableIntValue("ZOOM"));
  window.show();
  return QApplication::exec();
}
