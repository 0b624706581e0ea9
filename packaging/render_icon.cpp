// Renders an SVG as a square PNG.
//   render_icon SVG EDGE PNG

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
  const QStringList arguments = [&] {
    QStringList list;
    for (int i = 1; i < argc; ++i) list << QString::fromLocal8Bit(argv[i]);
    return list;
  }();
  const int edge = arguments.value(1).toInt();
  QSvgRenderer drawing(arguments.value(0));
  if (arguments.size() != 3 || edge < 1 || !drawing.isValid()) {
    std::fputs("usage: render_icon SVG EDGE PNG\n", stderr);
    return 2;
  }
  QImage icon(edge, edge, QImage::Format_ARGB32_Premultiplied);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  drawing.render(&painter);
  painter.end();
  if (icon.save(arguments[2], "PNG")) return 0;
  std::fprintf(stderr, "%s can't be written\n", argv[3]);
  return 1;
}
