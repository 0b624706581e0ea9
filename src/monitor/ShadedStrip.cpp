#include "monitor/ShadedStrip.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

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
  offerDetails();
  update();
}

QRect ShadedStrip::roomForText() const {
  const int before = picture().isEmpty() ? 0 : PictureSize.width() + Gap;
  return rect().adjusted(SideMargin + before, 1, -SideMargin, 0);
}

void ShadedStrip::offerDetails() {
  m_tellsLess = !m_line.details.isEmpty() &&
                (m_line.details != m_line.text || fontMetrics().horizontalAdvance(m_line.text) > roomForText().width());
  setFocusPolicy(m_tellsLess ? Qt::TabFocus : Qt::NoFocus);
  setCursor(m_tellsLess ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void ShadedStrip::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  offerDetails();
}

void ShadedStrip::mouseReleaseEvent(QMouseEvent* event) {
  QLabel::mouseReleaseEvent(event);
  if (m_tellsLess && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
    emit detailsWanted();
}

void ShadedStrip::keyPressEvent(QKeyEvent* event) {
  const bool pressed = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (m_tellsLess && pressed)
    emit detailsWanted();
  else
    QLabel::keyPressEvent(event);
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
  QRect room = roomForText();
  const QString name = picture();
  if (!name.isEmpty()) {
    const QPoint at(SideMargin, room.top() + (room.height() - PictureSize.height()) / 2);
    painter.drawPixmap(at, Pictures::load(name, devicePixelRatioF(), PictureSize));
  }
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect().adjusted(SideMargin - Gap, 2, Gap - SideMargin, -1);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
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
