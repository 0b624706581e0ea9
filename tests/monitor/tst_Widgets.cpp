// The helpers that all windows share.

#include <QPushButton>
#include <QTest>

#include "support/TestRunner.h"
#include "widgets/Anchors.h"
#include "widgets/Captions.h"
#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;

class tst_Widgets : public QObject {
  Q_OBJECT
 private slots:
  void anchoredEdgesKeepTheirDistance_data() {
    QTest::addColumn<Edges>("edges");
    QTest::addColumn<QRect>("grown");
    QTest::addColumn<QRect>("shrunk");
    const auto row = [](const char* label, Edges edges, QRect grown, QRect shrunk) {
      QTest::newRow(label) << edges << grown << shrunk;
    };
    // Designed at 10, 20, 30 x 40; the container grows by 100 x 50, then shrinks by 35 x 45.
    row("no edge keeps to the top left", {}, {10, 20, 30, 40}, {10, 20, 30, 40});
    row("right and bottom move", Edge::Right | Edge::Bottom, {110, 70, 30, 40}, {-25, -25, 30, 40});
    row("left and right stretch", Edge::Left | Edge::Right, {10, 20, 130, 40}, {10, 20, 0, 40});
    row("top and bottom stretch", Edge::Top | Edge::Bottom, {10, 20, 30, 90}, {10, 20, 30, 0});
  }
  void anchoredEdgesKeepTheirDistance() {
    QFETCH(Edges, edges);
    QWidget window;
    window.resize(200, 200);
    auto* const control = new QWidget(&window);
    auto* const anchors = new Anchors(&window, {200, 200});
    anchors->place(control, {10, 20, 30, 40}, edges);
    window.show();
    window.resize(300, 250);
    QTEST(control->geometry(), "grown");
    window.resize(165, 155);
    QTEST(control->geometry(), "shrunk");
  }

  void aControlThatIsGoneIsLeftOut() {
    QWidget window;
    auto* const anchors = new Anchors(&window, {200, 200});
    auto* const control = new QWidget(&window);
    anchors->place(control, {10, 20, 30, 40}, Edge::Right);
    delete control;
    window.show();
    window.resize(300, 250);
    QCOMPARE(window.size(), QSize(300, 250));
  }

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

  void aLineIsCutAtItsLimit() {
    QCOMPARE(onOneLine(u"abc\tdef"_s, 5), u"abc d…"_s);
    QCOMPARE(onOneLine(u"\u2067abc\u2029"_s), u"abc "_s);
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

  void theProgramIconIsThereInEverySize() {
    QCOMPARE(Pictures::programIcon().availableSizes().size(), 7);
  }
};

VANTRY_TEST(tst_Widgets);
#include "tst_Widgets.moc"
