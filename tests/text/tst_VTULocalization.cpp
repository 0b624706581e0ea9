#include <QSet>

#include "support/TestRunner.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

class tst_VTULocalization : public QObject {
  Q_OBJECT
 private slots:
  void placeholdersAreFilled() {
    const std::tuple<QString, QStringList, QString> rows[] = {
        {u"$2, $1, $2"_s, {u"a"_s, u"b"_s}, u"b, a, b"_s},  // a translation may turn the order round
        {u"$1-$2"_s, {u"$2$1"_s, u"b"_s}, u"$2$1-b"_s},     // a value is not filled again
        {u"$11 $3"_s, {u"$"_s}, u"$1 $3"_s},                // nor joined to the next digit
        {u"$0 $ $x $$1 [$2] $"_s, {u"a"_s, {}}, u"$0 $ $x $a [] $"_s}};
    for (const auto& [text, values, filled] : rows) QCOMPARE(fillPlaceholders(text, values), filled);
  }

  void everyProblemHasALineOfItsOwn() {
    QSet<QString> lines;
    int kind = 0;
    for (; kind <= static_cast<int>(Problem::Kind::ServiceUnreachable); ++kind) {
      const QString line = problemText({static_cast<Problem::Kind>(kind), u"SUBJECT"_s, u"DETAIL"_s});
      QVERIFY2(!line.isEmpty() && !line.contains(u'$') && !line.contains(u'\n'), qPrintable(line));
      lines.insert(line);
    }
    QCOMPARE(lines.size(), kind);
    const QString odd = problemText({Problem::Kind::ExclusionTooCostly, u"Press $2"_s, u"a\r\nb\u2028c.txt"_s});
    QVERIFY2(odd.startsWith(u"Task \"Press $2\" keeps back \"a  b c.txt\""), qPrintable(odd));
  }
};

VANTRY_TEST(tst_VTULocalization);
#include "tst_VTULocalization.moc"
