// The encoder alone, against copying the same bytes.

#include <QByteArray>
#include <chrono>
#include <cstring>
#include <random>

#include "Benches.h"
#include "service/Base64.h"

namespace bench {

static constexpr qsizetype PieceBytes = 48 << 10;
static constexpr int Pieces = 20'000;

static QByteArray randomBytes(qsizetype count) {
  QByteArray bytes(count, Qt::Uninitialized);
  std::mt19937 random(7);
  for (char& byte : bytes) byte = static_cast<char>(random());
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

static double gigabytesPerSecond(const std::function<void()>& handlePiece) {
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < Pieces; ++i) {
    handlePiece();
    asm volatile("" ::: "memory");  // or the compiler does it once
  }
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - begin;
  return static_cast<double>(PieceBytes) * Pieces / wall.count() / 1e9;
}

void benchBase64(Lab&, Table& table) {
  const QByteArray bytes = randomBytes(3 * PieceBytes + 1);
  checkEncoder(bytes);
  QByteArray out(base64Length(PieceBytes + 2), Qt::Uninitialized);
  Base64Encoder encoder;
  const auto median = inTurn({
      [&] { return gigabytesPerSecond([&] { (void)encoder.encode(bytes.constData(), PieceBytes, out.data()); }); },
      [&] { return gigabytesPerSecond([&] { memcpy(out.data(), bytes.constData(), PieceBytes); }); },
  });
  table.add({.name = "base64",
             .work = "Base64 encoder, pieces of 48 KiB, against memcpy of them",
             .measured = median[0] / median[1],
             .toReach = 0.5,
             .goal = Goal::AtLeast,
             .unit = {},
             .detail = "encoder " + text(median[0], 1) + " GB/s, memcpy " + text(median[1], 1) + " GB/s"});
}

}  // namespace bench
