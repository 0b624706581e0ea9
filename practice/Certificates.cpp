#include "practice/Certificates.h"

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <ctime>

using namespace Qt::Literals::StringLiterals;

namespace Certificates {
namespace {

struct Free {
  void operator()(X509* p) const { X509_free(p); }
  void operator()(EVP_PKEY* p) const { EVP_PKEY_free(p); }
  void operator()(BIO* p) const { BIO_free(p); }
};
using CertificatePointer = std::unique_ptr<X509, Free>;
using KeyPointer = std::unique_ptr<EVP_PKEY, Free>;
using BioPointer = std::unique_ptr<BIO, Free>;

constexpr long DaySeconds = 24 * 60 * 60;
constexpr long ValidSeconds = 365 * DaySeconds;

struct Request {
  QByteArray commonName;
  QByteArray alternativeNames;  // empty for an authority
  long beginsIn = -DaySeconds;  // seconds from now
  long endsIn = ValidSeconds;
};

QByteArray text(BIO* bio) {
  char* data = nullptr;
  const long size = BIO_get_mem_data(bio, &data);
  return QByteArray(data, size);
}

QByteArray pem(X509* certificate) {
  const BioPointer bio(BIO_new(BIO_s_mem()));
  return bio && PEM_write_bio_X509(bio.get(), certificate) == 1 ? text(bio.get()) : QByteArray();
}

QByteArray pem(EVP_PKEY* key) {
  const BioPointer bio(BIO_new(BIO_s_mem()));
  return bio && PEM_write_bio_PrivateKey(bio.get(), key, nullptr, nullptr, 0, nullptr, nullptr) == 1 ? text(bio.get())
                                                                                                     : QByteArray();
}

bool addExtension(X509* certificate, X509* issuer, int nid, const QByteArray& value) {
  X509V3_CTX context;
  X509V3_set_ctx_nodb(&context);
  X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
  X509_EXTENSION* extension = X509V3_EXT_conf_nid(nullptr, &context, nid, value.constData());
  if (!extension) return false;
  const bool added = X509_add_ext(certificate, extension, -1) == 1;
  X509_EXTENSION_free(extension);
  return added;
}

bool addExtensions(X509* certificate, X509* issuer, const Request& request) {
  if (request.alternativeNames.isEmpty())
    return addExtension(certificate, issuer, NID_basic_constraints, "critical,CA:TRUE,pathlen:0") &&
           addExtension(certificate, issuer, NID_key_usage, "critical,keyCertSign,cRLSign") &&
           addExtension(certificate, issuer, NID_subject_key_identifier, "hash");
  return addExtension(certificate, issuer, NID_basic_constraints, "critical,CA:FALSE") &&
         addExtension(certificate, issuer, NID_key_usage, "critical,digitalSignature") &&
         addExtension(certificate, issuer, NID_ext_key_usage, "serverAuth") &&
         addExtension(certificate, issuer, NID_subject_key_identifier, "hash") &&
         addExtension(certificate, issuer, NID_subject_alt_name, request.alternativeNames);
}

bool setSerial(X509* certificate) {
  unsigned char bytes[8];
  if (RAND_bytes(bytes, sizeof bytes) != 1) return false;
  quint64 serial = 1;
  for (const unsigned char byte : bytes) serial = (serial << 7) ^ byte;
  return ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate), serial >> 1) == 1;
}

// Without an issuer the certificate is signed by its own key.
CertificatePointer sign(EVP_PKEY* subjectKey, const Request& request, X509* issuer, EVP_PKEY* issuerKey) {
  CertificatePointer certificate(X509_new());
  if (!certificate || X509_set_version(certificate.get(), 2) != 1 || !setSerial(certificate.get())) return {};
  X509_NAME* name = X509_get_subject_name(certificate.get());
  const auto* common = reinterpret_cast<const unsigned char*>(request.commonName.constData());
  const bool filled = X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_UTF8, common,
                                                 static_cast<int>(request.commonName.size()), -1, 0) == 1 &&
                      X509_set_issuer_name(certificate.get(), issuer ? X509_get_subject_name(issuer) : name) == 1 &&
                      X509_gmtime_adj(X509_getm_notBefore(certificate.get()), request.beginsIn) &&
                      X509_gmtime_adj(X509_getm_notAfter(certificate.get()), request.endsIn) &&
                      X509_set_pubkey(certificate.get(), subjectKey) == 1 &&
                      addExtensions(certificate.get(), issuer ? issuer : certificate.get(), request) &&
                      X509_sign(certificate.get(), issuerKey, EVP_sha256()) > 0;
  return filled ? std::move(certificate) : CertificatePointer();
}

KeyPointer newKey() { return KeyPointer(EVP_EC_gen("P-256")); }

Request serverRequest(Flaw flaw) {
  Request request{"localhost", "DNS:localhost,IP:127.0.0.1,IP:::1"};
  if (flaw == Flaw::Expired) {
    request.beginsIn = -30 * DaySeconds;
    request.endsIn = -DaySeconds;
  } else if (flaw == Flaw::NotYetValid) {
    request.beginsIn = DaySeconds;
  } else if (flaw == Flaw::WrongHost) {
    request.commonName = "colour.example";
    request.alternativeNames = "DNS:colour.example";
  }
  return request;
}

}  // namespace

struct Authority::Private {
  KeyPointer key;
  CertificatePointer certificate;
};

Authority::Authority(const QString& name) : d(std::make_unique<Private>()) {
  d->key = newKey();
  if (d->key) d->certificate = sign(d->key.get(), Request{name.toUtf8(), {}}, nullptr, d->key.get());
}

Authority::~Authority() = default;

bool Authority::valid() const { return d->certificate != nullptr; }

QByteArray Authority::certificatePem() const { return valid() ? pem(d->certificate.get()) : QByteArray(); }

ServerIdentity Authority::issue(Flaw flaw) const {
  if (flaw == Flaw::UnknownAuthority) return Authority(u"An authority that nobody trusts"_s).issue();
  const KeyPointer key = newKey();
  if (!valid() || !key) return {};
  const bool self = flaw == Flaw::SelfSigned;
  const CertificatePointer certificate =
      sign(key.get(), serverRequest(flaw), self ? nullptr : d->certificate.get(), self ? key.get() : d->key.get());
  if (!certificate) return {};
  return {pem(certificate.get()), pem(key.get())};
}

static QByteArray readFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Flushed before the commit: the commit itself would take a full disk for a success.
static bool writePrivately(const QString& path, const QByteArray& content) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) ||
      file.write(content) != content.size() || !file.flush() || file.error() != QFileDevice::NoError)
    return false;
  return file.commit();
}

static CertificatePointer readCertificate(const QByteArray& pemText) {
  const BioPointer bio(BIO_new_mem_buf(pemText.constData(), static_cast<int>(pemText.size())));
  return CertificatePointer(bio ? PEM_read_bio_X509(bio.get(), nullptr, nullptr, nullptr) : nullptr);
}

static KeyPointer readKey(const QByteArray& pemText) {
  const BioPointer bio(BIO_new_mem_buf(pemText.constData(), static_cast<int>(pemText.size())));
  return KeyPointer(bio ? PEM_read_bio_PrivateKey(bio.get(), nullptr, nullptr, nullptr) : nullptr);
}

// The three belong together and hold for another week.
static bool stillGood(const QByteArray& authorityPem, const ServerIdentity& server) {
  const CertificatePointer authority = readCertificate(authorityPem), own = readCertificate(server.certificatePem);
  const KeyPointer key = readKey(server.keyPem);
  ERR_clear_error();
  if (!authority || !own || !key) return false;
  time_t soon = time(nullptr) + 7 * DaySeconds;
  return X509_check_private_key(own.get(), key.get()) == 1 &&
         X509_verify(own.get(), X509_get0_pubkey(authority.get())) == 1 &&
         X509_cmp_time(X509_get0_notAfter(own.get()), &soon) > 0 &&
         X509_cmp_time(X509_get0_notAfter(authority.get()), &soon) > 0;
}

StoredIdentity make(const QString& folder, Flaw flaw) {
  StoredIdentity result;
  const QDir dir(folder);
  result.caFile = dir.filePath(u"ca.pem"_s);
  const Authority authority(u"Practice authority of Vantry Uploader"_s);
  result.server = authority.issue(flaw);
  if (result.server.keyPem.isEmpty()) {
    result.error = u"OpenSSL could not make a certificate"_s;
    return result;
  }
  if (!dir.mkpath(u"."_s) ||
      !QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner) ||
      !writePrivately(dir.filePath(u"server.key"_s), result.server.keyPem) ||
      !writePrivately(dir.filePath(u"server.pem"_s), result.server.certificatePem) ||
      !writePrivately(result.caFile, authority.certificatePem()))
    result.error = u"Could not write the practice certificate into %1"_s.arg(folder);
  return result;
}

StoredIdentity ensure(const QString& folder) {
  const QDir dir(folder);
  StoredIdentity stored{dir.filePath(u"ca.pem"_s),
                        {readFile(dir.filePath(u"server.pem"_s)), readFile(dir.filePath(u"server.key"_s))},
                        {}};
  return stillGood(readFile(stored.caFile), stored.server) ? stored : make(folder, Flaw::None);
}

}  // namespace Certificates
