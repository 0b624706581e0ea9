#pragma once
// What the practice service's thread and its callers share: what was received, what shall go wrong, the counts.
// Guarded inside; any thread.

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <optional>

#include "practice/PracticeService.h"

class PracticeBooks {
 public:
  struct Hook {
    qint64 bytes = 0;
    std::function<void()> call;
    QByteArray method;
  };

  /// Opens a record and gives the number under which it is changed.
  quint64 beginRequest(const QByteArray& head);
  void changeRequest(quint64 id, const std::function<void(PracticeRequest&)>& change);
  /// Gives the receipt its place, and tells the observer.
  void addReceipt(const PracticeReceipt& receipt);

  /// Takes the first waiting misbehaviour that fits and counts it down. `method` empty: one of the connection's kinds.
  std::optional<Misbehaviour> takeForConnection();
  std::optional<Misbehaviour> takeForRequest(const QByteArray& method);
  /// The hook, if it is for this method; fireHook() takes it away.
  [[nodiscard]] std::optional<qint64> hookAt(const QByteArray& method) const;
  std::function<void()> takeHook();

  void connectionAccepted();
  void handshakeFailed(qint64 rawBytes);
  void heldChanged(int by);
  [[nodiscard]] bool holding() const;

  // For the callers; see PracticeService.
  [[nodiscard]] QList<PracticeReceipt> receipts() const;
  [[nodiscard]] QList<PracticeRequest> requests() const;
  [[nodiscard]] bool waitForReceipts(int count, int timeoutMs) const;
  [[nodiscard]] bool waitForRequests(int count, int timeoutMs) const;
  [[nodiscard]] bool waitForHeld(int count, int timeoutMs) const;
  void setObserver(std::function<void(const PracticeReceipt&)> observer);
  void forget();
  [[nodiscard]] int connections() const;
  [[nodiscard]] int failedHandshakes() const;
  [[nodiscard]] qint64 bytesBeforeFailedHandshakes() const;
  void misbehave(const Misbehaviour& misbehaviour);
  void behave();
  void setHook(Hook hook);
  void setHolding(bool holding);

 private:
  template <typename Fits>
  std::optional<Misbehaviour> take(const Fits& fits);
  template <typename Reached>
  bool waitUntil(int timeoutMs, const Reached& reached) const;

  mutable std::mutex m_mutex;  // guards all below
  mutable std::condition_variable m_changed;
  quint64 m_lastId = 0;
  std::map<quint64, PracticeRequest> m_requests;
  QList<PracticeReceipt> m_receipts;
  QList<Misbehaviour> m_misbehaviours;
  std::optional<Hook> m_hook;
  std::function<void(const PracticeReceipt&)> m_observer;
  int m_connections = 0, m_failedHandshakes = 0, m_held = 0;
  qint64 m_bytesBeforeFailure = 0;
  bool m_holding = false;
};
