// Turns a drawn picture (SVG) into the pixels that the program shows, at build time, so that
// neither the drawing library nor its time is spent when the program starts.
//
//   tessaly-render PICTURE.svg OUTPUT WIDTH HEIGHT   (pixels; the format follows OUTPUT's ending)

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char* argv[]) {
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 5) {
    std::fputs("usage: tessaly-render PICTURE.svg OUTPUT WIDTH HEIGHT\n", stderr);
    return 2;
  }
  QSvgRenderer drawing(arguments[1]);
  const QSize size(arguments[3].toInt(), arguments[4].toInt());
  const bool opaque = arguments[2].endsWith(QLatin1String(".bmp"));
  QImage image(size, opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
  image.fill(opaque ? Qt::white : Qt::transparent);
  QPainter painter(&image);
  drawing.render(&painter);
  painter.end();
  if (!drawing.isValid() || size.isEmpty() || !image.save(arguments[2])) {
    std::fprintf(stderr, "tessaly-render: cannot draw %s to %s\n", qPrintable(arguments[1]),
                 qPrintable(arguments[2]));
    return 1;
  }
  return 0;
}
