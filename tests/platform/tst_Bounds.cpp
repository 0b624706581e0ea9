// What must hold for any number, any count and any environment.

#include <sys/stat.h>

#include <cmath>

#include "platform/Problems.h"
#include "platform/SpecialFolder.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;

class tst_Bounds : public QObject {
  Q_OBJECT
 private slots:
  // A date limit is stored as seconds and compared with file dates in nanoseconds; it must not move on the way.
  void secondsReadBackAsTheSameMoment() {
    for (int i = 0; i < 10'000; ++i) {
      const qint64 ns = 1'700'000'000'000'000'000 + i * 7'919'993'311'777;
      const double seconds = secondsOf(ns);
      QCOMPARE(Date::fromTotalSeconds(seconds).TotalSeconds(), seconds);
      QVERIFY(std::abs(Date::fromTotalSeconds(seconds).nanoseconds() - ns) <= 120);
      QVERIFY(secondsOf(1'699'999'999'999'995'000 + i) <= secondsOf(1'699'999'999'999'995'001 + i));
    }
    QCOMPARE(Date::fromTotalSeconds(std::nan("")).nanoseconds(), 0);
    QCOMPARE(Date::fromTotalSeconds(1e300).nanoseconds(), 9'200'000'000'000'000'000);
  }

  void monthsOfProblemsDoNotPileUp() {
    const auto kind = Problem::Kind::UploadFailed;
    for (int i = 0; i < 10'000; ++i) Problems::raise(kind, QString::number(i), u"d"_s);
    const auto count = Problems::present().size();
    Problems::raise(kind, u"9998"_s, u"again"_s);
    QVERIFY(count < 1000 && Problems::present().size() == count);
    QCOMPARE(Problems::present().last().subject, u"9999"_s);
    QCOMPARE(Problems::present()[count - 2].detail, u"again"_s);
    Problems::clearKind(kind);
  }

  void foldersFollowTheEnvironment() {
    const TemporaryHome home;
    for (const char* const variable : {"/srv/x", "", "relative", "not set"}) {
      for (const char* const name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        *variable == 'n' ? qunsetenv(name) : qputenv(name, variable);
      const auto parent = [&](const char* own) {
        return *variable == '/' ? u"/srv/x"_s : home.path(QLatin1String(own));
      };
      QCOMPARE(SpecialFolder::ApplicationData().NativePath(), parent(".local/share") + u"/vantry-uploader"_s);
      QCOMPARE(SpecialFolder::Preferences().NativePath(), parent(".config") + u"/vantry-uploader"_s);
    }
  }

  void missingFoldersAreMadePrivateAndOthersAreLeft() {
    const TemporaryHome home;
    ::chmod(QFile::encodeName(home.makeFolder(u"old"_s)).constData(), 0755);
    const FolderItem folder = home.item(u"old"_s).Child(u"new"_s).Child(u"newer"_s);
    for (int round = 0; round < 2; ++round) QVERIFY(SpecialFolder::createPrivate(folder).ok());
    const auto mode = [](const FolderItem& item) {
      struct stat info {};
      return ::stat(item.bytes().constData(), &info) == 0 ? info.st_mode & 07777 : 0;
    };
    QVERIFY(mode(folder) == 0700 && mode(folder.Parent()) == 0700 && mode(home.item(u"old"_s)) == 0755);
    home.writeFile(u"file"_s, "the user's");
    for (const FolderItem& below : {home.item(u"file"_s), home.item(u"file/below"_s)})
      QCOMPARE(SpecialFolder::createPrivate(below).error, ENOTDIR);
    QCOMPARE(TemporaryHome::readFile(home.path(u"file"_s)), "the user's"_ba);
  }
};

VANTRY_TEST(tst_Bounds);
#include "tst_Bounds.moc"
