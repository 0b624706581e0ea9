#include <QTest>

#include "support/TestRunner.h"
#include "text/Placeholders.h"

class tst_Placeholders : public QObject {
  Q_OBJECT
 private slots:
  void fills_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("filled");
    const auto row = [](const char* label, const char* text, const QStringList& values, const char* filled) {
      QTest::newRow(label) << QString::fromUtf8(text) << values << QString::fromUtf8(filled);
    };
    const QString a = QStringLiteral("a"), b = QStringLiteral("b");
    row("a translation may turn the order round and repeat a value", "$2, $1, $2", {a, b}, "b, a, b");
    row("a value that looks like a place is not filled again", "$1-$2", {QStringLiteral("$2$1"), b}, "$2$1-b");
    row("a value that ends in a dollar does not join the next digit", "$11", {QStringLiteral("$")}, "$1");
    row("a place without a value stays", "$1 $3", {a, b}, "a $3");
    row("an empty value leaves nothing", "[$1]", {QString()}, "[]");
    row("$0, a lone dollar and one at the end stay", "$0 $ $x $", {a}, "$0 $ $x $");
    row("two dollars fill the second", "$$1", {a}, "$a");
  }
  void fills() {
    QFETCH(QString, text);
    QFETCH(QStringList, values);
    QTEST(fillPlaceholders(text, values), "filled");
  }
};

VANTRY_TEST(tst_Placeholders);
#include "tst_Placeholders.moc"
