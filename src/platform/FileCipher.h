#pragma once
// Authenticated enciphering of whole small files with a key made from the program's own pass phrase: it keeps
// settings from being read or altered casually and detects damage; it is no defence against someone with the program.
// One object, one thread.

#include <QByteArray>
#include <QString>
#include <array>
#include <optional>

class FileCipher {
 public:
  FileCipher() = default;
  ~FileCipher();  ///< wipes the key
  FileCipher(const FileCipher&) = delete;
  FileCipher& operator=(const FileCipher&) = delete;

  void Init(const QString& password);
  /// Enciphers with a fresh random nonce, which stands before the result.
  [[nodiscard]] QByteArray Encode(const QByteArray& data) const;
  /// Nothing for data that is damaged, cut or of another key.
  [[nodiscard]] std::optional<QByteArray> Decode(const QByteArray& data) const;

 private:
  std::array<unsigned char, 32> m_key{};
};

/// Overwrites the bytes of a buffer of ours that held a secret, so that it doesn't stay in freed memory.
void wipe(QByteArray& secret);
