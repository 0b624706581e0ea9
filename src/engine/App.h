#pragma once
// The application's order of coming up and going down, without any window. Main thread.

#include <QString>
#include <functional>

class App {
 public:
  /// Sets the files' key, loads preferences, opens the log, brings the proxy into force, and calls `showMainWindow`.
  /// Gives a text that the user must see (a damaged preference file that was set aside), or an empty one.
  static QString Event_Open(const std::function<void()>& showMainWindow);
  /// Saves the preferences.
  static void Event_Close();
};
