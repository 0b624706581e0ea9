#include <QElapsedTimer>
#include <QTest>
#include <limits>

#include "platform/RegEx.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(RegExMatch::Outcome)

class tst_RegEx : public QObject {
  Q_OBJECT
  using Outcome = RegExMatch::Outcome;

 private slots:
  void searches_data() {
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("subject");
    QTest::addColumn<QStringList>("texts");
    const QString longName = QString(200, u'n') + u'7';
    QTest::newRow("anywhere") << u"old"_s << u"scan old.txt"_s << QStringList{u"old"_s};
    QTest::newRow("case of the name") << u"old"_s << u"SCAN OLD.TXT"_s << QStringList{u"OLD"_s};
    QTest::newRow("case of the pattern, umlaut") << u"PRÜF"_s << u"prüfung.txt"_s << QStringList{u"prüf"_s};
    QTest::newRow("groups") << u"(\\d+)-(\\d+)"_s << u"a12-3b"_s << QStringList{u"12-3"_s, u"12"_s, u"3"_s};
    QTest::newRow("no match") << u"^old"_s << u"scan old.txt"_s << QStringList();
    QTest::newRow("match of nothing") << u"x*"_s << u"abc"_s << QStringList{QString(u""_s)};
    // More work than the first, cheap search may do.
    QTest::newRow("long, groups") << u"((?:n|m)+?)(\\d)"_s << longName
                                  << QStringList{longName, QString(200, u'n'), u"7"_s};
    QTest::newRow("long, alternatives") << u"zz|(?:n|m)+?7"_s << longName << QStringList{longName};
    QTest::newRow("long, in the middle") << u"o(?:n|m)+?7"_s << u"_o"_s + longName << QStringList{u"o"_s + longName};
    QTest::newRow("long, open quotation") << u"(?:n|m)+?\\Q7."_s << longName + u'.' << QStringList{longName + u'.'};
    QTest::newRow("long, comment at the end") << u"(?x) (?:n|m)+? 7 # seven"_s << longName << QStringList{longName};
    QTest::newRow("long, back reference")
        << u"(n)(?:n|m)+?7_\\1"_s << longName + u"_n"_s << QStringList{longName + u"_n"_s, u"n"_s};
  }
  void searches() {
    QFETCH(QString, pattern);
    QFETCH(QString, subject);
    QFETCH(QStringList, texts);
    const RegExMatch match = RegEx(pattern).Search(subject);
    QCOMPARE(match.outcome, texts.isEmpty() ? Outcome::NoMatch : Outcome::Match);
    QCOMPARE(match.texts, texts);
  }

  // A search that gives up must never look like "no match", and must give up soon: without a bound these take from
  // 40 ms to years.
  void costlyPatternsAreGivenUp_data() {
    QTest::addColumn<QString>("pattern");
    QTest::newRow("plus of plus") << u"(a+)+$"_s;
    QTest::newRow("overlapping alternatives") << u"(a|aa)+$"_s;
    QTest::newRow("four stars") << u"[a-z]*[a-z]*[a-z]*[a-z]*[0-9]"_s;
    QTest::newRow("a little at each place") << u"[a-f]{0,30}[a-f]{0,30}[a-f]{0,9}[0-9]"_s;
    QTest::newRow("back reference") << u"(a*)\\1\\1b?[0-9]"_s;
  }
  void costlyPatternsAreGivenUp() {
    QFETCH(QString, pattern);
    const RegEx expression(pattern);
    QVERIFY(expression.isValid());
    const QString name = QString(254, u'a') + u'!';
    qint64 bestNs = std::numeric_limits<qint64>::max();
    for (int i = 0; i < 5; ++i) {
      QElapsedTimer timer;
      timer.start();
      QCOMPARE(expression.Search(name).outcome, Outcome::TooCostly);
      bestNs = std::min(bestNs, timer.nsecsElapsed());
    }
    // A hundred times the promise, for machines under load and sanitizers.
    QVERIFY2(bestNs < 10'000'000, qPrintable(u"%1 ns"_s.arg(bestNs)));
  }

  void patternsThatActOnTheWholeSearchAreBoundedToo() {
    const RegEx ownBound(u"(*LIMIT_MATCH=4000000000)(a+)+$"_s);
    QCOMPARE(ownBound.Search(QString(254, u'a') + u'!').outcome, Outcome::TooCostly);
    const RegEx nestedBrackets(u"\\((?:(?:a|b)|(?R))*\\)"_s);
    QCOMPARE(nestedBrackets.Search(u"(a(b))"_s).texts, QStringList{u"(a(b))"_s});
    QCOMPARE(nestedBrackets.Search(u'(' + QString(200, u'a') + u"(b)"_s).outcome, Outcome::TooCostly);
  }

  void errorsArePlacedInTheGivenPattern_data() {
    QTest::addColumn<QString>("pattern");
    QTest::newRow("open group") << u"ab(c"_s;
    QTest::newRow("nothing to repeat") << u"*.txt"_s;
    QTest::newRow("group that the program's own would close") << u"a)|(b"_s;
  }
  void errorsArePlacedInTheGivenPattern() {
    QFETCH(QString, pattern);
    const RegEx expression(pattern);
    QVERIFY(!expression.isValid());
    QVERIFY(!expression.errorString().isEmpty());
    QCOMPARE(expression.errorOffset(), QRegularExpression(pattern).patternErrorOffset());
    QCOMPARE(expression.Search(pattern).outcome, Outcome::NoMatch);
  }
};

VANTRY_TEST(tst_RegEx);
#include "tst_RegEx.moc"
