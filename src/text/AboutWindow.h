#pragma once
// The About window: a shaped splash with the version, which any click and Escape close. Main thread; lives from the
// menu command to the click.

#include <QDialog>
#include <QImage>
#include <QLabel>
#include <functional>

class AboutWindow : public QDialog {
 public:
  /// Gives zero when the window can't be made transparent.
  using MakeTransparent = std::function<int(QWidget&)>;
  explicit AboutWindow(QWidget* parent, const MakeTransparent& transparent);

  /// Shows the window modally and gives true when it is closed; the upload goes on meanwhile.
  static bool _FileAbout_Action(QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Event_Open(const MakeTransparent& transparent);

  QLabel* VersionLabel = nullptr;

  QImage splashImage;  ///< for the pixels of the screen; null where the window can't be transparent
};

/// `picture` with its alpha taken from the brightness of `mask`: white shows, black hides. Null if their sizes differ.
[[nodiscard]] QImage composeWithMask(const QImage& picture, const QImage& mask);
