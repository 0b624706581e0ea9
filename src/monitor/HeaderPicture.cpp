#include "monitor/HeaderPicture.h"

#include <QPainter>

#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;

const QColor HeaderPicture::TextColor(0xc3, 0xce, 0xd8);

void HeaderPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const qreal ratio = devicePixelRatioF();
  painter.drawPixmap(0, 0, Pictures::load(u"banner"_s, ratio));
  painter.drawPixmap(width() - Pictures::size(u"banner_end"_s).width(), 0, Pictures::load(u"banner_end"_s, ratio));
}

PictureButton::PictureButton(const QString& picture, QWidget* parent) : QAbstractButton(parent), m_picture(picture) {
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
}

bool PictureButton::hitButton(const QPoint& /*position*/) const { return true; }

void PictureButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setOpacity(isDown() ? 0.7 : 1.0);
  painter.drawPixmap(0, 0, Pictures::load(m_picture, devicePixelRatioF()));
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
}
