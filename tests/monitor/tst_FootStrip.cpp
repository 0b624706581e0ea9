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

static StripInput with(const QList<Problem>& problems, const QStringList& faulty = {}) {
  StripInput input;
  input.phase = StartPhase::Running;
  input.now = Noon;
  input.wellSince = Noon.addSecs(-3600);
  input.problems = problems;
  input.faultyTasks = faulty;
  return input;
}

static StripInput held(StripInput input, StartPhase phase = StartPhase::Running) {
  input.held = true;
  input.phase = phase;
  return input;
}

static StripInput sending(qint64 sent, qint64 total, const QString& file = u"f"_s) {
  StripInput input = with({{Kind::CopyFailed, u"A"_s, u"x.txt: disk full"_s}});
  input.activity = {true, u"Press 3"_s, file, sent, total};
  return input;
}

class tst_FootStrip : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }
  void cleanupTestCase() { QLocale::setDefault(QLocale::system()); }

  void theMostImportantIsTold() {
    const Problem noLogin{Kind::NoLogin, {}, {}};
    const Problem setAside{Kind::LogSetAside, u"old.db"_s, {}};
    const Problem copy{Kind::CopyFailed, u"A"_s, u"x.txt: disk full"_s};
    const Problem upload{Kind::UploadFailed, u"B"_s, u"y.txt: refused"_s};
    const Problem folder{Kind::InputFolderUnreadable, u"C"_s, u"gone"_s};
    const Problem service{Kind::ServiceUnreachable, {}, u"example"_s};
    const auto words = VTULocalization::problemText;
    const auto isSending = [](const char* text) { return u"Sending Press 3: "_s + QString::fromUtf8(text); };
    const std::tuple<StripInput, Tone, QString, QString> rows[] = {
        {sending(250, 1000), Tone::Sending, isSending("f (25 %)"), {}},  // whatever is wrong
        {sending(0, 0), Tone::Sending, isSending("f (0 %)"), {}},
        {sending(30, 20), Tone::Sending, isSending("f (100 %)"), {}},  // a file that grew
        {sending(1, 2, u"$1\nb\u202etxt"_s), Tone::Sending, isSending("$1 btxt (50 %)"), {}},
        {with({folder, setAside, copy, service}), Tone::Wrong, words(service), u"(and 3 more)"_s},
        {with({upload, copy}), Tone::Wrong, words(upload), u"(and 1 more)"_s},  // among equals the oldest
        {with({noLogin, setAside}), Tone::Wrong, words(setAside), u"(and 1 more)"_s},
        {with({service, noLogin}), Tone::Wrong, words(noLogin), u"(and 1 more)"_s},  // without which it is not missed
        {with({}, {u"D"_s}),
         Tone::Wrong,
         u"Task \"D\" can't use its folders. Check that the input and output folders are there, connected and "
         "writable."_s,
         {}},
        {with({folder}, {u"C"_s}), Tone::Wrong, words(folder), {}},  // known in more detail it is told once
        {held(with({})), Tone::Quiet, VTULocalization::klUploadingHeld(), {}},
        {held(with({}), StartPhase::Checking), Tone::Quiet, VTULocalization::klUploadingHeld(), {}},
        {held(with({}), StartPhase::Connecting), Tone::Quiet, VTULocalization::klStripConnecting(), {}},
        {held(with({copy})), Tone::Wrong, words(copy), {}},
        {with({}), Tone::Well, u"All is well since 11:00"_s, {}}};
    for (const auto& [input, tone, text, more] : rows) {
      const StripLine line = composeStrip(input);
      QVERIFY2(line.tone == tone && line.text == text && line.more == more, qPrintable(line.text + line.more));
    }
    QCOMPARE(composeStrip(with({copy, upload})).details, words(copy) + u'\n' + words(upload));
    const StripLine many = composeStrip(with({}, QStringList(100, u"D"_s)));
    QVERIFY2(many.details.count(u'\n') < 20 && many.details.endsWith(u"(and 88 more)"_s), "fits the screen");
    StripInput input = sending(1, 2);
    input.notice = u"Not there."_s;
    QVERIFY2(composeStrip(input).text == input.notice, "an answer to the user comes before all");
    input = with({});
    input.wellSince = Noon.addDays(-1);
    QCOMPARE(composeStrip(input).text, u"All is well since 04.03.26 12:00"_s);
  }

  void theGoodTimeBeginsAnewAfterAProblem() {
    WellSince since;
    StripInput input = with({});
    QCOMPARE(since.update(input), Noon);
    input.now = Noon.addSecs(60);
    QCOMPARE(since.update(input), Noon);
    QVERIFY(!since.update(with({{Kind::LogRowLost, {}, {}}})).isValid());
    QCOMPARE(since.update(input), Noon.addSecs(60));
    QVERIFY(!since.update(with({}, {u"D"_s})).isValid());
    QVERIFY(since.update(input).isValid() && !since.update(held(with({}))).isValid());
  }
};

VANTRY_TEST(tst_FootStrip);
#include "tst_FootStrip.moc"
