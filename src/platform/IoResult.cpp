#include "platform/IoResult.h"

#include <cerrno>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

IoResult IoResult::failure(int errnoValue, const QString& doing) {
  // A library that fails without an errno must not look like a success.
  return {errnoValue != 0 ? errnoValue : EIO, doing};
}

QString IoResult::message() const {
  if (ok()) return {};
  char buffer[256];
  const QString words = QString::fromLocal8Bit(strerror_r(error, buffer, sizeof buffer));
  return detail.isEmpty() ? words : detail + u": "_s + words;
}
