#pragma once
// Filling values into a text with places for them. A plain function; any thread.

#include <QString>
#include <QStringList>

/// `text` with $1 replaced by the first value, $2 by the second, up to $9. What a value holds is never replaced
/// again. A place without a value stays as it is, and so does a '$' that no digit from 1 to 9 follows.
[[nodiscard]] QString fillPlaceholders(const QString& text, const QStringList& values);
