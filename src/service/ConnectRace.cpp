#include "service/ConnectRace.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

using namespace std::chrono_literals;

static constexpr auto HeadStart = 250ms;  // of one address before the next

ConnectRace::~ConnectRace() {
  for (const int socket : m_underWay) close(socket);
  if (m_winner >= 0) close(m_winner);
}

int ConnectRace::takeWinner() { return std::exchange(m_winner, -1); }

void ConnectRace::beginNext() {
  const SocketAddress& address = m_addresses[m_next++];
  const int socket = ::socket(address.storage.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (socket < 0) {
    m_lastError = errno;
    return;
  }
  const int result = connect(socket, reinterpret_cast<const sockaddr*>(&address.storage), address.length);
  if (result == 0) {
    m_winner = socket;
  } else if (errno == EINPROGRESS || errno == EINTR) {
    m_underWay.push_back(socket);
  } else {
    m_lastError = errno;
    close(socket);
  }
}

void ConnectRace::judge(const std::vector<pollfd>& looked) {
  for (const pollfd& attempt : looked) {
    if (attempt.revents == 0) continue;
    int error = 0;
    socklen_t size = sizeof error;
    if (getsockopt(attempt.fd, SOL_SOCKET, SO_ERROR, &error, &size) != 0) error = errno;
    std::erase(m_underWay, attempt.fd);
    if (error == 0 && m_winner < 0) {
      m_winner = attempt.fd;
      continue;
    }
    if (error != 0) m_lastError = error;
    close(attempt.fd);
  }
}

WaitOutcome ConnectRace::run(Deadline deadline) {
  while (m_winner < 0) {
    if (m_next < m_addresses.size()) beginNext();
    if (m_winner >= 0) break;
    const bool another = m_next < m_addresses.size();
    if (m_underWay.empty()) {
      if (another) continue;
      if (m_lastError == 0) m_lastError = EADDRNOTAVAIL;
      break;
    }
    const Deadline nextStart = std::chrono::steady_clock::now() + HeadStart;
    std::vector<pollfd> attempts;
    for (const int socket : m_underWay) attempts.push_back({socket, POLLOUT, 0});
    const WaitOutcome outcome = waitFor(attempts, another ? std::min(deadline, nextStart) : deadline);
    if (outcome == WaitOutcome::Stopped) return outcome;
    if (outcome == WaitOutcome::Ready) judge(attempts);
    if (outcome == WaitOutcome::Expired && std::chrono::steady_clock::now() >= deadline) return outcome;
  }
  return WaitOutcome::Ready;
}
