// The floor that the reference browser is measured against: a web view with nothing around it,
// which says on its standard output when the page that it was given is there.

#include <unistd.h>

#include <QApplication>
#include <QUrl>
#include <QWebEngineView>
#include <cstdio>

int main(int argc, char* argv[]) {
  if (::geteuid() == 0) {
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  }
  const QApplication application(argc, argv);
  QWebEngineView view;
  QObject::connect(&view, &QWebEngineView::loadFinished, &view, [] {
    std::puts("shown");
    std::fflush(stdout);
  });
  view.resize(960, 760);
  view.load(QUrl::fromLocalFile(QApplication::arguments().value(1)));
  view.show();
  return QApplication::exec();
}
