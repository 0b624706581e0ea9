#include "platform/Problems.h"

#include <QMutex>
#include <algorithm>

namespace {

// Months of running must not grow the list: beyond this many the oldest goes.
constexpr qsizetype kMost = 300;

struct Board {
  QMutex mutex;  // guards the one below
  QList<Problem> problems;
};

Board& board() {
  static Board instance;
  return instance;
}

}  // namespace

void Problems::raise(Problem::Kind kind, const QString& subject, const QString& detail) {
  QMutexLocker lock(&board().mutex);
  auto& list = board().problems;
  const auto same =
      std::find_if(list.begin(), list.end(), [&](const Problem& p) { return p.kind == kind && p.subject == subject; });
  if (same != list.end()) {
    same->detail = detail;
    return;
  }
  if (list.size() >= kMost) list.removeFirst();
  list.append({kind, subject, detail});
}

void Problems::clear(Problem::Kind kind, const QString& subject) {
  QMutexLocker lock(&board().mutex);
  board().problems.removeIf([&](const Problem& p) { return p.kind == kind && p.subject == subject; });
}

void Problems::clearKind(Problem::Kind kind) {
  QMutexLocker lock(&board().mutex);
  board().problems.removeIf([&](const Problem& p) { return p.kind == kind; });
}

QList<Problem> Problems::present() {
  QMutexLocker lock(&board().mutex);
  // A copy of its own and not a shared one, of which a thread could still read while the board is written.
  return {board().problems.cbegin(), board().problems.cend()};
}
