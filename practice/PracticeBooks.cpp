#include "practice/PracticeBooks.h"

#include <chrono>

using Kind = Misbehaviour::Kind;

static bool isOfConnection(Kind kind) { return kind == Kind::SilentHandshake || kind == Kind::CutHandshake; }

quint64 PracticeBooks::beginRequest(const QByteArray& head) {
  const std::lock_guard lock(m_mutex);
  m_requests[++m_lastId].head = head;
  m_changed.notify_all();
  return m_lastId;
}

void PracticeBooks::changeRequest(quint64 id, const std::function<void(PracticeRequest&)>& change) {
  const std::lock_guard lock(m_mutex);
  const auto found = m_requests.find(id);
  if (found != m_requests.end()) change(found->second);  // else it was forgotten meanwhile
}

void PracticeBooks::addReceipt(const PracticeReceipt& receipt) {
  std::function<void(const PracticeReceipt&)> observer;
  {
    const std::lock_guard lock(m_mutex);
    m_receipts.append(receipt);
    m_changed.notify_all();
    observer = m_observer;
  }
  if (observer) observer(receipt);
}

template <typename Fits>
std::optional<Misbehaviour> PracticeBooks::take(const Fits& fits) {
  const std::lock_guard lock(m_mutex);
  for (qsizetype i = 0; i < m_misbehaviours.size(); ++i) {
    Misbehaviour& waiting = m_misbehaviours[i];
    if (!fits(waiting)) continue;
    const Misbehaviour taken = waiting;
    if (waiting.times > 0 && --waiting.times == 0) m_misbehaviours.removeAt(i);
    return taken;
  }
  return std::nullopt;
}

std::optional<Misbehaviour> PracticeBooks::takeForConnection() {
  return take([](const Misbehaviour& waiting) { return isOfConnection(waiting.kind); });
}

std::optional<Misbehaviour> PracticeBooks::takeForRequest(const QByteArray& method) {
  return take([&](const Misbehaviour& waiting) {
    return !isOfConnection(waiting.kind) && (waiting.method.isEmpty() || waiting.method == method);
  });
}

std::optional<qint64> PracticeBooks::hookAt(const QByteArray& method) const {
  const std::lock_guard lock(m_mutex);
  if (!m_hook || (!m_hook->method.isEmpty() && m_hook->method != method)) return std::nullopt;
  return m_hook->bytes;
}

std::function<void()> PracticeBooks::takeHook() {
  const std::lock_guard lock(m_mutex);
  std::function<void()> call;
  if (m_hook) call = std::move(m_hook->call);
  m_hook.reset();
  return call;
}

void PracticeBooks::connectionAccepted() {
  const std::lock_guard lock(m_mutex);
  ++m_connections;
}

void PracticeBooks::handshakeFailed(qint64 rawBytes) {
  const std::lock_guard lock(m_mutex);
  ++m_failedHandshakes;
  m_bytesBeforeFailure += rawBytes;
}

void PracticeBooks::heldChanged(int by) {
  const std::lock_guard lock(m_mutex);
  m_held += by;
  m_changed.notify_all();
}

bool PracticeBooks::holding() const {
  const std::lock_guard lock(m_mutex);
  return m_holding;
}

QList<PracticeReceipt> PracticeBooks::receipts() const {
  const std::lock_guard lock(m_mutex);
  // A list of the caller's own: a shared one would be read while the next receipt is added to it.
  return {m_receipts.cbegin(), m_receipts.cend()};
}

QList<PracticeRequest> PracticeBooks::requests() const {
  const std::lock_guard lock(m_mutex);
  QList<PracticeRequest> list;
  for (const auto& [id, request] : m_requests) list.append(request);
  return list;
}

template <typename Reached>
bool PracticeBooks::waitUntil(int timeoutMs, const Reached& reached) const {
  std::unique_lock lock(m_mutex);
  return m_changed.wait_for(lock, std::chrono::milliseconds(timeoutMs), reached);
}

bool PracticeBooks::waitForReceipts(int count, int timeoutMs) const {
  return waitUntil(timeoutMs, [&] { return m_receipts.size() >= count; });
}

bool PracticeBooks::waitForRequests(int count, int timeoutMs) const {
  return waitUntil(timeoutMs, [&] { return static_cast<int>(m_requests.size()) >= count; });
}

bool PracticeBooks::waitForHeld(int count, int timeoutMs) const {
  return waitUntil(timeoutMs, [&] { return m_held >= count; });
}

void PracticeBooks::setObserver(std::function<void(const PracticeReceipt&)> observer) {
  const std::lock_guard lock(m_mutex);
  m_observer = std::move(observer);
}

void PracticeBooks::forget() {
  const std::lock_guard lock(m_mutex);
  m_requests.clear();
  m_receipts.clear();
  m_connections = m_failedHandshakes = 0;
  m_bytesBeforeFailure = 0;
}

int PracticeBooks::connections() const {
  const std::lock_guard lock(m_mutex);
  return m_connections;
}

int PracticeBooks::failedHandshakes() const {
  const std::lock_guard lock(m_mutex);
  return m_failedHandshakes;
}

qint64 PracticeBooks::bytesBeforeFailedHandshakes() const {
  const std::lock_guard lock(m_mutex);
  return m_bytesBeforeFailure;
}

void PracticeBooks::misbehave(const Misbehaviour& misbehaviour) {
  const std::lock_guard lock(m_mutex);
  m_misbehaviours.append(misbehaviour);
}

void PracticeBooks::behave() {
  const std::lock_guard lock(m_mutex);
  m_misbehaviours.clear();
  m_hook.reset();
}

void PracticeBooks::setHook(Hook hook) {
  const std::lock_guard lock(m_mutex);
  m_hook = std::move(hook);
}

void PracticeBooks::setHolding(bool holding) {
  const std::lock_guard lock(m_mutex);
  m_holding = holding;
}
