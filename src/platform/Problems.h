#pragma once
// What is wrong at the moment, for the one line in which a person sees it. Lower rooms raise and clear; the window
// reads. Guarded inside; any thread.

#include <QList>
#include <QString>

struct Problem {
  enum class Kind {
    NoLogin,
    TaskFileSkipped,        ///< subject: file name; detail: why
    TaskFolderUnreadable,   ///< detail: why
    PreferencesSetAside,    ///< subject: new name of the damaged file
    PreferencesNotSaved,    ///< detail: why
    LogSetAside,            ///< subject: new name of the damaged file
    LogUnavailable,         ///< detail: why
    LogRowLost,             ///< detail: why
    ExclusionInvalid,       ///< subject: task; detail: the pattern's error
    ExclusionTooCostly,     ///< subject: task; detail: the file kept back
    InputFolderUnreadable,  ///< subject: task; detail: why
    FolderSilent,           ///< subject: task
    NothingMounted,         ///< subject: task; detail: the mount point that stands bare
    ShareNotMounted,        ///< subject: the share's address; detail: why
    CopyFailed,             ///< subject: task; detail: file and why
    DeleteFailed,           ///< subject: task; detail: file and why
    UploadFailed,           ///< subject: task; detail: file and why
    FileWaits,              ///< subject: task; detail: file and why it can't be read for now
    RunFailed,              ///< subject: task; detail: the exception's words
    ServiceUnreachable,     ///< detail: from whom no answer came
    ServiceRefuses,         ///< detail: the service's words
  };
  Kind kind;
  QString subject;
  QString detail;
};

namespace Problems {
/// States a problem; one of the same kind and subject is replaced.
void raise(Problem::Kind kind, const QString& subject, const QString& detail);
void clear(Problem::Kind kind, const QString& subject);
void clearKind(Problem::Kind kind);
/// The present ones, the oldest first.
[[nodiscard]] QList<Problem> present();
}  // namespace Problems
