#pragma once
// Strict Base64 (RFC 4648) decoded as it comes, in pieces of any length: no white space, padding where it is due and
// only there, no stray bits. A value; one thread.

#include <QByteArray>
#include <QByteArrayView>

class Base64Decoder {
 public:
  /// Appends what `text` decodes to. False from the first character on that has no place there.
  [[nodiscard]] bool feed(QByteArrayView text, QByteArray& decoded);
  /// False if the text was cut within a group.
  [[nodiscard]] bool finish() const { return m_good && m_carried == 0; }

 private:
  [[nodiscard]] bool group(const char* four, QByteArray& decoded);

  char m_carry[4] = {};
  int m_carried = 0;
  bool m_ended = false;
  bool m_good = true;
};
