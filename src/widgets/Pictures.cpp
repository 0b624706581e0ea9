#include "widgets/Pictures.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

static constexpr int LargestSmall = 32;  // edge up to which the icon's simpler drawing serves

// A static library's resources are linked in only when somebody names them.
static void initPictures() { Q_INIT_RESOURCE(resources); }

namespace Pictures {

static QString pathOf(const QString& name) {
  static const bool ready = (initPictures(), true);
  Q_UNUSED(ready)
  const QString whole = u":/pictures/"_s + name;
  return QFile::exists(whole) ? whole : whole + u".svg"_s;
}

QSize size(const QString& name) {
  static QHash<QString, QSize> known;
  const auto found = known.constFind(name);
  if (found != known.constEnd()) return *found;
  const QSvgRenderer drawing(pathOf(name));
  return *known.insert(name, drawing.isValid() ? drawing.defaultSize() : QSize());
}

QPixmap load(const QString& name, qreal devicePixelRatio, QSize logicalSize) {
  const QSizeF wanted = logicalSize.isEmpty() ? size(name) : logicalSize;
  const QSize pixels(static_cast<int>(std::ceil(wanted.width() * devicePixelRatio)),
                     static_cast<int>(std::ceil(wanted.height() * devicePixelRatio)));
  if (pixels.isEmpty()) return {};
  const QString key = u"vantry:%1:%2x%3@%4"_s.arg(name).arg(pixels.width()).arg(pixels.height()).arg(devicePixelRatio);
  QPixmap picture;
  if (QPixmapCache::find(key, &picture)) return picture;
  QSvgRenderer drawing(pathOf(name));
  if (!drawing.isValid()) return {};
  picture = QPixmap(pixels);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawing.render(&painter, QRectF(QPointF(), wanted * devicePixelRatio));
  painter.end();
  picture.setDevicePixelRatio(devicePixelRatio);
  QPixmapCache::insert(key, picture);
  return picture;
}

QIcon programIcon() {
  QIcon icon;
  for (const int edge : {16, 22, 24, 32, 48, 64, 128, 256, 512})
    icon.addPixmap(load(edge <= LargestSmall ? u"vantry-uploader-small"_s : u"vantry-uploader"_s, 1, {edge, edge}));
  return icon;
}

}  // namespace Pictures
