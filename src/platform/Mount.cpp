#include <cerrno>

#include "platform/System.h"

QString mountShare(const MountRequest&, int& errorCode) {
  errorCode = ENOTSUP;
  return {};
}
