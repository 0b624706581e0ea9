#include "platform/FileCipher.h"

#include <sodium.h>

namespace {

constexpr qsizetype kNonceSize = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr qsizetype kTagSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;
// Separates our key from any other use of the same phrase.
constexpr unsigned char kContext[] = "vantry-uploader dictionary file 1";

const unsigned char* bytesOf(const QByteArray& data) {
  return reinterpret_cast<const unsigned char*>(data.constData());
}
unsigned char* bytesOf(QByteArray& data) { return reinterpret_cast<unsigned char*>(data.data()); }

void startLibrary() {
  static const bool ready = sodium_init() >= 0;
  if (!ready) qFatal("the system gives no random numbers");
}

}  // namespace

FileCipher::~FileCipher() { sodium_memzero(m_key.data(), m_key.size()); }

void FileCipher::Init(const QString& password) {
  static_assert(std::tuple_size_v<decltype(m_key)> == crypto_aead_xchacha20poly1305_ietf_KEYBYTES);
  startLibrary();
  QByteArray phrase = password.toUtf8();
  // No slow derivation: the phrase stands in the program, so there is nothing to guess.
  crypto_generichash(m_key.data(), m_key.size(), bytesOf(std::as_const(phrase)),
                     static_cast<unsigned long long>(phrase.size()), kContext, sizeof kContext - 1);
  wipe(phrase);
}

QByteArray FileCipher::Encode(const QByteArray& data) const {
  startLibrary();
  QByteArray result(kNonceSize + data.size() + kTagSize, Qt::Uninitialized);
  unsigned char* nonce = bytesOf(result);
  randombytes_buf(nonce, static_cast<size_t>(kNonceSize));
  crypto_aead_xchacha20poly1305_ietf_encrypt(nonce + kNonceSize, nullptr, bytesOf(data),
                                             static_cast<unsigned long long>(data.size()), nullptr, 0, nullptr, nonce,
                                             m_key.data());
  return result;
}

std::optional<QByteArray> FileCipher::Decode(const QByteArray& data) const {
  if (data.size() < kNonceSize + kTagSize) return std::nullopt;
  QByteArray plain(data.size() - kNonceSize - kTagSize, Qt::Uninitialized);
  const unsigned char* nonce = bytesOf(data);
  if (crypto_aead_xchacha20poly1305_ietf_decrypt(bytesOf(plain), nullptr, nullptr, nonce + kNonceSize,
                                                 static_cast<unsigned long long>(data.size() - kNonceSize), nullptr, 0,
                                                 nonce, m_key.data()) != 0)
    return std::nullopt;
  return plain;
}

void wipe(QByteArray& secret) {
  // A shared buffer belongs to others too, who still read it.
  if (!secret.isEmpty() && secret.isDetached()) sodium_memzero(secret.data(), static_cast<size_t>(secret.size()));
  secret.clear();
}
