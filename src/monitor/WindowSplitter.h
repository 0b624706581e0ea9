#pragma once
// The divider between two lists that stand one above the other. It moves live, by mouse and by the arrow keys; where it
// may stand is for its window to say. Main thread.

#include <QWidget>

class WindowSplitter : public QWidget {
  Q_OBJECT
 public:
  static constexpr int MinBeforeArea = 35;
  static constexpr int MinAfterArea = 35;

  explicit WindowSplitter(QWidget* parent);

 signals:
  /// The user wants the divider's upper edge there, in the window's coordinates.
  void wanted(int top);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int m_grip = 0;  // where inside the divider it was taken
};

/// Where the two lists and the divider stand in a window of that size.
struct DividedPlaces {
  QRect before, divider, after;
};
/// `afterHeight` is the wanted height of the lower list; each list keeps its least height.
[[nodiscard]] DividedPlaces dividedPlaces(QSize window, int afterHeight);
