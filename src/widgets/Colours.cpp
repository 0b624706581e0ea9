#include "widgets/Colours.h"

static bool isDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

QColor requiredColor(const QPalette& palette) { return isDark(palette) ? QColor(255, 120, 120) : QColor(255, 0, 0); }

QColor plainColor(const QPalette& palette) {
  return isDark(palette) ? palette.color(QPalette::WindowText) : QColor(Qt::black);
}

QPalette readableCue(const QPalette& palette) {
  QColor cue = palette.color(QPalette::Text);
  cue.setAlpha(128);
  QPalette readable;
  readable.setColor(QPalette::PlaceholderText, cue);
  return readable;
}

QPalette quieter(const QPalette& palette, int parts) {
  const QColor text = palette.color(QPalette::WindowText), ground = palette.color(QPalette::Window);
  const auto mixed = [parts](int a, int b) { return ((8 - parts) * a + parts * b) / 8; };
  QPalette quiet;
  quiet.setColor(QPalette::WindowText, QColor(mixed(text.red(), ground.red()), mixed(text.green(), ground.green()),
                                              mixed(text.blue(), ground.blue())));
  return quiet;
}

QPalette noteColours(const QPalette& palette, bool wrong) {
  if (!wrong) return quieter(palette, 2);
  QPalette red;
  red.setColor(QPalette::WindowText, requiredColor(palette));
  return red;
}
