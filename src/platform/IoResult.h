#pragma once
// The outcome of one operation on the machine. A value; any thread.

#include <QString>

struct [[nodiscard]] IoResult {
  int error = 0;   ///< errno of the step that failed; 0 when all went well
  QString detail;  ///< what was being done, in words for a person; never holds a secret

  static IoResult failure(int errnoValue, const QString& doing);
  [[nodiscard]] bool ok() const { return error == 0; }
  /// "doing: words of the system", for a message; empty when all went well.
  [[nodiscard]] QString message() const;
};
