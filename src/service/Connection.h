#pragma once
// One TCP connection that never blocks but in its waits: plain at first, TLS from startTls() on. It owns its socket,
// raises no SIGPIPE, and goes on reading after its writes have failed, so that what the peer said before it closed is
// not lost. One thread.

#include <QByteArray>
#include <QString>
#include <vector>

#include "service/HTTPSocket.h"
#include "service/NameLookup.h"
#include "service/StopSignal.h"

class TlsContext;
struct bio_st;
struct ssl_st;

class Connection {
 public:
  enum class Io {
    Progress,  ///< some bytes moved
    Again,     ///< none can move at present
    Closed,    ///< the peer ended the connection in good order
    CutOff,    ///< the peer ended it without TLS's goodbye
    Broken,    ///< lastError() tells why
  };
  struct Outcome {
    Io io = Io::Again;
    qsizetype bytes = 0;
  };

  Connection() = default;
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// Connects to the first of the addresses that answers. While one is silent the next is tried beside it (RFC 8305).
  [[nodiscard]] HttpFailure open(const std::vector<SocketAddress>& addresses, const QString& peer, Deadline deadline);
  /// Speaks TLS from now on, after checking the peer's certificate for `host`. `peer` names it in a failure.
  [[nodiscard]] HttpFailure startTls(TlsContext& context, const QString& host, int port, const QString& peer,
                                     Deadline deadline);

  /// Begins what open() and startTls() do, to one address and without waiting; advance() and finish() go on with it.
  void begin(const SocketAddress& address, TlsContext& context, const QString& host, int port);
  /// Takes the connection as far as it comes without waiting; false once it stands or has failed.
  bool advance();
  /// Waits until it stands.
  [[nodiscard]] HttpFailure finish(const QString& peer, Deadline deadline);
  /// False once the peer has ended the connection, which stands and has nothing under way.
  [[nodiscard]] bool peerStays() const;
  [[nodiscard]] SocketAddress peerAddress() const;

  [[nodiscard]] Outcome read(char* buffer, qsizetype size);
  /// With `moreFollows` the system may hold a short segment back for a moment, which spares the peer a wake-up each.
  [[nodiscard]] Outcome write(const char* data, qsizetype size, bool moreFollows = false);
  /// Waits until read(), or write() if `writing`, is worth calling again. A connection that is coming up `beside` it
  /// is advanced meanwhile, and ends the wait as well.
  [[nodiscard]] WaitOutcome wait(bool writing, Deadline deadline, Connection* beside = nullptr);

  /// Gives bytes back that were read too early; they are read again first.
  void unread(const QByteArray& bytes) { m_pushedBack.prepend(bytes); }
  /// Says goodbye where TLS has one, and closes.
  void close();

  [[nodiscard]] int lastError() const { return m_lastError; }
  [[nodiscard]] QString lastErrorWords() const;

 private:
  enum class Stage { Connecting, Handshaking, Standing, Failed };
  [[nodiscard]] bool setUpTls(TlsContext& context, const QString& host, int port);
  void judgeConnecting();
  void stepHandshake();
  [[nodiscard]] HttpFailure handshakeFailure(const QString& peer) const;
  [[nodiscard]] short stageEvents() const;
  [[nodiscard]] Outcome tlsOutcome(int result, size_t bytes, bool writing);
  [[nodiscard]] ssize_t receive(char* buffer, size_t size);
  [[nodiscard]] ssize_t transmit(const char* data, size_t size);
  /// The way by which OpenSSL reaches the socket: through receive() and transmit().
  static bio_st* newBio(Connection* connection);
  static int bioRead(bio_st* bio, char* buffer, int size);
  static int bioWrite(bio_st* bio, const char* data, int size);
  static long bioControl(bio_st* bio, int command, long number, void* pointer);

  int m_socket = -1;
  ssl_st* m_ssl = nullptr;
  Stage m_stage = Stage::Standing;
  Io m_handshakeEnd = Io::Again;
  QByteArray m_pushedBack;
  int m_lastError = 0;  ///< errno, or OpenSSL's code if m_tlsError
  bool m_tlsError = false;
  bool m_peerClosed = false;  ///< the socket has told the end of the stream
  bool m_sendFailed = false;  ///< the socket takes no more; OpenSSL is told "not now" so that it can still read
  bool m_moreFollows = false;
  bool m_readWantsOutput = false;
  bool m_writeWantsInput = false;
};
