#include "monitor/LogFind.h"

constexpr int TypingMs = 50;

LogFind::LogFind(LogModel* model, QObject* parent) : QObject(parent), m_model(model), m_search("log-find", this) {
  m_wait.setSingleShot(true);
  connect(&m_wait, &QTimer::timeout, this, &LogFind::begin);
}

void LogFind::setFilter(const LogFilter& filter) {
  if (filter == m_filter) return;
  m_filter = filter;
  m_error.clear();
  m_search.cancel();
  m_wait.stop();
  if (m_held) return;
  if (filter.narrows()) {
    m_wait.start(TypingMs);
    return;
  }
  m_model->showAll();
  emit finished();
}

void LogFind::hold() {
  m_held = true;
  m_error.clear();
  m_search.cancel();
  m_wait.stop();
}

void LogFind::release() {
  m_held = false;
  if (m_filter.narrows()) return begin();
  m_model->showAll();
  emit finished();
}

void LogFind::begin() {
  if (!m_log) return;
  m_fresh = true;
  const auto take = [this](const QList<qint64>& ids) {
    if (std::exchange(m_fresh, false))
      m_model->setMatches(ids);
    else
      m_model->appendMatches(ids);
  };
  m_search.runInPieces<QList<qint64>, QString>(
      0,
      [log = *m_log, ids = m_model->all(), filter = m_filter](const Cancelled& cancelled, const IdPieces& hand) {
        return searchIds(log, ids, filter, cancelled, hand);
      },
      take,
      [this](const QString& error) {
        // What a search found before it failed would be exported as if it were all.
        if (m_fresh || !error.isEmpty()) m_model->setMatches({});
        m_error = error;
        if (error.isEmpty())
          emit finished();
        else
          emit failed(error);
      },
      // The threads of earlier searches have not ended yet.
      [this] { m_wait.start(TypingMs); });
}
