#include "practice/PracticeRun.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <cstdio>

#include "practice/Screenshot.h"

using namespace Qt::Literals::StringLiterals;

static constexpr int PauseBetweenFilesMs = 1000;
static constexpr int PauseBetweenPiecesMs = 350;
static constexpr int PiecesPerFile = 3;
static constexpr int LookEveryMs = 250;
static constexpr int WindowSettlesMs = 9000;  // the window shows the end of a pass two beats of four seconds later
static constexpr int EndLimitMs = 10000;

static void say(const QString& line) {
  std::fputs(qPrintable(line + u'\n'), stdout);
  std::fflush(stdout);
}

PracticeRun::PracticeRun(const Settings& settings) : m_settings(settings), m_home(settings.homeFolder) {
  m_limit.setSingleShot(true);
  connect(&m_limit, &QTimer::timeout, this, [this] {
    if (m_judged) return;
    m_allRight = judgeAll();
    const QString words = u"Not all files arrived within %1 seconds."_s.arg(m_settings.limitSeconds);
    if (m_settings.watch)
      say(words);
    else
      fail(words);
  });
  connect(&m_look, &QTimer::timeout, this, &PracticeRun::look);
  connect(&m_uploader, &QProcess::finished, this, &PracticeRun::uploaderEnded);
  connect(&m_uploader, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) fail(u"Could not start %1."_s.arg(m_settings.uploader));
  });
  m_uploader.setProcessChannelMode(QProcess::ForwardedChannels);
}

PracticeRun::~PracticeRun() {
  m_uploader.disconnect(this);
  if (m_uploader.state() != QProcess::NotRunning) {
    m_uploader.kill();
    m_uploader.waitForFinished(EndLimitMs);
  }
}

bool PracticeRun::prepare() {
  QString failure = m_home.enter();
  PracticeService::Options options;
  options.tlsFolder = m_settings.tlsFolder;
  options.storeFolder = m_home.receivedFolder();
  const QList<PracticeTask> tasks = m_home.tasks();
  if (failure.isEmpty()) failure = m_home.furnish(options.login, options.password, tasks);
  m_deliveries = assignSamples(m_settings.samplesFolder, tasks);
  if (failure.isEmpty() && m_deliveries.isEmpty()) failure = u"No samples in %1"_s.arg(m_settings.samplesFolder);
  if (failure.isEmpty()) {
    m_service = std::make_unique<PracticeService>(options);
    if (!m_service->start(m_settings.port))
      failure = u"The practice service could not take port %1 (%2). Does another run hold it?"_s.arg(m_settings.port)
                    .arg(m_service->errorString());
  }
  if (!failure.isEmpty()) fail(failure);
  return failure.isEmpty();
}

void PracticeRun::start() {
  if (!prepare()) return;
  say(u"Practice service: %1"_s.arg(m_service->url()));
  say(u"Practice home:    %1"_s.arg(m_settings.homeFolder));
  m_uploader.start(m_settings.uploader, QStringList());
  m_limit.start(m_settings.limitSeconds * 1000);
  m_look.start(LookEveryMs);
  QTimer::singleShot(PauseBetweenFilesMs, this, &PracticeRun::dropNext);
}

void PracticeRun::dropNext() {
  if (m_ending) return;
  if (m_dropped == m_deliveries.size()) return say(u"All %1 samples are dropped."_s.arg(m_dropped));
  const Delivery& delivery = m_deliveries[m_dropped];
  m_file.setFileName(delivery.inputPath());
  m_pieces = 0;
  if (!m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
    return fail(u"%1 could not be written: %2"_s.arg(delivery.inputPath(), m_file.errorString()));
  writeNextPiece();
}

// An instrument writes as it measures, so the uploader must not take what is there so far.
void PracticeRun::writeNextPiece() {
  if (m_ending) return;
  const QByteArray& content = m_deliveries[m_dropped].content;
  const qsizetype from = content.size() * m_pieces / PiecesPerFile,
                  to = content.size() * (m_pieces + 1) / PiecesPerFile;
  if (m_file.write(content.constData() + from, to - from) != to - from)
    return fail(u"%1 could not be written: %2"_s.arg(m_file.fileName(), m_file.errorString()));
  if (++m_pieces < PiecesPerFile) {
    QTimer::singleShot(PauseBetweenPiecesMs, this, &PracticeRun::writeNextPiece);
    return;
  }
  m_file.close();
  ++m_dropped;
  QTimer::singleShot(PauseBetweenFilesMs, this, &PracticeRun::dropNext);
}

void PracticeRun::received() {
  const QList<PracticeReceipt> receipts = m_service->receipts();
  for (; m_told < receipts.size(); ++m_told) {
    const PracticeReceipt& receipt = receipts[m_told];
    say(u"  received %1 (%2 bytes) for %3"_s.arg(receipt.name).arg(receipt.size).arg(receipt.destination));
  }
}

void PracticeRun::look() {
  received();
  if (m_judged || m_dropped < m_deliveries.size() || m_told < m_deliveries.size()) return;
  for (const Delivery& delivery : std::as_const(m_deliveries)) {
    const QString problem = judge(delivery, m_service->receipts()).problem;
    if (!problem.isEmpty()) return;  // a copy may still be on its way; the limit ends the waiting
  }
  m_allRight = judgeAll();
  if (m_settings.watch) return say(u"Close the window to end."_s);
  QTimer::singleShot(m_settings.screenshotFile.isEmpty() ? 0 : WindowSettlesMs, this, &PracticeRun::takeScreenshot);
}

bool PracticeRun::judgeAll() {
  m_judged = true;
  QList<DeliveryVerdict> verdicts;
  bool right = true;
  for (const Delivery& delivery : std::as_const(m_deliveries)) {
    verdicts.append(judge(delivery, m_service->receipts()));
    right = right && verdicts.last().problem.isEmpty();
  }
  say(u'\n' + tableOf(m_deliveries, verdicts));
  const auto strangers = m_service->receipts().size() - m_deliveries.size();
  if (strangers > 0) say(u"%1 files more arrived than were dropped."_s.arg(strangers));
  return right && strangers <= 0;
}

void PracticeRun::takeScreenshot() {
  if (m_ending) return;
  if (!m_settings.screenshotFile.isEmpty()) {
    const QString problem = saveScreenshot(m_settings.screenshotFile);
    if (!problem.isEmpty()) return fail(problem);
    say(u"Screenshot: %1"_s.arg(m_settings.screenshotFile));
  }
  endUploader();
}

void PracticeRun::endUploader() {
  m_ending = true;
  m_uploader.terminate();
  QTimer::singleShot(EndLimitMs, this, [this] {
    m_allRight = false;
    say(u"The uploader did not end within %1 seconds and was killed."_s.arg(EndLimitMs / 1000));
    m_uploader.kill();
  });
}

void PracticeRun::uploaderEnded(int exitCode, QProcess::ExitStatus status) {
  received();
  const bool well = status == QProcess::NormalExit && exitCode == 0;
  if (!well)
    say(u"The uploader ended badly (%1 %2)."_s.arg(status == QProcess::CrashExit ? u"signal"_s : u"code"_s)
            .arg(exitCode));
  else if (!m_judged)
    say(u"The uploader ended before all samples had arrived."_s);
  else if (!m_ending && !m_settings.watch)
    say(u"The uploader ended by itself."_s);
  const bool expected = m_ending || m_settings.watch;
  m_ending = true;
  emit finished(well && m_allRight && expected ? 0 : 1);
}

void PracticeRun::fail(const QString& words) {
  m_allRight = false;
  m_ending = true;
  say(words);
  if (m_uploader.state() == QProcess::NotRunning) {
    QMetaObject::invokeMethod(
        this, [this] { emit finished(1); }, Qt::QueuedConnection);
    return;
  }
  endUploader();
}
