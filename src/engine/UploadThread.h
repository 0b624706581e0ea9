#pragma once
// The one background worker: each run walks the tasks, processes what is due, and ends when no task has work. The
// thread sleeps between runs. Shared operations are safe from any thread.

#include <atomic>

#include "engine/EngineActivity.h"
#include "engine/UploaderTask.h"

class UploadThread {
 public:
  /// The master switch of uploading; a run ends at its next test of it.
  static std::atomic<bool> Enabled;
  /// Switches uploading on, or leaves that to the end of the last UploadHold.
  static void enable();

  /// Begins a run, on the thread that the first call makes; does nothing while one is under way.
  static void Start();
  [[nodiscard]] static bool ProcessingNow();
  /// True from stop() on: loops of the upload thread end at their next test of it.
  [[nodiscard]] static bool stopping();
  /// Breaks a transfer off and ends the thread; true if it ended within `timeoutMs`.
  static bool stop(int timeoutMs);
  /// Lets Start() work again after stop(), as in a new process; for tests.
  static void allowAgain();
  /// States that the task was stopped by a fault, in a log row and for the main window. Any thread.
  static void recordFailure(const TaskPointer& task, const QString& reason);

 private:
  static void Event_Run();
};

/// Keeps uploading switched off while tasks or settings are changed; the end of the last one switches it on. Any
/// thread.
class UploadHold {
 public:
  UploadHold();
  ~UploadHold();
  UploadHold(const UploadHold&) = delete;
  UploadHold& operator=(const UploadHold&) = delete;
};
