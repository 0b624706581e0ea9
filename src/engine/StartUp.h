#pragma once
// The calls that bring the system up, made on a thread of their own so that no window waits: endpoint, switch,
// catalogues, tasks. Endpoint and catalogues are tried again at growing intervals until they have come once, and asked
// for anew when the login changes.

#include <QString>
#include <functional>

class StartUp {
 public:
  struct Events {
    /// The tasks are loaded. Called on the start-up thread.
    std::function<void()> tasksLoaded;
    /// An exception ended the sequence. Called on the start-up thread.
    std::function<void(const QString& reason)> failed;
  };
  /// Begins the sequence; once per process.
  static void begin(const Events& events);
  /// Asks at once for what is still missing of endpoint and catalogues, as login or proxy have changed. With
  /// `otherLogin` all of it is missing, for it was another account's; uploading is then held until the endpoint has
  /// been asked for, so that no file goes to the old one. Main thread; doesn't wait.
  static void refresh(bool otherLogin);
  /// Ends the thread, breaking a call off; true if it ended within `timeoutMs`.
  static bool stop(int timeoutMs);
};
