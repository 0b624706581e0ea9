#pragma once
// A real file server on a loopback port, run by whoever runs the test: one share, whose name holds a blank, and one
// login. What lies in the share is an ordinary folder of the test's.

#include <QProcess>
#include <QTemporaryDir>
#include <csignal>

#include "platform/Mount.h"

class SambaServer {
 public:
  SambaServer();
  ~SambaServer();
  SambaServer(const SambaServer&) = delete;
  SambaServer& operator=(const SambaServer&) = delete;

  void start();
  void stop();                           ///< connections break
  void freeze() { signalAll(SIGSTOP); }  ///< it answers nothing, and nothing breaks
  void thaw() { signalAll(SIGCONT); }

  [[nodiscard]] QString url() const;           ///< with the blank as it is
  [[nodiscard]] MountRequest request() const;  ///< with the login, and the blank escaped
  [[nodiscard]] QString folder() const { return m_dir.filePath(QStringLiteral("share")); }

 private:
  void signalAll(int number) const;
  QTemporaryDir m_dir;
  QProcess m_server;
  int m_port = 0;
};
