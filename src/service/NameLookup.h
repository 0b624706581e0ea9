#pragma once
// Host names to addresses with a limit on the wait. The system's resolver knows no limit and can't be interrupted, so
// it runs on a thread of its own, which is left to itself when the limit passes: it then ends without anybody
// listening. Any thread; blocks the caller.

#include <sys/socket.h>

#include <QString>
#include <functional>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

#include "service/HTTPSocket.h"
#include "service/StopSignal.h"

struct SocketAddress {
  sockaddr_storage storage{};
  socklen_t length = 0;
};

struct ResolverAnswer {
  std::vector<SocketAddress> addresses;
  int code = 0;   ///< of getaddrinfo
  QString words;  ///< for `code`
};
using Resolver = std::function<ResolverAnswer(const QByteArray& host, int port)>;

/// getaddrinfo for stream sockets, in the order in which the addresses are to be tried.
[[nodiscard]] ResolverAnswer systemResolver(const QByteArray& host, int port);

struct NameLookupResult {
  std::vector<SocketAddress> addresses;
  HttpFailure failure;
};

/// The addresses of `host`, a name (also an international one) or a numeric address. `peer` names it in a failure.
[[nodiscard]] NameLookupResult lookUpName(const QString& host, int port, const QString& peer, Deadline deadline,
                                          const Resolver& resolver = systemResolver);

/// Addresses that a name had a moment ago, so that a batch of small files doesn't ask the resolver for each. Guarded;
/// any thread.
class NameMemory {
 public:
  using Moment = std::chrono::steady_clock::time_point;
  static constexpr std::chrono::seconds Life{30};

  static NameMemory& process();
  /// Empty if nothing is known, or nothing so young.
  [[nodiscard]] std::vector<SocketAddress> recall(const QString& host, int port, Moment now) const;
  void remember(const QString& host, int port, const std::vector<SocketAddress>& addresses, Moment now);
  /// For addresses that didn't answer: the name may have moved.
  void forget(const QString& host, int port);

 private:
  struct Entry {
    std::vector<SocketAddress> addresses;
    Moment until;
  };
  static constexpr size_t MostEntries = 64;
  mutable std::mutex m_mutex;  // guards the one below
  std::map<std::pair<QString, int>, Entry> m_entries;
};
