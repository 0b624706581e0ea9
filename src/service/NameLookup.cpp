#include "service/NameLookup.h"

#include <netdb.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <QUrl>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

#include "platform/System.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

// More than these at once means that the resolver hangs for good; another thread would only hang beside them.
static constexpr int MaxLookupsUnderWay = 16;

/// `host` may be nullptr, for the loopback addresses.
static ResolverAnswer resolve(const char* host, int port, int flags) {
  addrinfo hints{};
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = flags | AI_NUMERICSERV;
  addrinfo* list = nullptr;
  ResolverAnswer answer;
  answer.code = getaddrinfo(host, QByteArray::number(port).constData(), &hints, &list);
  if (answer.code != 0) answer.words = QString::fromLocal8Bit(gai_strerror(answer.code));
  for (const addrinfo* item = list; item; item = item->ai_next) {
    SocketAddress& address = answer.addresses.emplace_back();
    std::memcpy(&address.storage, item->ai_addr, item->ai_addrlen);
    address.length = item->ai_addrlen;
  }
  if (list) freeaddrinfo(list);
  return answer;
}

ResolverAnswer systemResolver(const QByteArray& host, int port) {
  // This name means this machine (RFC 6761 6.3), also where no hosts file says so.
  if (host.compare("localhost", Qt::CaseInsensitive) == 0) return resolve(nullptr, port, 0);
  return resolve(host.constData(), port, AI_ADDRCONFIG);
}

namespace {

std::atomic<int> lookupsUnderWay{0};

/// What the asking thread and the resolving thread share; the last of them frees it.
struct Query {
  Query() : finished(eventfd(0, EFD_CLOEXEC)) {}
  ~Query() {
    if (finished >= 0) close(finished);
  }
  Query(const Query&) = delete;
  Query& operator=(const Query&) = delete;

  const int finished;
  std::mutex mutex;  // guards answer
  ResolverAnswer answer;
};

}  // namespace

static void answerQuery(const std::shared_ptr<Query>& query, const Resolver& resolver, const QByteArray& host,
                        int port) {
  System::nameThisThread("name-lookup");
  ResolverAnswer answer = resolver(host, port);
  {
    const std::lock_guard lock(query->mutex);
    query->answer = std::move(answer);
  }
  eventfd_write(query->finished, 1);
  --lookupsUnderWay;
}

/// Starts the thread; false when the system gives none.
static bool ask(const std::shared_ptr<Query>& query, const Resolver& resolver, const QByteArray& host, int port) {
  if (query->finished < 0) return false;
  if (++lookupsUnderWay > MaxLookupsUnderWay) {
    --lookupsUnderWay;
    return false;
  }
  try {
    std::thread(answerQuery, query, resolver, host, port).detach();
  } catch (const std::system_error&) {
    --lookupsUnderWay;
    return false;
  }
  return true;
}

NameLookupResult lookUpName(const QString& host, int port, const QString& peer, Deadline deadline,
                            const Resolver& resolver) {
  using Phase = HttpFailure::Phase;
  const auto failed = [&](Phase phase, int code, const QString& detail) {
    return NameLookupResult{{}, {phase, code, detail}};
  };
  const QByteArray name = host.contains(u':') ? host.toLatin1() : QUrl::toAce(host);
  if (name.isEmpty())
    return failed(Phase::Name, EAI_NONAME, fillPlaceholders(VTULocalization::klNameInvalid(), {peer}));
  if (ResolverAnswer numeric = resolve(name.constData(), port, AI_NUMERICHOST); numeric.code == 0) {
    return {std::move(numeric.addresses), {}};
  }

  const auto query = std::make_shared<Query>();
  if (!ask(query, resolver, name, port)) {
    return failed(Phase::Name, EAGAIN, fillPlaceholders(VTULocalization::klLookUpsHang(), {peer}));
  }
  pollfd descriptors[] = {{query->finished, POLLIN, 0}};
  switch (waitFor(descriptors, deadline)) {
    case WaitOutcome::Stopped:
      return failed(Phase::Stopped, ECANCELED, VTULocalization::klStopped());
    case WaitOutcome::Expired:
      return failed(Phase::TimedOut, -1, fillPlaceholders(VTULocalization::klLookUpSlow(), {peer}));
    case WaitOutcome::Ready:
      break;
  }
  const std::lock_guard lock(query->mutex);
  if (query->answer.code != 0) {
    return failed(Phase::Name, query->answer.code,
                  fillPlaceholders(VTULocalization::klNameUnknown(), {peer, query->answer.words}));
  }
  return {query->answer.addresses, {}};
}

NameMemory& NameMemory::process() {
  static auto& memory = *new NameMemory;
  return memory;
}

std::vector<SocketAddress> NameMemory::recall(const QString& host, int port, Moment now) const {
  const std::lock_guard lock(m_mutex);
  const auto found = m_entries.find({host, port});
  if (found == m_entries.end() || now >= found->second.until) return {};
  return found->second.addresses;
}

void NameMemory::remember(const QString& host, int port, const std::vector<SocketAddress>& addresses, Moment now) {
  const std::lock_guard lock(m_mutex);
  if (m_entries.size() >= MostEntries) m_entries.clear();
  m_entries.insert_or_assign({host, port}, Entry{addresses, now + Life});
}

void NameMemory::forget(const QString& host, int port) {
  const std::lock_guard lock(m_mutex);
  m_entries.erase({host, port});
}
