// The line at the foot of the window.

#include <QLocale>
#include <QTest>

#include "monitor/FootStrip.h"
#include "support/TestRunner.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;
using Kind = Problem::Kind;
using Tone = StripLine::Tone;

static const QDateTime Noon(QDate(2026, 3, 5), QTime(12, 0));

static StripInput running() {
  StripInput input;
  input.phase = StartPhase::Running;
  input.now = Noon;
  input.wellSince = Noon.addSecs(-3600);
  return input;
}

static StripInput with(const QList<Problem>& problems) {
  StripInput input = running();
  input.problems = problems;
  return input;
}

static StripInput sending(qint64 sent, qint64 total, const QString& file = u"f.txt"_s) {
  StripInput input = running();
  input.activity = {true, u"Press 3"_s, file, sent, total};
  return input;
}

class tst_FootStrip : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }
  void cleanupTestCase() { QLocale::setDefault(QLocale::system()); }

  void theMostImportantIsTold_data() {
    QTest::addColumn<StripInput>("input");
    QTest::addColumn<int>("tone");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("more");
    const auto row = [](const char* label, const StripInput& input, Tone tone, const QString& text,
                        const QString& more = {}) {
      QTest::newRow(label) << input << static_cast<int>(tone) << text << more;
    };
    const Problem noLogin{Kind::NoLogin, {}, {}};
    const Problem setAside{Kind::LogSetAside, u"old.db"_s, {}};
    const Problem copy{Kind::CopyFailed, u"A"_s, u"x.txt: disk full"_s};
    const Problem upload{Kind::UploadFailed, u"B"_s, u"y.txt: refused"_s};
    const Problem folder{Kind::InputFolderUnreadable, u"C"_s, u"gone"_s};
    const Problem service{Kind::ServiceUnreachable, {}, u"example"_s};
    const auto words = VTULocalization::problemText;

    StripInput both = sending(250, 1000);
    both.problems = {copy};
    row("what is being sent comes before what is wrong", both, Tone::Sending, u"Sending Press 3: f.txt (25 %)"_s);
    row("an empty file has a part done too", sending(0, 0), Tone::Sending, u"Sending Press 3: f.txt (0 %)"_s);
    row("a file that grew is never more than done", sending(30, 20), Tone::Sending,
        u"Sending Press 3: f.txt (100 %)"_s);
    row("a name with line ends and turning marks is shown on one line", sending(1, 2, u"a\nb\u202etxt.exe"_s),
        Tone::Sending, u"Sending Press 3: a btxt.exe (50 %)"_s);
    row("a name that looks like a place for a value", sending(1, 2, u"$1 $3"_s), Tone::Sending,
        u"Sending Press 3: $1 $3 (50 %)"_s);
    row("the most serious comes first, whatever its age", with({folder, setAside, copy, service}), Tone::Wrong,
        words(service), u"(and 3 more)"_s);
    row("among equals the oldest comes first", with({upload, copy}), Tone::Wrong, words(upload), u"(and 1 more)"_s);
    row("no login comes after all else that is wrong", with({noLogin, setAside}), Tone::Wrong, words(setAside),
        u"(and 1 more)"_s);
    row("without a login nobody misses the service", with({service, noLogin}), Tone::Wrong, words(noLogin),
        u"(and 1 more)"_s);
    row("no login is told", with({noLogin}), Tone::Wrong, words(noLogin));
    StripInput fault = running();
    fault.faultyTasks = QStringList{u"D"_s};
    row("a task that can't use its folders is not passed over", fault, Tone::Wrong,
        u"Task \"D\" can't use its folders. Check that the input and output folders are there, connected and writable."_s);
    StripInput known = with({folder});
    known.faultyTasks = QStringList{u"C"_s};
    row("a fault that is known in more detail is told once", known, Tone::Wrong, words(folder));
    StripInput connecting = running();
    connecting.phase = StartPhase::Connecting;
    row("before the tasks are loaded", connecting, Tone::Quiet, u"Connecting to the service..."_s);
    StripInput checking = running();
    checking.phase = StartPhase::Checking;
    row("before the folders were looked at", checking, Tone::Quiet, u"Checking the input folders..."_s);
    row("all is well since a time of today", running(), Tone::Well, u"All is well since 11:00"_s);
    StripInput yesterday = running();
    yesterday.wellSince = Noon.addDays(-1);
    row("all is well since another day", yesterday, Tone::Well, u"All is well since 04.03.26 12:00"_s);
    StripInput answered = both;
    answered.notice = u"Not there."_s;
    row("an answer to the user comes before everything", answered, Tone::Quiet, u"Not there."_s);
  }
  void theMostImportantIsTold() {
    QFETCH(StripInput, input);
    const StripLine line = composeStrip(input);
    QTEST(static_cast<int>(line.tone), "tone");
    QTEST(line.text, "text");
    QTEST(line.more, "more");
  }

  void theDetailsHoldAllThatIsWrong() {
    StripInput input = with({{Kind::CopyFailed, u"A"_s, u"one"_s}, {Kind::LogRowLost, {}, u"two"_s}});
    QCOMPARE(composeStrip(input).details.split(u'\n').size(), 2);
    input.activity.sending = true;
    const QStringList details = composeStrip(input).details.split(u'\n');
    QCOMPARE(details.size(), 3);
    QVERIFY(details[1].contains(u"one"_s) && details[2].contains(u"two"_s));
  }

  void theGoodTimeBeginsAnewAfterAProblem() {
    WellSince since;
    StripInput input = running();
    QCOMPARE(since.update(input), Noon);
    input.now = Noon.addSecs(60);
    QCOMPARE(since.update(input), Noon);
    input.problems = {{Kind::LogRowLost, {}, {}}};
    QVERIFY(!since.update(input).isValid());
    input.problems.clear();
    QCOMPARE(since.update(input), Noon.addSecs(60));
    input.faultyTasks = QStringList{u"D"_s};
    QVERIFY(!since.update(input).isValid());
  }
};

VANTRY_TEST(tst_FootStrip);
#include "tst_FootStrip.moc"
