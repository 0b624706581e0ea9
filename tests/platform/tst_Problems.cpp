#include <QTest>

#include "platform/Problems.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Problems : public QObject {
  Q_OBJECT
 private slots:
  void init() { clearAll(); }
  void cleanup() { clearAll(); }

  void theSameProblemIsStatedOnceInItsOldPlace() {
    Problems::raise(Problem::Kind::CopyFailed, u"Press 1"_s, u"disk full"_s);
    Problems::raise(Problem::Kind::UploadFailed, u"Press 1"_s, u"no answer"_s);
    Problems::raise(Problem::Kind::CopyFailed, u"Press 1"_s, u"folder gone"_s);
    QCOMPARE(details(), (QStringList{u"folder gone"_s, u"no answer"_s}));
  }

  void monthsOfProblemsDoNotPileUp() {
    for (int i = 0; i < 10'000; ++i) Problems::raise(Problem::Kind::UploadFailed, QString::number(i), u"d"_s);
    QVERIFY(Problems::present().size() < 1000);
    QCOMPARE(Problems::present().last().subject, u"9999"_s);
  }

 private:
  static void clearAll() {
    Problems::clearKind(Problem::Kind::CopyFailed);
    Problems::clearKind(Problem::Kind::UploadFailed);
  }
  static QStringList details() {
    QStringList list;
    for (const Problem& problem : Problems::present()) list.append(problem.detail);
    return list;
  }
};

VANTRY_TEST(tst_Problems);
#include "tst_Problems.moc"
