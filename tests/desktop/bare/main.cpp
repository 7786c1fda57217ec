// The least that Qt can do: one window with one picture. What starting the program costs is compared with it.

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace {

class Window : public QWidget {
 public:
  explicit Window(QPixmap picture)
      : QWidget(nullptr, Qt::FramelessWindowHint), picture_(std::move(picture)) {}

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, picture_); }

 private:
  const QPixmap picture_;
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  Window window{QPixmap(qEnvironmentVariable("PICTURE"))};
  window.setFixedSize(640, 478);
  window.show();
  return QApplication::exec();
}
