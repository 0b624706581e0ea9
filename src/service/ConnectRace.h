#pragma once
// Connection attempts to the addresses of one peer, begun one after another and then under way side by side; the
// first that stands wins and the others are closed (RFC 8305). One thread.

#include <vector>

#include "service/NameLookup.h"
#include "service/StopSignal.h"

class ConnectRace {
 public:
  explicit ConnectRace(const std::vector<SocketAddress>& addresses) : m_addresses(addresses) {}
  ~ConnectRace();
  ConnectRace(const ConnectRace&) = delete;
  ConnectRace& operator=(const ConnectRace&) = delete;

  /// Ready when an attempt won or all have failed.
  [[nodiscard]] WaitOutcome run(Deadline deadline);
  /// The non-blocking socket that stands, now the caller's; -1 if all attempts failed.
  [[nodiscard]] int takeWinner();
  [[nodiscard]] int lastError() const { return m_lastError; }

 private:
  void beginNext();
  void judge(const std::vector<pollfd>& looked);

  const std::vector<SocketAddress>& m_addresses;
  size_t m_next = 0;
  std::vector<int> m_underWay;
  int m_winner = -1;
  int m_lastError = 0;
};
