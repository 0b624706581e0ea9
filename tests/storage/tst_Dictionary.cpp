#include <QTest>

#include "storage/Dictionary.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Dictionary : public QObject {
  Q_OBJECT
 private slots:
  void keysKeepTheOrderInWhichTheyFirstCame() {
    Dictionary d;
    d.setValue(u"b"_s, 1);
    d.setValue(u"a"_s, 2);
    d.setValue(u"c"_s, 3);
    d.setValue(u"b"_s, 4);
    d.Remove(u"a"_s);
    d.Remove(u"missing"_s);
    d.setValue(u"a"_s, 5);
    QCOMPARE(d.Keys(), (QStringList{u"b"_s, u"c"_s, u"a"_s}));
    QCOMPARE(d.Values(), (QList<QVariant>{4, 3, 5}));
  }
  void keysAreExact() {
    Dictionary d;
    d.setValue(u"Key"_s, 1);
    QVERIFY(!d.HasKey(u"key"_s));
    QCOMPARE(d.Lookup(u"key"_s, 7), QVariant(7));
    QVERIFY(!d.Value(u"key"_s).isValid());
  }
};

VANTRY_TEST(tst_Dictionary);
#include "tst_Dictionary.moc"
