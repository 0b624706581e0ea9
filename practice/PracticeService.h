#pragma once
// A colour-quality web service to practise against: the five methods over TLS on the loopback interface, with a few
// presses and instruments, and told to misbehave at will. It runs on a thread of its own, so a caller may block; every
// operation may be called from any thread but that one. It ends with the object.

#include <QByteArray>
#include <QList>
#include <QString>
#include <functional>
#include <memory>

#include "practice/Certificates.h"
#include "practice/Misbehaviour.h"

/// One file that the service took.
struct PracticeReceipt {
  QString name;
  QString kind;  ///< "print" or "instrument"
  QString destination;
  qint64 size = 0;    ///< decoded bytes
  QByteArray sha256;  ///< of the decoded bytes, 64 lower-case hexadecimal digits
  QString login;
  QByteArray content;  ///< the decoded bytes, while they are no more than Options::keepBytes
  QString storedAs;    ///< path of the stored file; empty without a store folder
};

/// One request as it came, whether or not it was answered well.
struct PracticeRequest {
  QByteArray head;  ///< request line and headers as they came, blank line included
  /// The body as it came while it is no more than Options::keepBytes; above that the content of Base64string is left
  /// out, so that it is the envelope around the file.
  QByteArray body;
  qint64 bodyBytes = 0;   ///< that arrived
  bool complete = false;  ///< the whole body arrived
  QByteArray method;      ///< the element in the SOAP body, without prefix; empty while unknown
  QString login;
  QByteArray passwordHash;  ///< as it stood in the envelope
  QByteArray answer;        ///< the text that was put into `return`; empty when a misbehaviour stood in its place
};

class PracticeService {
 public:
  struct Options {
    QString login = QStringLiteral("practice");
    QString password = QStringLiteral("gray-balance-21");  ///< in clear; the wire carries its SHA-256
    QString tlsFolder;    ///< for certificate and key, kept from run to run; empty: a temporary one
    QString storeFolder;  ///< for the received files and receipts.jsonl; empty: nothing is written
    Certificates::Flaw certificateFlaw = Certificates::Flaw::None;  ///< a flawed one is never put into tlsFolder
    qint64 keepBytes = 4 << 20;  ///< what a receipt or request keeps in memory, see there
    int receiveBufferBytes = 0;  ///< of the sockets (SO_RCVBUF), to let a sender feel a stop early; 0: the system's
    QString apiUrl;              ///< what Get_API_URL answers; empty: the service's own https address
    bool jsonSuccess = false;    ///< files are confirmed by a JSON object instead of a plain text
    QList<int> onlyTls;          ///< {12} or {13} offers that TLS version alone; empty: both
  };

  PracticeService();
  explicit PracticeService(const Options& options);
  ~PracticeService();
  PracticeService(const PracticeService&) = delete;
  PracticeService& operator=(const PracticeService&) = delete;

  /// Listens on 127.0.0.1 and ::1 where there is one; port 0 takes any free one. False, with errorString(), when it
  /// can't. Blocks until it listens.
  [[nodiscard]] bool start(quint16 port = 0);
  /// Drops every connection; what was received stays to be asked for. The same port may be started again.
  void stop();
  [[nodiscard]] quint16 port() const;
  [[nodiscard]] QString errorString() const;
  [[nodiscard]] QString url() const;     ///< https://localhost:<port>/api
  [[nodiscard]] QString caFile() const;  ///< PEM of the authority that a client has to trust; there after start()

  [[nodiscard]] QList<PracticeReceipt> receipts() const;
  [[nodiscard]] QList<PracticeRequest> requests() const;
  /// False if fewer than `count` receipts (or begun requests) stand after `timeoutMs`.
  [[nodiscard]] bool waitForReceipts(int count, int timeoutMs) const;
  [[nodiscard]] bool waitForRequests(int count, int timeoutMs) const;
  /// Called with each receipt on the service's thread, after it stands in receipts(); must not block for long.
  void setReceiptObserver(std::function<void(const PracticeReceipt&)> observer);
  void forgetReceived();  ///< empties receipts() and requests() and sets the counts of connections to 0

  [[nodiscard]] int connections() const;       ///< TCP connections accepted
  [[nodiscard]] int failedHandshakes() const;  ///< of which TLS never stood
  /// Raw bytes that came on connections whose handshake failed (hello and alert are some hundred).
  [[nodiscard]] qint64 bytesBeforeFailedHandshakes() const;

  /// Adds a misbehaviour behind those that wait; of those that fit a request the first is taken.
  void misbehave(const Misbehaviour& misbehaviour);
  void behave();  ///< clears all misbehaviours and the hook; what is under way goes on

  /// Calls `hook` once, on the service's thread, when `bytes` bytes of the body of a request (of `method`, if given)
  /// have arrived. Nothing more is read until it returns; what is in the sockets' buffers is beyond that.
  void whenBodyReaches(qint64 bytes, std::function<void()> hook, const QByteArray& method = {});

  /// From now on files that have arrived whole are not answered until release().
  void hold();
  void release();
  [[nodiscard]] bool waitForHeld(int count, int timeoutMs) const;

  // What it knows, for tests: destinations that it takes.
  [[nodiscard]] static QString knownPrintTrack();       ///< a `TrackWorkflowName`
  [[nodiscard]] static QString knownInstrumentTrack();  ///< an `ITWorkflowName`

 private:
  class Private;
  std::unique_ptr<Private> d;
};
