#include "widgets/Anchors.h"

#include <QEvent>

Anchors::Anchors(QWidget* container, QSize designSize)
    : QObject(container), m_container(container), m_designSize(designSize) {
  container->installEventFilter(this);
}

void Anchors::place(QWidget* control, QRect at, Edges anchored) {
  m_placed.append({control, at, anchored});
  arrange(m_placed.last());
}

bool Anchors::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_container && event->type() == QEvent::Resize)
    for (const Placed& placed : std::as_const(m_placed)) arrange(placed);
  return QObject::eventFilter(watched, event);
}

void Anchors::arrange(const Placed& placed) const {
  if (placed.control)
    placed.control->setGeometry(anchoredGeometry(placed.at, placed.anchored, m_container->size() - m_designSize));
}

static void alongOneAxis(int& start, int& length, bool nearEdge, bool farEdge, int growth) {
  if (nearEdge && farEdge)
    length = qMax(0, length + growth);
  else if (farEdge)
    start += growth;
}

QRect anchoredGeometry(QRect at, Edges anchored, QSize growth) {
  int left = at.left(), top = at.top(), width = at.width(), height = at.height();
  alongOneAxis(left, width, anchored & Edge::Left, anchored & Edge::Right, growth.width());
  alongOneAxis(top, height, anchored & Edge::Top, anchored & Edge::Bottom, growth.height());
  return {left, top, width, height};
}
