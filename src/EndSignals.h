#pragma once
// SIGTERM, SIGINT and SIGHUP as a call on the main thread, so that the end of a session is an orderly quit.

#include <QSocketNotifier>
#include <functional>
#include <memory>

class EndSignals {
 public:
  explicit EndSignals(std::function<void()> onEnd);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  std::unique_ptr<QSocketNotifier> m_notifier;
};
