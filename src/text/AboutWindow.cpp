#include "text/AboutWindow.h"

#include <QMouseEvent>
#include <QPainter>

#include "text/Transparency.h"
#include "text/VTULocalization.h"
#include "version.h"
#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;

constexpr QSize WindowSize{639, 222};
constexpr QRect VersionPlace{156, 153, 463, 18};
constexpr int VersionPixels = 11;
constexpr QColor OnSplash{0xc3, 0xce, 0xd8};

QImage composeWithMask(const QImage& picture, const QImage& mask) {
  if (picture.size() != mask.size()) return {};
  QImage composed = picture.convertToFormat(QImage::Format_ARGB32);
  composed.setDevicePixelRatio(1);  // or setAlphaChannel would scale the mask by the ratio
  composed.setAlphaChannel(mask.convertToFormat(QImage::Format_Grayscale8));
  composed.convertTo(QImage::Format_ARGB32_Premultiplied);
  composed.setDevicePixelRatio(picture.devicePixelRatio());
  return composed;
}

static QImage splash(qreal devicePixelRatio) {
  return composeWithMask(Pictures::load(u"UploaderSplash.png"_s, devicePixelRatio).toImage(),
                         Pictures::load(u"UploaderSpashMask"_s, devicePixelRatio).toImage());
}

AboutWindow::AboutWindow(QWidget* parent, const MakeTransparent& transparent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
  setObjectName(u"AboutWindow"_s);
  setWindowTitle(MenuText::klAboutTitle());
  setAccessibleName(MenuText::klFileAbout());
  setFixedSize(WindowSize);
  const QString version = u"ver %1.%2.%3"_s.arg(MajorVersion).arg(MinorVersion).arg(BugVersion);
  VersionLabel = new QLabel(version, this);
  VersionLabel->setObjectName(u"VersionLabel"_s);
  VersionLabel->setAccessibleName(version);
  VersionLabel->setGeometry(VersionPlace);
  QFont font = VersionLabel->font();
  font.setPixelSize(VersionPixels);
  VersionLabel->setFont(font);
  Event_Open(transparent);
}

void AboutWindow::Event_Open(const MakeTransparent& transparent) {
  if (transparent(*this) == 0) return;
  splashImage = splash(devicePixelRatioF());
  QPalette onSplash = VersionLabel->palette();
  onSplash.setColor(QPalette::WindowText, OnSplash);
  VersionLabel->setPalette(onSplash);
}

bool AboutWindow::_FileAbout_Action(QWidget* parent) {
  AboutWindow window(parent, makeTransparent);
  window.exec();
  return true;
}

void AboutWindow::mousePressEvent(QMouseEvent* event) {
  done(QDialog::Accepted);
  event->ignore();
}

void AboutWindow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (splashImage.isNull()) {
    painter.fillRect(rect(), palette().window());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    return;
  }
  if (splashImage.devicePixelRatio() != devicePixelRatioF()) splashImage = splash(devicePixelRatioF());
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.fillRect(rect(), Qt::transparent);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter.drawImage(rect(), splashImage);
}
