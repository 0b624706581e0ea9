#pragma once
// The hidden names under which files of ours are written before they get their own: with our mark, the machine and
// process that write them, and a random part. Any thread.

#include <QByteArray>

/// A new name; no path.
[[nodiscard]] QByteArray makeHiddenName();

/// Whether a name with our mark was left behind: its process on this machine is gone, or it comes from elsewhere (or
/// from before a restart) and has not changed for a day, by the status date `changedNs`.
[[nodiscard]] bool isLeftover(const QByteArray& name, qint64 changedNs);

/// Whether a name has our mark.
[[nodiscard]] bool hasOurMark(const QByteArray& name);
