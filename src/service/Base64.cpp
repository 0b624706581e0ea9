#include "service/Base64.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#ifdef __x86_64__
#include <immintrin.h>
#define VANTRY_HAS_VECTOR_PATHS 1
#endif

static constexpr char Alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

using Pair = std::array<char, 2>;

/// The two characters of each 12-bit group.
static constexpr std::array<Pair, 4096> Pairs = [] {
  std::array<Pair, 4096> pairs{};
  for (size_t i = 0; i < pairs.size(); ++i) pairs[i] = {Alphabet[i >> 6], Alphabet[i & 63]};
  return pairs;
}();

static void encodeGroup(const unsigned char* in, char* out) {
  const unsigned group = static_cast<unsigned>(in[0] << 16 | in[1] << 8 | in[2]);
  std::memcpy(out, Pairs[group >> 12].data(), 2);
  std::memcpy(out + 2, Pairs[group & 0xfff].data(), 2);
}

static void encodeGroups(const unsigned char* in, qsizetype groups, char* out) {
  for (; groups > 0; --groups, in += 3, out += 4) encodeGroup(in, out);
}

#ifdef VANTRY_HAS_VECTOR_PATHS
/// Encodes blocks of 24 bytes to 32 characters (Muła and Lemire, 2018) and gives the number of groups of three done.
/// It reads up to 8 bytes behind a block, so it leaves the last ones to the portable way.
__attribute__((target("avx2"))) static qsizetype encodeGroupsAvx2(const unsigned char* in, qsizetype groups,
                                                                  char* out) {
  const __m256i spread = _mm256_setr_epi8(1, 0, 2, 1, 4, 3, 5, 4, 7, 6, 8, 7, 10, 9, 11, 10,  //
                                          1, 0, 2, 1, 4, 3, 5, 4, 7, 6, 8, 7, 10, 9, 11, 10);
  const __m256i evenMask = _mm256_set1_epi32(0x0fc0fc00), evenShift = _mm256_set1_epi32(0x04000040);
  const __m256i oddMask = _mm256_set1_epi32(0x003f03f0), oddShift = _mm256_set1_epi32(0x01000010);
  // What is to be added to a six-bit value to get its character, by class: A-Z, a-z (13), 0-9 (1 to 10), +, /.
  const __m256i offsets = _mm256_setr_epi8('a' - 26, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52,
                                           '0' - 52, '0' - 52, '0' - 52, '0' - 52, '+' - 62, '/' - 63, 'A', 0, 0,  //
                                           'a' - 26, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52, '0' - 52,
                                           '0' - 52, '0' - 52, '0' - 52, '0' - 52, '+' - 62, '/' - 63, 'A', 0, 0);
  qsizetype done = 0;
  for (; groups - done >= 11; done += 8, in += 24, out += 32) {
    const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(in));
    const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(in + 12));
    const __m256i bytes = _mm256_shuffle_epi8(_mm256_set_m128i(high, low), spread);
    const __m256i even = _mm256_mulhi_epu16(_mm256_and_si256(bytes, evenMask), evenShift);
    const __m256i odd = _mm256_mullo_epi16(_mm256_and_si256(bytes, oddMask), oddShift);
    const __m256i values = _mm256_or_si256(even, odd);
    const __m256i capital = _mm256_cmpgt_epi8(_mm256_set1_epi8(26), values);
    const __m256i classes = _mm256_or_si256(_mm256_subs_epu8(values, _mm256_set1_epi8(51)),
                                            _mm256_and_si256(capital, _mm256_set1_epi8(13)));
    const __m256i text = _mm256_add_epi8(_mm256_shuffle_epi8(offsets, classes), values);
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(out), text);
  }
  return done;
}

/// Encodes blocks of 48 bytes to 64 characters (Muła and Lemire, 2020): spread the bytes, cut them into groups of six
/// bits, look the groups up. It reads 16 bytes behind a block.
__attribute__((target("avx512f,avx512bw,avx512vbmi"))) static qsizetype encodeGroupsAvx512(const unsigned char* in,
                                                                                           qsizetype groups,
                                                                                           char* out) {
  alignas(64) std::array<char, 64> order{};
  for (size_t i = 0; i < 16; ++i) {
    const std::array<size_t, 4> bytesOfGroup = {1, 0, 2, 1};
    for (size_t j = 0; j < 4; ++j) order[4 * i + j] = static_cast<char>(3 * i + bytesOfGroup[j]);
  }
  const __mmask64 all = ~__mmask64{0};  // the forms without a mask make the compiler warn of its own header
  const __m512i spread = _mm512_load_si512(order.data());
  const __m512i shifts = _mm512_set1_epi64(0x3036242a1016040a);
  const __m512i alphabet = _mm512_loadu_si512(Alphabet);
  qsizetype done = 0;
  for (; groups - done >= 22; done += 16, in += 48, out += 64) {
    const __m512i bytes = _mm512_maskz_permutexvar_epi8(all, spread, _mm512_loadu_si512(in));
    const __m512i values = _mm512_maskz_multishift_epi64_epi8(all, shifts, bytes);
    _mm512_storeu_si512(out, _mm512_maskz_permutexvar_epi8(all, values, alphabet));
  }
  return done;
}
#endif

bool supports(Base64Path path) {
  switch (path) {
    case Base64Path::Portable:
      return true;
#ifdef VANTRY_HAS_VECTOR_PATHS
    case Base64Path::Avx2:
      return __builtin_cpu_supports("avx2") != 0;
    case Base64Path::Avx512:
      return __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vbmi");
#else
    case Base64Path::Avx2:
    case Base64Path::Avx512:
      return false;
#endif
  }
  return false;
}

Base64Path fastestBase64Path() {
  static const Base64Path path = [] {
    for (const Base64Path candidate : {Base64Path::Avx512, Base64Path::Avx2}) {
      if (supports(candidate)) return candidate;
    }
    return Base64Path::Portable;
  }();
  return path;
}

static qsizetype encodeVectors(Base64Path path, const unsigned char* in, qsizetype groups, char* out) {
#ifdef VANTRY_HAS_VECTOR_PATHS
  if (path == Base64Path::Avx512) return encodeGroupsAvx512(in, groups, out);
  if (path == Base64Path::Avx2) return encodeGroupsAvx2(in, groups, out);
#endif
  return 0;
}

qsizetype Base64Encoder::encode(const char* data, qsizetype size, char* out) {
  const char* const begin = out;
  while (m_waitingCount > 0 && m_waitingCount < 3 && size > 0) {
    m_waiting[m_waitingCount++] = static_cast<unsigned char>(*data++);
    --size;
  }
  if (m_waitingCount == 3) {
    encodeGroup(m_waiting, out);
    out += 4;
    m_waitingCount = 0;
  }
  const auto* in = reinterpret_cast<const unsigned char*>(data);
  const qsizetype groups = size / 3;
  const qsizetype done = encodeVectors(m_path, in, groups, out);
  encodeGroups(in + done * 3, groups - done, out + done * 4);
  out += groups * 4;
  for (qsizetype i = groups * 3; i < size; ++i) m_waiting[m_waitingCount++] = in[i];
  return out - begin;
}

qsizetype Base64Encoder::finish(char* out) {
  if (m_waitingCount == 0) return 0;
  std::fill(m_waiting + m_waitingCount, std::end(m_waiting), static_cast<unsigned char>(0));
  encodeGroup(m_waiting, out);
  std::fill(out + 1 + m_waitingCount, out + 4, '=');
  m_waitingCount = 0;
  return 4;
}
