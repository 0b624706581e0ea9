#pragma once
// What the upload thread has done at a task's folders, on a thread beside it, so that a share that hangs holds up one
// task and not all: work whose calls are held up for too long is left behind with its thread. Until it ends by itself
// the task is its own, and nobody else looks at the task's folders; what it finds out so late is dropped.

#include <functional>

#include "engine/UploaderTask.h"

namespace FolderWork {

/// Forgets how long earlier work of the run was waited for.
void beginRun();

enum class Kind { Look, Batch };

/// Runs `work` and waits for it; throws what it threw. False when it was left behind: calls of its were held up for
/// 20 s, or those of a look for 1 s once another's have been in the same run. It must own what it refers to. Upload
/// thread.
[[nodiscard]] bool run(const TaskPointer& task, Kind kind, std::function<void()> work);

/// In place of the 20 s. Any thread.
void setLimit(int milliseconds);

/// Told of what work threw after it was left behind. Called on its thread.
using LateFailure = std::function<void(const TaskPointer& task, const QString& reason)>;
void setLateFailure(LateFailure failure);

/// Lets the thread that waits for work end, and waits until none is left; false if one still hangs after `timeoutMs`.
[[nodiscard]] bool stop(int timeoutMs);

}  // namespace FolderWork
