#pragma once
// A picture of the X screen, for a run without anybody to look. Needs a QGuiApplication on xcb; main thread.

#include <QImage>
#include <QString>

/// Saves the part of the screen that differs from its bare ground as a PNG. Gives the failure in words, or an empty
/// text.
[[nodiscard]] QString saveScreenshot(const QString& file);
/// The smallest rectangle that holds every pixel unlike the one in the bottom right corner; null if there is none.
[[nodiscard]] QRect occupiedPart(const QImage& screen);
