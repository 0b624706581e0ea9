// The encoder alone, against copying the same bytes.

#include <QByteArray>
#include <chrono>
#include <cstring>
#include <random>

#include "Benches.h"
#include "service/Base64.h"

namespace bench {

static constexpr qsizetype PieceBytes = 48 << 10;
static constexpr qsizetype DataBytes = 256 << 20;

/// `count` is a multiple of 8.
static QByteArray randomBytes(qsizetype count) {
  QByteArray bytes(count, Qt::Uninitialized);
  std::mt19937_64 random(7);
  for (qsizetype i = 0; i < count; i += sizeof(quint64)) {
    const quint64 word = random();
    memcpy(bytes.data() + i, &word, sizeof word);
  }
  return bytes;
}

/// Against Qt's encoder: every length up to two vectors' worth, and a long text cut at every place in its pieces.
static void checkEncoder(const QByteArray& bytes) {
  QByteArray out(base64Length(bytes.size()) + 8, Qt::Uninitialized);
  const auto check = [&](qsizetype size, qsizetype cut) {
    Base64Encoder encoder;
    qsizetype length = encoder.encode(bytes.constData(), cut, out.data());
    length += encoder.encode(bytes.constData() + cut, size - cut, out.data() + length);
    length += encoder.finish(out.data() + length);
    if (QByteArrayView(out.constData(), length) != bytes.first(size).toBase64()) fail("the encoder is wrong");
  };
  for (qsizetype size = 0; size < 300; ++size) check(size, 0);
  for (qsizetype cut = 0; cut < 300; ++cut) check(1000, cut);
  check(bytes.size(), PieceBytes);
}

/// `handlePiece` gets one piece after another of the data, as a file gives them.
static double gigabytesPerSecond(const QByteArray& data, const std::function<void(const char* piece)>& handlePiece) {
  const qsizetype pieces = data.size() / PieceBytes;
  const auto begin = std::chrono::steady_clock::now();
  for (qsizetype i = 0; i < pieces; ++i) {
    handlePiece(data.constData() + i * PieceBytes);
    asm volatile("" ::: "memory");  // or the compiler leaves pieces out
  }
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - begin;
  return static_cast<double>(pieces * PieceBytes) / wall.count() / 1e9;
}

void benchBase64(Lab&, Table& table) {
  const QByteArray data = randomBytes(DataBytes);
  checkEncoder(data.first(3 * PieceBytes + 1));
  QByteArray out(base64Length(PieceBytes + 2), Qt::Uninitialized);
  Base64Encoder encoder;
  const auto encode = [&](const char* piece) { (void)encoder.encode(piece, PieceBytes, out.data()); };
  const auto copy = [&](const char* piece) { memcpy(out.data(), piece, PieceBytes); };
  const auto one = [&](const auto& handle) { return [&](const char*) { handle(data.constData()); }; };
  const auto median = inTurn(
      {[&] { return gigabytesPerSecond(data, encode); }, [&] { return gigabytesPerSecond(data, copy); },
       [&] { return gigabytesPerSecond(data, one(encode)); }, [&] { return gigabytesPerSecond(data, one(copy)); }},
      3 * Turns);
  table.add({.name = "base64",
             .work = "Base64 encoder, 256 MiB in pieces of 48 KiB, against memcpy of them",
             .measured = median[0] / median[1],
             .toReach = 0.5,
             .goal = Goal::AtLeast,
             .unit = {},
             .detail = "encoder " + text(median[0], 1) + " GB/s, memcpy " + text(median[1], 1) +
                       " GB/s; one piece over and over, in the cache: " + text(median[2], 1) + " and " +
                       text(median[3], 1) + " GB/s"});
}

}  // namespace bench
