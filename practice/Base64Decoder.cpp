#include "practice/Base64Decoder.h"

#include <array>
#include <cstring>

// Values of the alphabet's characters; -1 for all others.
static constexpr std::array<signed char, 256> makeTable() {
  std::array<signed char, 256> table{};
  for (signed char& entry : table) entry = -1;
  constexpr char Alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  for (int i = 0; i < 64; ++i) table[static_cast<unsigned char>(Alphabet[i])] = static_cast<signed char>(i);
  return table;
}

static constexpr std::array<signed char, 256> Table = makeTable();

static int valueOf(char c) { return Table[static_cast<unsigned char>(c)]; }

// A group that may be the last one.
bool Base64Decoder::group(const char* four, QByteArray& decoded) {
  const int padding = four[3] != '=' ? 0 : four[2] != '=' ? 1 : 2;
  const int a = valueOf(four[0]), b = valueOf(four[1]);
  const int c = padding == 2 ? 0 : valueOf(four[2]), d = padding > 0 ? 0 : valueOf(four[3]);
  if ((a | b | c | d) < 0) return false;
  const int bits = (a << 18) | (b << 12) | (c << 6) | d;
  if ((padding == 1 && (bits & 0xff) != 0) || (padding == 2 && (bits & 0xffff) != 0)) return false;
  const char bytes[3] = {static_cast<char>(bits >> 16), static_cast<char>(bits >> 8), static_cast<char>(bits)};
  decoded.append(bytes, 3 - padding);
  m_ended = padding > 0;
  return true;
}

bool Base64Decoder::feed(QByteArrayView text, QByteArray& decoded) {
  const char* at = text.data();
  const char* const end = at + text.size();
  while (m_good && m_carried > 0 && at < end) {
    m_carry[m_carried++] = *at++;
    if (m_carried < 4) continue;
    m_carried = 0;
    m_good = !m_ended && group(m_carry, decoded);
  }
  const qsizetype start = decoded.size();
  decoded.resize(start + (end - at) / 4 * 3);
  char* out = decoded.data() + start;
  for (; m_good && !m_ended && end - at >= 4; at += 4) {
    const int bits = (valueOf(at[0]) << 18) | (valueOf(at[1]) << 12) | (valueOf(at[2]) << 6) | valueOf(at[3]);
    if (bits < 0) break;  // padding, or a character that has no place here
    *out++ = static_cast<char>(bits >> 16);
    *out++ = static_cast<char>(bits >> 8);
    *out++ = static_cast<char>(bits);
  }
  decoded.resize(out - decoded.constData());
  if (m_good && end - at >= 4) {
    m_good = !m_ended && group(at, decoded);
    at += 4;
    // Only the text's last group has padding, so whatever follows a group that ended the fast loop is an error.
    if (at < end) m_good = false;
  }
  if (m_good && at < end) {
    m_good = !m_ended;
    m_carried = static_cast<int>(end - at);
    std::memcpy(m_carry, at, static_cast<size_t>(m_carried));
  }
  return m_good;
}
