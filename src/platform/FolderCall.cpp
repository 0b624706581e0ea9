#include "platform/FolderCall.h"

#include <ctime>

namespace {

constexpr qint64 SlowMs = 1000;  // a call that takes less proves the share alive

thread_local HeldUpCalls* counted = nullptr;

qint64 nowMs() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);  // a few ns, in steps of milliseconds
  return qint64{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

}  // namespace

// One thread writes, and whoever asks may be a moment late: no order is needed.
constexpr auto Relaxed = std::memory_order_relaxed;

qint64 HeldUpCalls::heldUpMs() const {
  const qint64 began = m_beganMs.load(Relaxed), slow = m_slowMs.load(Relaxed);
  if (began == 0) return 0;
  const qint64 lasts = nowMs() - began;
  return slow == 0 && lasts < SlowMs ? 0 : slow + lasts;
}

HeldUpCalls::Count::Count(HeldUpCalls& calls) : m_before(counted) {
  calls.m_slowMs.store(0, Relaxed);
  counted = &calls;
}

HeldUpCalls::Count::~Count() { counted = m_before; }

FolderCall::FolderCall() {
  if (counted && counted->m_depth++ == 0) counted->m_beganMs.store(nowMs(), Relaxed);
}

FolderCall::~FolderCall() {
  if (!counted || --counted->m_depth > 0) return;
  const qint64 lasted = nowMs() - counted->m_beganMs.load(Relaxed);
  counted->m_slowMs.store(lasted < SlowMs ? 0 : counted->m_slowMs.load(Relaxed) + lasted, Relaxed);
  counted->m_beganMs.store(0, Relaxed);
}
