// The rows of the two dependent lists, and which of them a stored workflow name selects.

#include "EditorFixture.h"
#include "editor/TrackChoices.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using TrackChoices::Kind;

class tst_TrackChoices : public QObject {
  Q_OBJECT

  static QString shown(Kind kind, const QString& device) {
    QStringList rows;
    for (const TrackChoices::Target& target : TrackChoices::targets(kind, device))
      rows << target.text + u'=' + target.workflowName;
    return rows.join(u", "_s);
  }

 private slots:
  void rows_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("targets");
    QTest::newRow("a press in another case") << int(Kind::Print) << u"xl"_s << u"Coated=xl-coated, Plain=xl-plain"_s;
    QTest::newRow("the same track name of another press has its own workflow")
        << int(Kind::Print) << u"SM"_s << u"Coated=sm-coated"_s;
    QTest::newRow("an unknown press") << int(Kind::Print) << u"GTO"_s << u""_s;
    QTest::newRow("a blank press") << int(Kind::Print) << u" "_s << u""_s;
    QTest::newRow("an instrument by name and serial") << int(Kind::Instrument) << u"Spectro 2"_s << u"Tile 7=s2-tile"_s;
    QTest::newRow("a press is no instrument") << int(Kind::Instrument) << u"XL"_s << u""_s;
  }
  void rows() {
    QFETCH(int, kind);
    QFETCH(QString, device);
    const EditorFixture fixture;
    QTEST(shown(static_cast<Kind>(kind), device), "targets");
  }

  void selections_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("workflow");
    QTest::addColumn<QString>("whileFilling");  // device, target
    QTest::addColumn<QString>("ofTask");
    QTest::newRow("a press") << int(Kind::Print) << u"XL-PLAIN"_s << u"0 1"_s << u"0 1"_s;
    QTest::newRow("a press whose name differs from its device is found only as the task is opened")
        << int(Kind::Print) << u"sm-coated"_s << u"-1 -1"_s << u"1 0"_s;
    QTest::newRow("an instrument") << int(Kind::Instrument) << u"s2-tile"_s << u"1 0"_s << u"1 0"_s;
    QTest::newRow("a workflow of the other kind") << int(Kind::Instrument) << u"xl-plain"_s << u"-1 -1"_s << u"-1 -1"_s;
    QTest::newRow("one that the service no longer knows") << int(Kind::Print) << u"old"_s << u"-1 -1"_s << u"-1 -1"_s;
    QTest::newRow("none") << int(Kind::Print) << u""_s << u"-1 -1"_s << u"-1 -1"_s;
  }
  void selections() {
    QFETCH(int, kind);
    QFETCH(QString, workflow);
    const EditorFixture fixture;
    const auto k = static_cast<Kind>(kind);
    const QStringList devices = TrackChoices::devices(k);
    const int filling = TrackChoices::deviceWhileFilling(k, devices, workflow);
    const int opened = TrackChoices::deviceOfTask(k, devices, workflow);
    const auto rows = [&](int device) { return TrackChoices::targets(k, devices.value(device)); };
    const auto both = [](int device, int target) { return u"%1 %2"_s.arg(device).arg(target); };
    QTEST(both(filling, TrackChoices::targetWhileFilling(k, devices.value(filling), rows(filling), workflow)),
          "whileFilling");
    QTEST(both(opened, TrackChoices::targetOfTask(k, rows(opened), workflow)), "ofTask");
  }

  void ofRowsThatMatchTwiceTheLastWinsWhileFillingAndTheFirstAtOpening() {
    const EditorFixture fixture;
    const QList<TrackChoices::Target> rows{{u"a"_s, u"xl-plain"_s}, {u"b"_s, u"xl-plain"_s}};
    QCOMPARE(TrackChoices::targetWhileFilling(Kind::Print, u"XL"_s, rows, u"xl-plain"_s), 1);
    QCOMPARE(TrackChoices::targetOfTask(Kind::Print, rows, u"xl-plain"_s), 0);
    QCOMPARE(TrackChoices::deviceWhileFilling(Kind::Print, {u"XL"_s, u"xl"_s}, u"xl-plain"_s), 1);
    QCOMPARE(TrackChoices::deviceOfTask(Kind::Print, {u"XL"_s, u"xl"_s}, u"xl-plain"_s), 0);
  }
};

VANTRY_TEST(tst_TrackChoices);
#include "tst_TrackChoices.moc"
