// The least that Qt can do: one window with one picture. What starting the program costs is compared with it.

#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QLabel window(nullptr, Qt::FramelessWindowHint);
  window.setPixmap(QPixmap(qEnvironmentVariable("PICTURE")));
  window.setFixedSize(640, 478);
  window.show();
  return QApplication::exec();
}
