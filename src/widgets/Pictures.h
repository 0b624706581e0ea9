#pragma once
// The program's own pictures by name (".svg" may be left out), drawn for the pixels of the screen that asks. Main
// thread; drawn pictures are kept in QPixmapCache.

#include <QIcon>
#include <QPixmap>
#include <QString>

namespace Pictures {
/// The size at which a picture was designed, in device-independent pixels; empty for an unknown name.
[[nodiscard]] QSize size(const QString& name);
/// The picture at `logicalSize`, or at its own size when that is empty; null for an unknown name.
[[nodiscard]] QPixmap load(const QString& name, qreal devicePixelRatio, QSize logicalSize = {});
[[nodiscard]] QIcon programIcon();
}  // namespace Pictures
