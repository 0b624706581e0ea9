#pragma once
// What the engine is doing at this moment, for the window's foot strip. Guarded; any thread.

#include <QString>

class UploaderTask;

struct EngineActivity {
  bool sending = false;
  QString task, file;
  qint64 sentBytes = 0, totalBytes = 0;  ///< of the file
};

[[nodiscard]] EngineActivity engineActivity();

// What a task tells of itself; nothing once its work was left behind, since it is another one's turn then.
void tellSending(const UploaderTask& task, const QString& file, qint64 totalBytes);
void tellProgress(const UploaderTask& task, qint64 sentBytes, qint64 totalBytes);
void tellBatchEnded(const UploaderTask& task);
/// After a batch was left behind.
void clearEngineActivity();
