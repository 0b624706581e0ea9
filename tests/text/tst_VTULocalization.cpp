#include <QCoreApplication>
#include <QSet>
#include <QTest>
#include <QTranslator>

#include "support/TestRunner.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

/// A language table of three keys, one of them with an empty translation.
class ThreeTexts : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char*, const char* key, const char*, int) const override {
    if (qstrcmp(key, "VTULocalization.klAdmin") == 0) return u"Verwaltung"_s;
    if (qstrcmp(key, "EditTaskWindow.klPrefix") == 0) return u"Präfix"_s;
    if (qstrcmp(key, "VTULocalization.klCancel") == 0) return u""_s;
    return {};
  }
};

class tst_VTULocalization : public QObject {
  Q_OBJECT
 private slots:
  void everyEntryHasItsOwnKeyAndAText();
  void ownersHaveTheirNumberOfTexts_data();
  void ownersHaveTheirNumberOfTexts();
  void textsEasyToGetWrong_data();
  void textsEasyToGetWrong();
  void aTableReplacesOnlyWhatItHolds();
  void everyProblemHasALineOfItsOwn();
  void aProblemStandsOnOneLineWhateverTheFileIsCalled();
};

void tst_VTULocalization::everyEntryHasItsOwnKeyAndAText() {
  QSet<QByteArray> keys;
  for (const auto& entry : VTULocalization::entries()) {
    QVERIFY2(!keys.contains(entry.key), entry.key);
    keys.insert(entry.key);
    const QString text = QString::fromUtf8(entry.english);
    QVERIFY2(!text.isEmpty() && !text.contains(u'\\') && !text.contains(QChar::ReplacementCharacter), entry.key);
  }
}

void tst_VTULocalization::ownersHaveTheirNumberOfTexts_data() {
  QTest::addColumn<QByteArray>("first");
  QTest::addColumn<QByteArray>("last");
  QTest::addColumn<int>("count");
  QTest::newRow("all windows") << "VTULocalization.klAdmin"_ba
                               << "VTULocalization.klVerifyDateStamp"_ba << 68;
  QTest::newRow("the task editor") << "EditTaskWindow.klAddDatetoFileName"_ba
                                   << "EditTaskWindow.klSelectTrack"_ba << 8;
  QTest::newRow("error codes") << "VantryUtil.E002"_ba
                               << "VantryUtil.EUnknownError"_ba << 30;
}

void tst_VTULocalization::ownersHaveTheirNumberOfTexts() {
  QFETCH(QByteArray, first);
  QFETCH(QByteArray, last);
  QList<QByteArray> keys;
  for (const auto& entry : VTULocalization::entries()) keys << entry.key;
  QVERIFY(keys.contains(first) && keys.contains(last));
  QTEST(static_cast<int>(keys.indexOf(last) - keys.indexOf(first)) + 1, "count");
}

void tst_VTULocalization::textsEasyToGetWrong_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<QString>("expected");
  QTest::newRow("quitting has two real line feeds")
      << VTULocalization::klSureYouWantToQuit()
      << u"Are you sure you want to quit?\n\nUploads will stop processing when the application quit."_s;
  QTest::newRow("clearing the date has two real line feeds")
      << VTULocalization::klVerifyDateStamp()
      << u"Are you sure you want to clear the last processed date?\n\nThis will force all files in the input folder to "
         u"be "
         "processed regardless of age or if they have previously been processed."_s;
  QTest::newRow("three points, not an ellipsis") << VTULocalization::klShowLog() << u"Show Log..."_s;
  QTest::newRow("mounting failed, under another name") << VTULocalization::klCouldNotMount() << u"Error Mounting"_s;
  QTest::newRow("no tasks, odd spelling")
      << VTULocalization::klNoTasksToSave() << u"There are no tasks avaible to backup"_s;
  QTest::newRow("E008 has two blanks")
      << VantryUtil::E008()
      << u"Requested track not found. For auto-recognition mode check settings -  both "
         "application and website require a perfect match."_s;
  QTest::newRow("E015 names itself") << VantryUtil::E015() << u"Unknown dryback value. (E015)"_s;
  QTest::newRow("E021, odd spelling") << VantryUtil::E021() << u"No measurement tasks avaliable"_s;
  QTest::newRow("E023 says it twice") << VantryUtil::E023() << u"Control Strip not foundControl Strip not found"_s;
  QTest::newRow("the editor's own") << EditTaskWindowText::klAddDatetoFileName() << u"Add Date to File Name"_s;
}

void tst_VTULocalization::textsEasyToGetWrong() {
  QFETCH(QString, text);
  QTEST(text, "expected");
}

void tst_VTULocalization::aTableReplacesOnlyWhatItHolds() {
  {
    ThreeTexts table;
    QVERIFY(QCoreApplication::installTranslator(&table));
    QCOMPARE(VTULocalization::klAdmin(), u"Verwaltung"_s);
    QCOMPARE(EditTaskWindowText::klPrefix(), u"Präfix"_s);
    QCOMPARE(VTULocalization::klBackup(), u"Backup"_s);
    QCOMPARE(VTULocalization::klCancel(), u"Cancel"_s);
    QCoreApplication::removeTranslator(&table);
  }
  QCOMPARE(VTULocalization::klAdmin(), u"Admin"_s);
}

void tst_VTULocalization::everyProblemHasALineOfItsOwn() {
  QSet<QString> lines;
  int kind = 0;
  for (; kind <= static_cast<int>(Problem::Kind::ServiceUnreachable); ++kind) {
    const QString line = VTULocalization::problemText({static_cast<Problem::Kind>(kind), u"SUBJECT"_s, u"DETAIL"_s});
    QVERIFY2(!line.isEmpty() && !line.contains(u'$') && !line.contains(u'\n'), qPrintable(line));
    lines.insert(line);
  }
  QCOMPARE(lines.size(), kind);
}

void tst_VTULocalization::aProblemStandsOnOneLineWhateverTheFileIsCalled() {
  const QString line =
      VTULocalization::problemText({Problem::Kind::ExclusionTooCostly, u"Press $2"_s, u"a\r\nb\u2028c.txt"_s});
  QVERIFY2(line.startsWith(u"Task \"Press $2\" keeps back \"a  b c.txt\""), qPrintable(line));
}

VANTRY_TEST(tst_VTULocalization);
#include "tst_VTULocalization.moc"
