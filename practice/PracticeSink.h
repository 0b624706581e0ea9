#pragma once
// The far end of a benchmark: reads each request to its Content-length, throws it away and answers that the file was
// taken. A thread per connection on OpenSSL directly, one TLS context with session tickets, so that it is never the
// slower end. Any thread may call; it ends with the object.

#include <QString>
#include <memory>

class PracticeSink {
 public:
  /// Certificate and key are those that Certificates::ensure keeps in `tlsFolder`; empty: a temporary folder.
  explicit PracticeSink(const QString& tlsFolder = {});
  ~PracticeSink();
  PracticeSink(const PracticeSink&) = delete;
  PracticeSink& operator=(const PracticeSink&) = delete;

  /// Listens on 127.0.0.1; port 0 takes any free one.
  [[nodiscard]] bool start(quint16 port = 0);
  void stop();
  [[nodiscard]] quint16 port() const;
  [[nodiscard]] QString errorString() const;
  [[nodiscard]] QString url() const;  ///< https://localhost:<port>/api
  [[nodiscard]] QString caFile() const;

  [[nodiscard]] int requests() const;         ///< answered
  [[nodiscard]] int resumedSessions() const;  ///< handshakes that went on from an earlier session
  [[nodiscard]] qint64 bodyBytes() const;     ///< in all

 private:
  class Private;
  std::unique_ptr<Private> d;
};
