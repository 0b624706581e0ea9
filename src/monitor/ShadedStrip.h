#pragma once
// The shaded strip at the foot of the main window, with its line: cut at the end when there is no room, whole in the
// tool tip. A line that tells less than there is to say can be pressed, by those who have no pointer to hover with as
// well. Repaints only when the line has changed. Main thread.

#include <QLabel>

#include "monitor/FootStrip.h"

class ShadedStrip : public QLabel {
  Q_OBJECT

 public:
  explicit ShadedStrip(QWidget* parent);
  void setLine(const StripLine& line);
  [[nodiscard]] const StripLine& line() const { return m_line; }

 signals:
  /// The line was pressed that tells less than its details.
  void detailsWanted();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QRect roomForText() const;
  /// Lets the line be pressed while it tells less than its details.
  void offerDetails();
  void paintGround(QPainter& painter) const;
  [[nodiscard]] QString picture() const;

  StripLine m_line;
  bool m_tellsLess = false;
};
