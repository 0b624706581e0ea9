#include "monitor/HeaderPicture.h"

#include <QPainter>

#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;

const QColor HeaderPicture::TextColor(0xc3, 0xce, 0xd8);

constexpr int FadeWidth = 132;
constexpr int PlainColumn = 305;  // where the header shows nothing but its ground

/// The ground of the header, from transparent at the left to opaque where the help mark lies.
static QPixmap fadeOut(const QPixmap& header, qreal ratio) {
  const int height = header.height();
  QPixmap fade(static_cast<int>(FadeWidth * ratio), height);
  fade.fill(Qt::transparent);
  QPainter painter(&fade);
  painter.drawPixmap(fade.rect(), header, QRect(static_cast<int>(PlainColumn * ratio), 0, 1, height));
  QLinearGradient opacity(0, 0, FadeWidth * ratio * 0.55, 0);
  opacity.setColorAt(0, Qt::transparent);
  opacity.setColorAt(1, Qt::black);
  painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
  painter.fillRect(fade.rect(), opacity);
  painter.end();
  fade.setDevicePixelRatio(ratio);
  return fade;
}

void HeaderPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const qreal ratio = devicePixelRatioF();
  const QPixmap header = Pictures::load(u"banner"_s, ratio);
  painter.drawPixmap(0, 0, header);
  painter.drawPixmap(width() - FadeWidth, 0, fadeOut(header, ratio));
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
