#pragma once
// Certificates for practice and tests: a private authority and server certificates (X.509, P-256) made with OpenSSL.
// Plain functions and values; any thread.

#include <QByteArray>
#include <QString>
#include <memory>

namespace Certificates {

/// What is wrong with a server's certificate.
enum class Flaw {
  None,
  Expired,           ///< its time ended yesterday
  NotYetValid,       ///< its time begins tomorrow
  WrongHost,         ///< names another host
  SelfSigned,        ///< signed by its own key
  UnknownAuthority,  ///< signed by an authority that nobody trusts
};

struct ServerIdentity {
  QByteArray certificatePem;
  QByteArray keyPem;
};

/// An authority that lives in memory: its key is never written.
class Authority {
 public:
  /// Makes a new one; valid() is false if OpenSSL refuses.
  explicit Authority(const QString& name);
  ~Authority();
  Authority(const Authority&) = delete;
  Authority& operator=(const Authority&) = delete;
  [[nodiscard]] bool valid() const;
  [[nodiscard]] QByteArray certificatePem() const;
  /// A certificate for localhost, 127.0.0.1 and ::1 with a key of its own. Empty if OpenSSL refuses.
  [[nodiscard]] ServerIdentity issue(Flaw flaw = Flaw::None) const;

 private:
  struct Private;
  std::unique_ptr<Private> d;
};

/// The identity kept in a folder, with the authority's certificate beside it as ca.pem.
struct StoredIdentity {
  QString caFile;
  ServerIdentity server;
  QString error;  ///< in words; empty when all went well
};
/// Makes a new authority and identity and writes ca.pem, server.pem and server.key (0600) into a folder, which is made
/// private to the user. The authority's key is dropped, so nobody can sign with it again.
[[nodiscard]] StoredIdentity make(const QString& folder, Flaw flaw = Flaw::None);
/// Reads what make() wrote, or makes it anew if it is missing, doesn't fit together or ends within a week.
[[nodiscard]] StoredIdentity ensure(const QString& folder);

}  // namespace Certificates
