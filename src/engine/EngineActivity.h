#pragma once
// What the engine is doing at this moment, for the window's foot strip. Guarded; any thread.

#include <QString>

struct EngineActivity {
  bool sending = false;
  QString task, file;
  qint64 sentBytes = 0, totalBytes = 0;  ///< of the file
};

[[nodiscard]] EngineActivity engineActivity();
void setEngineActivity(const EngineActivity& activity);
/// Ends what is told of this task; another's stays.
void clearEngineActivity(const QString& task);
/// Only the bytes of the file under way.
void setEngineProgress(qint64 sentBytes, qint64 totalBytes);
