#pragma once
// The one line at the foot of the main window: what is being sent, or what is wrong, or since when all is well. Rules
// on plain values; no window, no file. Any thread.

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>

#include "engine/UploadThread.h"
#include "platform/Problems.h"

/// How far the program has come up.
enum class StartPhase {
  Connecting,  ///< the tasks are not loaded yet
  Checking,    ///< loaded, and not all of them were looked at yet
  Running
};

struct StripInput {
  QString notice;  ///< an answer to what the user just did; before everything else while it lasts
  EngineActivity activity;
  QList<Problem> problems;  ///< the oldest first
  QStringList faultyTasks;  ///< tasks that can't use their folders
  StartPhase phase = StartPhase::Connecting;
  bool held = false;    ///< uploading is, since tasks or settings are being changed
  QDateTime wellSince;  ///< local; invalid while something is wrong or held
  QDateTime now;        ///< local
};

struct StripLine {
  enum class Tone { Quiet, Sending, Wrong, Well };
  Tone tone = Tone::Quiet;
  QString text;     ///< one line
  QString more;     ///< how many more things are wrong, to be seen also when the text is cut; mostly empty
  QString details;  ///< the whole line; when several things are wrong, all of them, one to a line
  bool operator==(const StripLine&) const = default;
};
[[nodiscard]] StripLine composeStrip(const StripInput& input);

/// Whether nothing is wrong and nothing held.
[[nodiscard]] bool isWell(const StripInput& input);

/// Remembers since when all is well.
class WellSince {
 public:
  /// Looks at the present state; gives the beginning of the good time, or an invalid date while there is none.
  QDateTime update(const StripInput& input);

 private:
  QDateTime m_since;
};
