#include "widgets/Colours.h"

QColor requiredColor(const QPalette& palette) {
  const bool dark = palette.color(QPalette::Window).lightness() < 128;
  return dark ? QColor(255, 120, 120) : QColor(255, 0, 0);
}

QPalette quieter(const QPalette& palette, int parts) {
  const QColor text = palette.color(QPalette::WindowText), ground = palette.color(QPalette::Window);
  const auto mixed = [parts](int a, int b) { return ((8 - parts) * a + parts * b) / 8; };
  QPalette quiet;
  quiet.setColor(QPalette::WindowText, QColor(mixed(text.red(), ground.red()), mixed(text.green(), ground.green()),
                                              mixed(text.blue(), ground.blue())));
  return quiet;
}
