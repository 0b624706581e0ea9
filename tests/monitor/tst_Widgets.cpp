// The helpers that all windows share.

#include <QPushButton>
#include <QTest>

#include "support/TestRunner.h"
#include "widgets/Captions.h"
#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;

class tst_Widgets : public QObject {
  Q_OBJECT
 private slots:
  void aLongCaptionGetsASmallerFont() {
    QPushButton button;
    button.resize(80, 20);
    QFont large = button.font();
    large.setPixelSize(17);
    button.setFont(large);
    setFittedCaption(button, u"Duplizieren"_s);
    QVERIFY(button.fontMetrics().horizontalAdvance(u"Duplizieren"_s) <= 72);
    QVERIFY(button.toolTip().isEmpty());
    setFittedCaption(button, u"A caption that no font makes fit"_s);
    QVERIFY(button.toolTip().contains(u"no font makes fit"_s));
  }

  void aPictureHasThePixelsOfItsScreen() {
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
      const QPixmap picture = Pictures::load(u"up_status_fail"_s, ratio);
      QCOMPARE(picture.size(), QSize(20, 20) * ratio);
      QCOMPARE(picture.deviceIndependentSize(), QSizeF(20, 20));
    }
    QVERIFY(Pictures::load(u"no such picture"_s, 1).isNull());
  }

  void theStatesDifferInShapeAndFitARow() {
    QSet<QByteArray> outlines;
    for (const auto& name : {u"up_status_off"_s, u"up_status_active"_s, u"up_status_check"_s, u"up_status_fail"_s}) {
      const QImage alpha = Pictures::load(name, 1).toImage().convertToFormat(QImage::Format_Alpha8);
      QVERIFY(alpha.height() <= 24);
      outlines.insert(QByteArray(reinterpret_cast<const char*>(alpha.constBits()), alpha.sizeInBytes()));
    }
    QCOMPARE(outlines.size(), 4);
  }
};

VANTRY_TEST(tst_Widgets);
#include "tst_Widgets.moc"
