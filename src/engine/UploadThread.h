#pragma once
// The one background worker: each run walks the tasks, processes what is due, and ends when no task has work. The
// thread sleeps between runs. Shared operations are safe from any thread.

#include <QString>
#include <atomic>

class UploadThread {
 public:
  /// The master switch of uploading; a run ends at its next test of it.
  static std::atomic<bool> Enabled;

  /// Begins a run, on the thread that the first call makes; does nothing while one is under way.
  static void Start();
  [[nodiscard]] static bool ProcessingNow();
  /// Breaks a transfer off and ends the thread; true if it ended within `timeoutMs`.
  static bool stop(int timeoutMs);
};

/// What the engine is doing at this moment, for the window's foot strip.
struct EngineActivity {
  bool sending = false;
  QString task, file;
  qint64 sentBytes = 0, totalBytes = 0;  ///< of the file
};
[[nodiscard]] EngineActivity engineActivity();
