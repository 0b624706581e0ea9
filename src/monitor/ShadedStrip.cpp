#include "monitor/ShadedStrip.h"

#include <QPainter>

#include "widgets/Captions.h"
#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;

constexpr int SideMargin = 20;  // in line with the list above
constexpr int Gap = 6;
constexpr QSize PictureSize{14, 14};

ShadedStrip::ShadedStrip(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void ShadedStrip::setLine(const StripLine& line) {
  if (line == m_line) return;
  m_line = line;
  const QString whole = line.more.isEmpty() ? line.text : line.text + u' ' + line.more;
  setText(whole);
  setAccessibleName(whole);
  setAccessibleDescription(line.details);
  setToolTip(plainToolTip(line.details));
  update();
}

static QColor mixed(const QColor& a, const QColor& b, double share) {
  const auto part = [share](int from, int to) { return static_cast<int>(from + (to - from) * share); };
  return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

void ShadedStrip::paintGround(QPainter& painter) const {
  const QColor ground = palette().color(QPalette::Active, QPalette::Window);
  const QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
  QLinearGradient shade(0, 0, 0, height());
  shade.setColorAt(0, mixed(ground, ink, 0.04));
  shade.setColorAt(1, mixed(ground, ink, 0.13));
  painter.fillRect(rect(), shade);
  painter.fillRect(QRect(0, 0, width(), 1), mixed(ground, ink, 0.25));
}

QString ShadedStrip::picture() const {
  switch (m_line.tone) {
    case StripLine::Tone::Quiet:
      return {};
    case StripLine::Tone::Sending:
      return u"up_status_active"_s;
    case StripLine::Tone::Wrong:
      return u"up_status_fail"_s;
    case StripLine::Tone::Well:
      return u"up_status_check"_s;
  }
  return {};
}

void ShadedStrip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paintGround(painter);
  QRect room = rect().adjusted(SideMargin, 1, -SideMargin, 0);
  const QString name = picture();
  if (!name.isEmpty()) {
    const QPoint at(room.left(), room.top() + (room.height() - PictureSize.height()) / 2);
    painter.drawPixmap(at, Pictures::load(name, devicePixelRatioF(), PictureSize));
    room.setLeft(room.left() + PictureSize.width() + Gap);
  }
  painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
  const QFontMetrics metrics = painter.fontMetrics();
  const int moreWidth = m_line.more.isEmpty() ? 0 : metrics.horizontalAdvance(m_line.more) + Gap;
  const QString text = metrics.elidedText(m_line.text, Qt::ElideRight, room.width() - moreWidth);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
  if (moreWidth == 0) return;
  room.setLeft(room.left() + metrics.horizontalAdvance(text) + Gap);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, m_line.more);
}
