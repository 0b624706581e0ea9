#include "admin/QuietLine.h"

#include <QFontInfo>
#include <QPainter>
#include <QTextLayout>

#include "widgets/Captions.h"

QuietLine::QuietLine(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  QFont small = font();
  small.setPixelSize(QFontInfo(small).pixelSize() - 1);
  setFont(small);
}

void QuietLine::say(const QString& text, const QString& detail) {
  setText(text);
  setToolTip(plainToolTip(detail.isEmpty() ? text : text + QStringLiteral("\n\n") + detail));
  setAccessibleDescription(text);
}

// A label breaks at blanks alone, and the name of a host has none.
void QuietLine::paintEvent(QPaintEvent* /*event*/) {
  QTextLayout layout(text(), font());
  QTextOption breaking;
  breaking.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(breaking);
  const int height = fontMetrics().lineSpacing(), most = qMax(1, this->height() / height);
  QStringList lines;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width());
    const QString rest = text().mid(line.textStart());
    const bool last = lines.size() == most - 1;
    lines << (last ? fontMetrics().elidedText(rest, Qt::ElideRight, width()) : rest.left(line.textLength()));
    if (last) break;
  }
  layout.endLayout();
  const int used = static_cast<int>(lines.size()) * height;
  int top = alignment() & Qt::AlignVCenter ? (this->height() - used) / 2 : 0;
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  for (const QString& line : std::as_const(lines)) {
    painter.drawText(QRect(0, top, width(), height), Qt::AlignLeft | Qt::AlignVCenter, line.trimmed());
    top += height;
  }
}
