#pragma once
// A line or two in small quiet type that tell how something stands, broken to the place that it has; what doesn't fit
// stands whole in the tool tip. Main thread.

#include <QLabel>

class QuietLine : public QLabel {
 public:
  explicit QuietLine(QWidget* parent);
  /// Shows `text`, and in the tool tip `detail` behind it.
  void say(const QString& text, const QString& detail = {});

 protected:
  void paintEvent(QPaintEvent* event) override;
};
