#pragma once
// One thing at a time that a window has done on a thread of its own, because it may block: a look at a folder, a call
// to the service, a save. The answer comes back on the main thread and is dropped when the call was cancelled, was
// begun anew, or its owner is gone. A thread that hangs is left behind and touches nothing of the owner's.

#include <QObject>
#include <QTimer>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

class BackgroundCall : public QObject {
 public:
  /// Asked by work that takes several steps: true when nobody waits for it any more.
  using Cancelled = std::function<bool()>;

  /// Main thread. `threadName` has at most 15 bytes.
  BackgroundCall(const char* threadName, QObject* parent);
  ~BackgroundCall() override;

  /// Begins `work`; an earlier one is cancelled. `done` is called with its result, `slow` once if none stands after
  /// `limitMs` (0: never), at once if the work can't be begun or has thrown. After `slow` a result is still handed
  /// over when it comes. All but `work` are called on the main thread.
  template <typename Result>
  void run(int limitMs, std::function<Result(const Cancelled&)> work, std::function<void(const Result&)> done,
           std::function<void()> slow = {}) {
    runInPieces<int, Result>(
        limitMs, [work = std::move(work)](const Cancelled& cancelled, const auto&) { return work(cancelled); }, {},
        std::move(done), std::move(slow));
  }
  /// The same for work that gives pieces on its way: each is handed to `piece`, in order and before `done`.
  template <typename Piece, typename Result>
  void runInPieces(int limitMs, std::function<Result(const Cancelled&, const std::function<void(Piece)>&)> work,
                   std::function<void(const Piece&)> piece, std::function<void(const Result&)> done,
                   std::function<void()> slow = {}) {
    auto result = std::make_shared<Slot<Result>>();
    begin(
        limitMs,
        [result, work = std::move(work), piece = std::move(piece)](const Cancelled& cancelled, const Post& post) {
          Result value = work(cancelled, [&](Piece one) { post([piece, one = std::move(one)] { piece(one); }); });
          const std::lock_guard lock(result->mutex);
          result->value = std::move(value);
        },
        [result, done = std::move(done)] {
          const std::lock_guard lock(result->mutex);
          if (result->value && done) done(*result->value);
          return result->value.has_value();
        },
        std::move(slow));
  }
  void cancel();
  [[nodiscard]] bool running() const { return m_job != nullptr; }
  /// False while a thread of this object has not ended, be it cancelled or not.
  [[nodiscard]] bool idle() const { return m_threads->load() == 0; }

  /// Waits until no such thread of the program is left; false if one is after `timeoutMs`. At the end of the program.
  [[nodiscard]] static bool waitForAll(int timeoutMs);

 private:
  struct Job;
  template <typename Result>
  struct Slot {
    std::mutex mutex;  // guards value
    std::optional<Result> value;
  };
  /// Has something called on the main thread, unless the call is no longer waited for by then.
  using Post = std::function<void(std::function<void()>)>;
  void begin(int limitMs, std::function<void(const Cancelled&, const Post&)> work, std::function<bool()> finish,
             std::function<void()> slow);
  void ended(const std::shared_ptr<Job>& job);
  void tellSlow();

  const char* m_threadName;
  std::shared_ptr<Job> m_job;
  std::shared_ptr<std::atomic<int>> m_threads;  // of this object that have not ended
  std::function<bool()> m_finish;
  std::function<void()> m_slow;
  QTimer m_limit;
};
