#include "practice/Screenshot.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

using namespace Qt::Literals::StringLiterals;

QRect occupiedPart(const QImage& screen) {
  const QImage image = screen.convertToFormat(QImage::Format_RGB32);
  if (image.isNull()) return {};
  const QRgb ground = image.pixel(image.width() - 1, image.height() - 1);
  QRect part;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    for (int x = 0; x < image.width(); ++x)
      if (line[x] != ground) part |= QRect(x, y, 1, 1);
  }
  return part;
}

QString saveScreenshot(const QString& file) {
  QScreen* screen = QGuiApplication::primaryScreen();
  const QImage image = screen ? screen->grabWindow(0).toImage() : QImage();
  const QRect part = occupiedPart(image);
  if (part.isEmpty()) return u"The screen is empty: no window to take a picture of."_s;
  return image.copy(part).save(file, "PNG") ? QString() : u"%1 could not be written."_s.arg(file);
}
