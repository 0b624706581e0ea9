#include "monitor/WindowSplitter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

constexpr int Margin = 20;
constexpr int BelowLists = 52;     // to the window's lower edge
constexpr int Between = 12;        // from one list to the other, the divider's height as well
constexpr int DividerOverlap = 1;  // of the divider and the upper list
constexpr int KeyStep = 12;

WindowSplitter::WindowSplitter(QWidget* parent) : QWidget(parent) {
  setCursor(Qt::SplitVCursor);
  setFocusPolicy(Qt::TabFocus);
}

void WindowSplitter::mousePressEvent(QMouseEvent* event) { m_grip = event->position().toPoint().y(); }

void WindowSplitter::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() & Qt::LeftButton) emit wanted(mapToParent(event->position().toPoint()).y() - m_grip);
}

void WindowSplitter::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up)
    emit wanted(y() - KeyStep);
  else if (event->key() == Qt::Key_Down)
    emit wanted(y() + KeyStep);
  else
    QWidget::keyPressEvent(event);
}

void WindowSplitter::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
  for (const int x : {-8, 0, 8}) painter.drawEllipse(QPointF(width() / 2.0 + x, height() / 2.0), 1.5, 1.5);
  if (!hasFocus()) return;
  QStyleOptionFocusRect frame;
  frame.initFrom(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}

DividedPlaces dividedPlaces(QSize window, int afterHeight) {
  const int bottom = window.height() - BelowLists;
  const int most = bottom - Margin - WindowSplitter::MinBeforeArea - Between;
  const int after = qMax(qMin(afterHeight, most), WindowSplitter::MinAfterArea);
  const int afterTop = bottom - after, width = window.width() - 2 * Margin;
  return {.before = {Margin, Margin, width, afterTop - Between - Margin},
          .divider = {Margin, afterTop - Between - DividerOverlap, width, Between},
          .after = {Margin, afterTop, width, after}};
}
