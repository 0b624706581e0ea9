#include <QElapsedTimer>
#include <limits>

#include "platform/RegEx.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_RegEx : public QObject {
  Q_OBJECT
  using Outcome = RegExMatch::Outcome;

 private slots:
  void searchesGiveTheMatchAndItsGroups() {
    const QString ns(200, u'n'), nm = u"(?:n|m)+?"_s;  // more work than the first, cheap search may do
    const std::tuple<QString, QString, QStringList> rows[] = {
        {u"PRÜF"_s, u"die prüfung.TXT"_s, {u"prüf"_s}},
        {u"(\\d+)-(\\d+)"_s, u"a12-3b"_s, {u"12-3"_s, u"12"_s, u"3"_s}},
        {u"^old"_s, u"scan old.txt"_s, {}},
        {u"x*"_s, u"abc"_s, {u""_s}},
        {u"("_s + nm + u")(\\d)"_s, ns + u'7', {ns + u'7', ns, u"7"_s}},
        {u"o"_s + nm + u'7', u"_o"_s + ns + u'7', {u"o"_s + ns + u'7'}},
        {nm + u"\\Q7."_s, ns + u"7."_s, {ns + u"7."_s}},
        {u"(?x) "_s + nm + u" 7 # seven"_s, ns + u'7', {ns + u'7'}},
        {u"(n)"_s + nm + u"7_\\1"_s, ns + u"7_n"_s, {ns + u"7_n"_s, u"n"_s}}};
    for (const auto& [pattern, subject, texts] : rows) {
      const RegExMatch match = RegEx(pattern).Search(subject);
      QVERIFY2(match.outcome == (texts.isEmpty() ? Outcome::NoMatch : Outcome::Match), qPrintable(pattern));
      QCOMPARE(match.texts, texts);
    }
  }

  // A search that gives up must never look like "no match", and must give up soon: without a bound these take from
  // 40 ms to years.
  void costlyPatternsAreGivenUp() {
    const QString name = QString(254, u'a') + u'!';
    for (const QString& pattern : {u"(a+)+$"_s, u"(a|aa)+$"_s, u"[a-z]*[a-z]*[a-z]*[a-z]*[0-9]"_s,
                                   u"[a-f]{0,30}[a-f]{0,30}[a-f]{0,9}[0-9]"_s, u"(a*)\\1\\1b?[0-9]"_s}) {
      const RegEx expression(pattern);
      qint64 bestNs = std::numeric_limits<qint64>::max();
      for (int i = 0; i < 5; ++i) {
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(expression.Search(name).outcome, Outcome::TooCostly);
        bestNs = std::min(bestNs, timer.nsecsElapsed());
      }
      // A hundred times the promise, for machines under load and sanitizers.
      QVERIFY2(bestNs < 10'000'000, qPrintable(u"%1: %2 ns"_s.arg(pattern).arg(bestNs)));
    }
  }

  void patternsThatActOnTheWholeSearchAreBoundedToo() {
    const RegEx ownBound(u"(*LIMIT_MATCH=4000000000)(a+)+$"_s);
    QCOMPARE(ownBound.Search(QString(254, u'a') + u'!').outcome, Outcome::TooCostly);
    const RegEx nestedBrackets(u"\\((?:(?:a|b)|(?R))*\\)"_s);
    QCOMPARE(nestedBrackets.Search(u"(a(b))"_s).texts, QStringList{u"(a(b))"_s});
    QCOMPARE(nestedBrackets.Search(u'(' + QString(200, u'a') + u"(b)"_s).outcome, Outcome::TooCostly);
  }

  void errorsArePlacedInTheGivenPattern() {
    // The last one would close the program's own group.
    for (const QString& pattern : {u"ab(c"_s, u"*.txt"_s, u"a)|(b"_s}) {
      const RegEx expression(pattern);
      QVERIFY(!expression.isValid() && !expression.errorString().isEmpty());
      QCOMPARE(expression.errorOffset(), QRegularExpression(pattern).patternErrorOffset());
      QCOMPARE(expression.Search(pattern).outcome, Outcome::NoMatch);
    }
  }
};

VANTRY_TEST(tst_RegEx);
#include "tst_RegEx.moc"
