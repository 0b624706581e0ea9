#pragma once
// The agent without its window, in a home of its own: preferences, log, account. For one process and one thread.

#include <string>

#include "Lab.h"
#include "engine/UploaderTask.h"

namespace bench {

class Agent {
 public:
  static constexpr const char* Login = "bench";
  static constexpr const char* Track = "bench-track";

  explicit Agent(const std::string& home);
  ~Agent();
  Agent(const Agent&) = delete;
  Agent& operator=(const Agent&) = delete;

  /// Trusts the server and sends it one byte, as an agent has after its start-up calls: from then on the certificates
  /// of the system are loaded and there is a session to take up.
  void meet(const Server& server);
  /// Sends a file through SendFile; the reply must be good.
  static void send(const std::string& file);

  /// A task that isn't in the list, with a date limit in the preferences; 0 for none.
  [[nodiscard]] static TaskPointer makeTask(const std::string& name, const std::string& in, const std::string& out,
                                            const std::string& extension, double dateLimit);

 private:
  std::string m_home;
};

}  // namespace bench
