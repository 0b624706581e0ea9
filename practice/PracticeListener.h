#pragma once
// The listening side of the practice service: TLS on one address, a PracticeConnection for each client. Owned and used
// by the service's thread.

#include <QHash>
#include <QSslServer>

#include "practice/PracticeConnection.h"

class PracticeListener : public QSslServer {
  Q_OBJECT

 public:
  explicit PracticeListener(PracticeContext& context, QObject* parent = nullptr);
  ~PracticeListener() override;

 signals:
  void released();

 protected:
  void incomingConnection(qintptr descriptor) override;

 private:
  class RawCount;
  void socketFailed(QSslSocket* socket);
  void takeConnections();
  void neverSpeakTls(qintptr descriptor, bool cutAtFirstBytes);

  PracticeContext& m_context;
  QHash<QSslSocket*, RawCount*> m_counts;  // of handshakes under way; owned by their sockets
};
