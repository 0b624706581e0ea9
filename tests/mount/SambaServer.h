#pragma once
// A real file server on a loopback port, run by whoever runs the test: one share, whose name holds a blank, and one
// login. What lies in the share is an ordinary folder of the test's.

#include <QProcess>
#include <QTemporaryDir>

class SambaServer {
 public:
  SambaServer();
  ~SambaServer();
  SambaServer(const SambaServer&) = delete;
  SambaServer& operator=(const SambaServer&) = delete;

  void start();
  void stop();    ///< connections break
  void freeze();  ///< it answers nothing, and nothing breaks
  void thaw();

  [[nodiscard]] QString url() const;  ///< with the blank as it is
  [[nodiscard]] QString login() const { return m_login; }
  [[nodiscard]] QString password() const { return QStringLiteral("ink & paper"); }
  [[nodiscard]] QString folder() const { return m_dir.filePath(QStringLiteral("share")); }

 private:
  void signalAll(int number) const;
  QTemporaryDir m_dir;
  QProcess m_server;
  QString m_login;
  int m_port = 0;
};
