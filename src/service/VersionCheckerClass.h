#pragma once
// Asks the update host, over plain HTTP and through the proxy in force, whether a newer version exists. Main thread;
// the exchange itself runs where the owner has it run. A check holds no state, so a later one may follow at any time.

#include <QString>
#include <functional>

#include "service/HTTPSocket.h"

/// http://<update host of the build>/uploader.php
[[nodiscard]] QString UpdateEndpoint();

class VersionCheckerClass {
 public:
  struct Page {
    QString url;
    int status = 0;
    InternetHeaders headers;
    QByteArray content;
    HttpFailure failure;  ///< set: the page did not come, or not whole
  };
  /// Runs `get`, which blocks for the exchange, on another thread, and hands what it gives to `received` on the main
  /// thread, or drops it when it is late or nobody waits for it any more.
  using Exchange = std::function<void(std::function<Page()> get, std::function<void(const Page&)> received)>;

  explicit VersionCheckerClass(Exchange exchange, QString endpoint = UpdateEndpoint());

  /// Called on the main thread for a reply that fits; an empty url: no newer version exists.
  std::function<void(const QString& version, const QString& url)> NewVersionAvailable;

  /// Begins a check and returns at once. One whose exchange fails, or whose reply doesn't fit, ends with a line in the
  /// debug log alone.
  void CheckVersion();

 private:
  void Event_PageReceived(const QString& url, int status, const InternetHeaders& headers, const QByteArray& content);

  Exchange m_exchange;
  QString m_endpoint;
};
