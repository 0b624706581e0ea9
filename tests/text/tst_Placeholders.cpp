#include "support/TestRunner.h"
#include "text/Placeholders.h"

class tst_Placeholders : public QObject {
  Q_OBJECT
 private slots:
  void fills() {
    const std::tuple<const char*, QStringList, const char*> rows[] = {
        {"$2, $1, $2",
         {QStringLiteral("a"), QStringLiteral("b")},
         "b, a, b"},                                                         // a translation may turn the order round
        {"$1-$2", {QStringLiteral("$2$1"), QStringLiteral("b")}, "$2$1-b"},  // a value is not filled again
        {"$11", {QStringLiteral("$")}, "$1"},                                // nor joined to the next digit
        {"$1 $3", {QStringLiteral("a")}, "a $3"},                            // a place without a value stays
        {"[$1]", {QString()}, "[]"},
        {"$0 $ $x $$1 $", {QStringLiteral("a")}, "$0 $ $x $a $"}};
    for (const auto& [text, values, filled] : rows)
      QCOMPARE(fillPlaceholders(QString::fromLatin1(text), values), QString::fromLatin1(filled));
  }
};

VANTRY_TEST(tst_Placeholders);
#include "tst_Placeholders.moc"
