// The update check: what a reply means.

#include <QTest>

#include "service/UpdateReply.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

/// JSON with single quotes written for double ones.
static QByteArray json(QByteArray text) { return text.replace('\'', '"'); }

class tst_VersionChecker : public QObject {
  Q_OBJECT
 private slots:
  void replies_data() {
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("outcome");  // "newer", "not newer", or what doesn't fit
    const auto row = [](const QByteArray& version, const char* outcome) {
      QTest::newRow(version) << json("{'version':'" + version + "','mac':'http://d/'}") << QString::fromLatin1(outcome);
    };
    for (const char* same : {"2.1.1v15", "2.1.1v14", "2.1.0v99", "2.0.9v99", "1.9.9v99"}) row(same, "not newer");
    for (const char* newer : {"2.1.1v100", "2.1.2v1", "2.2.0v0", "3.0.0v0", "Beta 2.1.1v16."}) row(newer, "newer");
    for (const char* odd : {"2.1.2", "2.1.99999999999999999999v1"}) row(odd, "its version has not the form 1.2.3v4");
    QTest::newRow("no address") << json("{'version':'3.0.0v1'}") << u"there is no text \"mac\" in it"_s;
    QTest::newRow("a number") << json("{'version':3,'mac':''}") << u"there is no text \"version\" in it"_s;
  }
  void replies() {
    QFETCH(QByteArray, reply);
    QString misfit;
    const auto offer = readUpdateReply(reply, {2, 1, 1, 15}, misfit);
    QTEST(offer ? (offer->url.isEmpty() ? u"not newer"_s : u"newer"_s) : misfit, "outcome");
  }
};

VANTRY_TEST(tst_VersionChecker);
#include "tst_VersionChecker.moc"
