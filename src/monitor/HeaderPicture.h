#pragma once
// The header picture of the main window and the help mark that lies on it. Main thread.

#include <QAbstractButton>

/// Draws the header from the left; what a wider window shows more of is the pattern, which ends before the help mark.
class HeaderPicture : public QWidget {
 public:
  using QWidget::QWidget;
  static const QColor TextColor;  ///< of text that stands on the header, in a light and in a dark palette

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A picture that is pressed like a button, by mouse or keyboard. A press counts wherever it is released.
class PictureButton : public QAbstractButton {
 public:
  PictureButton(const QString& picture, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  [[nodiscard]] bool hitButton(const QPoint& position) const override;

 private:
  QString m_picture;
};
