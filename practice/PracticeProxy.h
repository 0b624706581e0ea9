#pragma once
// An HTTP proxy for tests: tunnels CONNECT, passes whole-URL requests on, or does neither. It runs on a thread of its
// own and ends with the object; every operation may be called from any thread but that one.

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>

class PracticeProxy {
 public:
  struct Behaviour {
    enum class Kind {
      Tunnel,      ///< opens the tunnel (and passes plain requests on)
      Refuse,      ///< answers `status` with an HTML page, and closes
      Html,        ///< answers 200 with an HTML page in the place of a tunnel, and closes
      Stall,       ///< takes the request and stays silent
      Close,       ///< closes as soon as the request is there
      RawReply,    ///< answers `text` as it stands; the connection stays open
      HalfReply,   ///< answers the first half of the head of a good reply, then nothing more
      ExtraBytes,  ///< opens the tunnel, and sends `text` right behind the head
    };
    Kind kind = Kind::Tunnel;
    int status = 407;
    QByteArray text = {};
    int pieceBytes = 0;  ///< sends the head of its reply in pieces of so many bytes; 0: at once
  };

  PracticeProxy();
  ~PracticeProxy();
  PracticeProxy(const PracticeProxy&) = delete;
  PracticeProxy& operator=(const PracticeProxy&) = delete;

  [[nodiscard]] bool start();  ///< on 127.0.0.1, any free port; blocks until it listens
  void stop();
  [[nodiscard]] quint16 port() const;
  void setBehaviour(const Behaviour& behaviour);  ///< for connections made from now on

  [[nodiscard]] QList<QByteArray> heads() const;  ///< of the requests to the proxy itself, blank line included
  [[nodiscard]] int tunnels() const;              ///< that stood

 private:
  class Private;
  std::unique_ptr<Private> d;
};
