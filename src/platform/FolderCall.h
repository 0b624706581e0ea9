#pragma once
// How long one thread's calls to files and folders are held up, seen from another thread: a share that has died keeps
// a call in the kernel for seconds or for ever, and nothing can be asked of the thread that made it.

#include <QtGlobal>
#include <atomic>

/// The calls of the thread that is counted. One thread counts; any thread may ask.
class HeldUpCalls {
 public:
  /// Milliseconds for which the call under way, and those just before it, have been held up; 0 after a quick one.
  [[nodiscard]] qint64 heldUpMs() const;

  /// While it lives, calls of the thread that made it are counted.
  class Count {
   public:
    explicit Count(HeldUpCalls& calls);
    ~Count();
    Count(const Count&) = delete;
    Count& operator=(const Count&) = delete;

   private:
    HeldUpCalls* m_before;
  };

 private:
  friend class FolderCall;
  std::atomic<qint64> m_beganMs{0};  // of the call under way; 0: none
  std::atomic<qint64> m_slowMs{0};   // of the slow calls just before it
  int m_depth = 0;
};

/// Stands around a call, or a few, that may block for a share. Costs next to nothing where nobody counts.
class FolderCall {
 public:
  FolderCall();
  ~FolderCall();
  FolderCall(const FolderCall&) = delete;
  FolderCall& operator=(const FolderCall&) = delete;
};
