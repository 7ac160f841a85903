// The floor that the program's start and size are measured against: a window with nothing in it.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.resize(767, 467);
  window.show();
  return QApplication::exec();
}
