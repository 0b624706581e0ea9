#pragma once
// Rights of a common user for the life of the object, so that modes hold for root too.

#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QString>

class Unprivileged {
 public:
  /// `home` becomes reachable for that user.
  explicit Unprivileged(const QString& home) {
    if (geteuid() != 0) return;
    ::chmod(QFile::encodeName(home).constData(), 0755);
    m_changed = ::seteuid(65534) == 0;
    if (!m_changed) qFatal("cannot give up root's rights");
  }
  ~Unprivileged() {
    if (m_changed && ::seteuid(0) != 0) qFatal("cannot take root's rights back");
  }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;

 private:
  bool m_changed = false;
};
