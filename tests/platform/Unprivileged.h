#pragma once
// Rights of a common user for the life of the object, so that modes hold for root too. `home` becomes reachable for it.

#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

class Unprivileged {
 public:
  explicit Unprivileged(const QString& home) {
    if (m_root && (::chmod(QFile::encodeName(home).constData(), 0755) != 0 || ::seteuid(65534) != 0))
      qFatal("still root");
  }
  ~Unprivileged() {
    if (m_root && ::seteuid(0) != 0) qFatal("cannot take root's rights back");
  }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;

 private:
  const bool m_root = ::geteuid() == 0;
};
