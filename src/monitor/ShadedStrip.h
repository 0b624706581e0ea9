#pragma once
// The shaded strip at the foot of the main window, with its line: cut at the end when there is no room, whole in the
// tool tip. Repaints only when the line has changed. Main thread.

#include <QLabel>

#include "monitor/FootStrip.h"

class ShadedStrip : public QLabel {
 public:
  explicit ShadedStrip(QWidget* parent);
  void setLine(const StripLine& line);
  [[nodiscard]] const StripLine& line() const { return m_line; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintGround(QPainter& painter) const;
  [[nodiscard]] QString picture() const;

  StripLine m_line;
};
