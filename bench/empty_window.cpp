// A program that shows one empty widget and ends when it stands: what the start of ours is measured against.
#include <QApplication>
#include <QTimer>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.show();
  QTimer::singleShot(0, &application, &QApplication::quit);
  return QApplication::exec();
}
