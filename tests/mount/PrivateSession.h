#pragma once
// A session bus of the test's own, on which nothing but the mount service can be started: no keyring, no desktop. One
// for the whole program, as the mount library keeps the first that it meets.

#include <QProcess>

#include "support/TemporaryHome.h"

/// Makes a child end with this program, and lead a group of its own.
void bindChild(QProcess& process);

class PrivateSession {
 public:
  PrivateSession();
  ~PrivateSession();
  PrivateSession(const PrivateSession&) = delete;
  PrivateSession& operator=(const PrivateSession&) = delete;
  /// Why shares can't be mounted on this machine at all; empty if they can.
  [[nodiscard]] static QString missing();
  static void unmount(const QString& url);

 private:
  TemporaryHome m_home;
  QProcess m_bus;
};
