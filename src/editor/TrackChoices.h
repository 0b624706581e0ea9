#pragma once
// The rows of the editor's two dependent lists, looked up in the catalogues, and which of them a stored workflow name
// selects. Plain functions; any thread.

#include <QList>
#include <QString>
#include <QStringList>

namespace TrackChoices {

enum class Kind { Print, Instrument };

struct Target {
  QString text;
  QString workflowName;  ///< what a task stores
};

/// The presses, or the instruments.
[[nodiscard]] QStringList devices(Kind kind);
/// The tracks of a press, or the targets of an instrument; none for a blank device.
[[nodiscard]] QList<Target> targets(Kind kind, const QString& device);

// As the lists are filled anew, the last row that fits holds, and a print track is found by its press name. -1 for
// none. An empty workflow name selects nothing.
[[nodiscard]] int deviceWhileFilling(Kind kind, const QStringList& rows, const QString& workflowName);
[[nodiscard]] int targetWhileFilling(Kind kind, const QString& device, const QList<Target>& rows,
                                     const QString& workflowName);

// As a task is opened, the first row that fits holds, and a print track is found by its device. -1 for none.
[[nodiscard]] int deviceOfTask(Kind kind, const QStringList& rows, const QString& workflowName);
[[nodiscard]] int targetOfTask(Kind kind, const QList<Target>& rows, const QString& workflowName);

}  // namespace TrackChoices
