#pragma once
// One client of the practice proxy, and the server that it is led to. The proxy's thread; deletes itself when either
// side is gone.

#include <QObject>
#include <QTcpSocket>
#include <QTimer>
#include <functional>

#include "practice/PracticeProxy.h"

class ProxyConnection : public QObject {
  Q_OBJECT

 public:
  struct Events {
    std::function<void(const QByteArray& head)> requested;
    std::function<void()> tunnelStands;
  };
  /// Takes the socket.
  ProxyConnection(QTcpSocket* client, const PracticeProxy::Behaviour& behaviour, Events events, QObject* parent);

 private:
  void readHead();
  void answer();
  void connectToServer();
  void serverReached();
  void reply(const QByteArray& bytes, bool thenClose);
  void sendNextPiece();
  void pump(QTcpSocket& from, QTcpSocket& to);
  void end(QTcpSocket& other);

  QTcpSocket* m_client;
  QTcpSocket m_server;
  PracticeProxy::Behaviour m_behaviour;
  Events m_events;
  QByteArray m_head, m_forServer;
  bool m_headDone = false, m_relaying = false;
  QByteArray m_out;
  qsizetype m_sent = 0;
  bool m_closeAfter = false;
  QTimer m_beat;
};
