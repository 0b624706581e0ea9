#pragma once
// One connection to the practice service: reads one HTTP request, lets the service judge it, and delivers the reply
// well or badly. Owned by the listener; the service's thread.

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>

#include "practice/EnvelopeReader.h"
#include "practice/PracticeBooks.h"
#include "practice/PracticeStore.h"

class QSslSocket;

/// What the connections of one service have in common; outlives them.
struct PracticeContext {
  PracticeService::Options options;
  PracticeBooks books;
  std::unique_ptr<PracticeStore> store;
  QByteArray passwordHash;
  QString ownUrl;
};

class PracticeConnection : public QObject {
  Q_OBJECT

 public:
  /// Takes the socket, whose TLS stands.
  PracticeConnection(QSslSocket* socket, PracticeContext& context, QObject* parent);
  ~PracticeConnection() override;

 public slots:
  /// Answers a request that is held back.
  void release();

 private:
  enum class Phase { Head, Body, Held, Reply, Drain, Deaf };

  void readMore();
  void readHead();
  void readBody();
  [[nodiscard]] qint64 nextPieceBytes() const;
  void bodyArrived(const QByteArray& piece);
  void meetMisbehaviour();
  void requestComplete();
  [[nodiscard]] QByteArray judge(const SoapRequest& request);
  [[nodiscard]] QByteArray takeFile(const SoapRequest& request);
  void refuse(int status, const QByteArray& words);
  void deliver(const QByteArray& reply);
  void write(qint64 bytes);
  void bytesWentOut();
  [[nodiscard]] bool does(Misbehaviour::Kind kind) const;
  void drop();
  void becomeDeaf();

  QSslSocket* m_socket;
  PracticeContext& m_context;
  Phase m_phase = Phase::Head;
  quint64 m_id = 0;
  QByteArray m_head, m_content;
  qint64 m_bodyBytes = 0, m_received = 0;
  bool m_met = false;  // the script was asked, once the method was known
  std::optional<Misbehaviour> m_misbehaviour;
  std::unique_ptr<PracticeStore::Incoming> m_incoming;
  std::unique_ptr<EnvelopeReader> m_reader;
  QByteArray m_reply;
  qint64 m_written = 0;
  bool m_allWritten = false;
  bool m_drains = false;
  QTimer m_trickle;
};
