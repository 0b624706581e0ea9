#include "LogViewWorker.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <chrono>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>

#include "Agent.h"
#include "monitor/SystemLogWindow.h"
#include "storage/LogDatabase.h"

using namespace Qt::Literals::StringLiterals;

namespace bench {

namespace {

constexpr int LimitMs = 60'000;
constexpr int Scrolls = 200;

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point begin) { return std::chrono::duration<double>(Clock::now() - begin).count(); }

qint64 statusKiB(const std::string& key) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with(key)) return std::stol(line.substr(key.size()));
  fail("no " + key);
}

void waitFor(const std::function<bool()>& condition) {
  QElapsedTimer waited;
  for (waited.start(); !condition();) {
    if (waited.elapsed() > LimitMs) fail("the viewer does not come to an end");
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

/// Beats every millisecond and keeps the longest time between two beats.
class Heart {
 public:
  Heart() {
    QObject::connect(&m_timer, &QTimer::timeout, [this] {
      m_longest = std::max(m_longest, secondsSince(m_beat));
      m_beat = Clock::now();
    });
    m_timer.start(1);
  }
  [[nodiscard]] double longest() const { return m_longest; }

 private:
  QTimer m_timer;
  Clock::time_point m_beat = Clock::now();
  double m_longest = 0;
};

class Application {
 public:
  explicit Application(const std::string& home) : m_agent(home) {}

 private:
  Agent m_agent;  // first, for the folders that it sets
  bool m_offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
  int m_count = 1;
  char m_name[6] = "bench";
  char* m_arguments[2] = {m_name, nullptr};
  QApplication m_application{m_count, m_arguments};
};

}  // namespace

void viewLog(const Command& a) {
  const Application application(a[0]);
  const int rows = std::stoi(a[1]);
  const qint64 before = statusKiB("VmRSS:");
  const auto begin = Clock::now();
  SystemLogWindow::bringUp();
  SystemLogWindow* const window = SystemLogWindow::openOne();
  auto* const list = window->findChild<LogListView*>();
  const QAbstractItemModel& model = *list->model();
  waitFor([&] { return model.index(0, 0).data().isValid(); });
  (void)window->grab();
  std::cout << "first " << secondsSince(begin) << '\n';
  const Heart heart;
  waitFor([&] { return model.rowCount() == rows; });
  std::cout << "ids " << secondsSince(begin) << '\n';
  for (int i = 0; i < Scrolls; ++i) {
    const int row = static_cast<int>(qint64{i} * 7'919'003 % rows);
    list->setScrollPosition(row);
    if (i % 10 == 0) waitFor([&] { return model.index(list->ScrollPosition(), 0).data().isValid(); });
    QCoreApplication::processEvents();
  }
  const auto typed = Clock::now();
  window->findChild<QLineEdit*>()->setText(u"measurement %1.txt"_s.arg(rows));
  waitFor([&] { return model.rowCount() < rows; });
  auto* const find = window->findChild<LogFind*>();
  waitFor([&] { return !find->searching(); });
  if (model.rowCount() != 1) fail("the search found something else");
  std::cout << "find " << secondsSince(typed) << "\npause " << heart.longest() << "\ngrowth "
            << statusKiB("VmHWM:") - before << '\n';
  delete window;
}

void exportLog(const Command& a) {
  const Agent agent(a[0]);
  const LogReader::OpenResult opened = LogReader::open(VantryUtil::logDB->file());
  if (!opened.reader) fail(opened.error.toStdString());
  QString error;
  const auto ids = opened.reader->ids(0, std::stoi(a[1]), &error);
  if (!ids) fail(error.toStdString());
  const auto begin = Clock::now();
  const ExportOutcome outcome = exportRows(
      {VantryUtil::logDB->file(), opened.columns}, *ids, *FolderItem::fromBytes(QByteArray::fromStdString(a[2])),
      [] { return false; }, [](qint64) {});
  if (!outcome.error.isEmpty()) fail(outcome.error.toStdString());
  std::cout << "wall " << secondsSince(begin) << '\n';
}

}  // namespace bench
