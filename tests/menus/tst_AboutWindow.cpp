#include <QLabel>
#include <QTest>

#include "support/TestRunner.h"
#include "text/AboutWindow.h"
#include "text/Transparency.h"

using namespace Qt::Literals::StringLiterals;

class tst_AboutWindow : public QObject {
  Q_OBJECT
 private slots:
  void theWindowHasItsShapeAndClosesAtAnyClickOrEscape_data() {
    addColumns<bool, bool>("transparent", "byKey");
    QTest::newRow("a click on the shaped window") << true << false;
    QTest::newRow("Escape") << true << true;
    QTest::newRow("a click where no window can be transparent") << false << false;
  }
  void theWindowHasItsShapeAndClosesAtAnyClickOrEscape() {
    QFETCH(bool, transparent);
    QFETCH(bool, byKey);
    AboutWindow window(nullptr, [=](QWidget& made) { return transparent ? makeTransparent(made) : 0; });
    window.open();
    QCOMPARE(window.size(), QSize(639, 222));
    auto* const version = window.findChild<QLabel*>(u"VersionLabel"_s);
    QCOMPARE(version->geometry(), QRect(156, 153, 463, 18));
    QImage shown(window.size(), QImage::Format_ARGB32_Premultiplied);
    shown.fill(Qt::green);
    window.render(&shown, {}, {}, QWidget::DrawChildren);
    QCOMPARE(qAlpha(shown.pixel(638, 221)), transparent ? 0 : 255);  // a corner outside the shape
    QCOMPARE(shown.pixelColor(300, 60) == window.palette().window().color(), !transparent);
    if (byKey)
      QTest::keyClick(&window, Qt::Key_Escape);
    else
      QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, version->geometry().center());
    QVERIFY(!window.isVisible());
  }
};

VANTRY_TEST(tst_AboutWindow);
#include "tst_AboutWindow.moc"
