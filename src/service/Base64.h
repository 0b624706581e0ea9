#pragma once
// Base64 (RFC 4648, with padding, no line breaks) of data that comes in pieces of any length. As fast as the wire needs
// it: a table of 12-bit groups everywhere, AVX2 or AVX-512 where the processor has them. A value; one thread.

#include <QtGlobal>

enum class Base64Path { Portable, Avx2, Avx512 };

[[nodiscard]] bool supports(Base64Path path);  ///< by this processor
[[nodiscard]] Base64Path fastestBase64Path();

/// Characters that `bytes` bytes make.
[[nodiscard]] constexpr qint64 base64Length(qint64 bytes) { return (bytes + 2) / 3 * 4; }

class Base64Encoder {
 public:
  explicit Base64Encoder(Base64Path path = fastestBase64Path()) : m_path(path) {}

  /// Encodes the next piece to `out` and gives the number of characters: at most base64Length(size + 2). Up to two
  /// bytes wait for the next piece.
  [[nodiscard]] qsizetype encode(const char* data, qsizetype size, char* out);
  /// Encodes what waits, with its padding: 0 or 4 characters.
  [[nodiscard]] qsizetype finish(char* out);

 private:
  Base64Path m_path;
  unsigned char m_waiting[3] = {};
  int m_waitingCount = 0;
};
