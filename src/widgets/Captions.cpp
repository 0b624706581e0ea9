#include "widgets/Captions.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <algorithm>

#include "widgets/Mnemonics.h"

using namespace Qt::Literals::StringLiterals;

constexpr int SmallestPixels = 9;
constexpr qsizetype LongestToolTipLine = 80;
constexpr int FrameWidth = 4;  // what the button's style draws on either side of a caption

bool fitFont(QWidget& control, const QString& text, int room) {
  QFont font = control.font();
  int pixels = QFontInfo(font).pixelSize();
  while (pixels > SmallestPixels &&
         (QFontMetrics(font).horizontalAdvance(text) > room || QFontMetrics(font).height() > control.height()))
    font.setPixelSize(--pixels);
  control.setFont(font);
  return QFontMetrics(font).horizontalAdvance(text) <= room;
}

void setFittedCaption(QPushButton& button, const QString& caption) {
  const QString read = withoutMnemonic(caption);
  const bool fits = fitFont(button, read, button.width() - 2 * FrameWidth);
  button.setText(caption);
  button.setToolTip(fits ? QString() : plainToolTip(read));
}

/// U+200E, U+200F, U+061C, the embeddings and overrides, the isolates.
static bool turnsDirection(QChar c) {
  const char16_t code = c.unicode();
  return code == 0x200E || code == 0x200F || code == 0x061C || (code >= 0x202A && code <= 0x202E) ||
         (code >= 0x2066 && code <= 0x2069);
}

QString onOneLine(const QString& text, qsizetype limit) {
  QString line;
  for (const QChar c : QStringView(text).left(limit)) {
    if (turnsDirection(c)) continue;
    const bool breaks =
        c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    line += breaks ? u' ' : c;
  }
  if (text.size() > limit) line += u'…';
  return line;
}

/// The toolkit breaks each tool tip to a narrow column, also a path of a few folders.
static bool fitsScreen(const QString& text) {
  const QStringList lines = text.split(u'\n');
  return std::all_of(lines.begin(), lines.end(), [](const QString& line) { return line.size() <= LongestToolTipLine; });
}

QString plainToolTip(const QString& text) {
  if (text.isEmpty()) return {};
  const QString style = fitsScreen(text) ? u" style='white-space:pre'"_s : QString();
  return u"<qt><div%1>"_s.arg(style) + text.toHtmlEscaped().replace(u'\n', u"<br>"_s) + u"</div></qt>"_s;
}

QString requiredToolTip(const QString& heading, const QStringList& captions) {
  return captions.isEmpty() ? QString() : plainToolTip(heading + u"\n– "_s + captions.join(u"\n– "_s));
}
