#include "monitor/LogQueries.h"

#include <QElapsedTimer>
#include <cerrno>
#include <limits>

#include "platform/SafeFile.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int FirstPiece = 512;
constexpr int IdsAtOnce = 20'000;
constexpr int RowsAtOnce = 2'000;
constexpr int HandOverMs = 60;

/// Visits rows a piece at a time; false with the reason, or without one when it was cancelled.
bool visitInPieces(LogReader& reader, const QList<qint64>& ids, const Cancelled& cancelled,
                   const LogReader::Visitor& visitor, const std::function<void()>& afterPiece, QString* error) {
  for (qsizetype done = 0; done < ids.size(); done += RowsAtOnce) {
    if (cancelled() || !reader.visit(ids.mid(done, RowsAtOnce), visitor, error)) return false;
    afterPiece();
  }
  return true;
}

}  // namespace

QString loadIds(const FolderItem& file, const Cancelled& cancelled, const IdPieces& hand) {
  const LogReader::OpenResult opened = LogReader::open(file);
  if (!opened.reader) return opened.error;
  QString error;
  qint64 last = std::numeric_limits<qint64>::min();
  for (int most = FirstPiece; !cancelled(); most = IdsAtOnce) {
    const auto ids = opened.reader->ids(last, most, &error);
    if (!ids) return error;
    if (ids->isEmpty()) break;
    last = ids->last();
    hand(*ids);
  }
  return {};
}

QString searchIds(const LogSource& log, const QList<qint64>& ids, const LogFilter& filter, const Cancelled& cancelled,
                  const IdPieces& hand) {
  const LogReader::OpenResult opened = LogReader::open(log.file);
  if (!opened.reader) return opened.error;
  const LogFilterTest test(filter, log.headers);
  QList<qint64> found;
  QElapsedTimer sinceHandedOver;  // invalid until the first
  const auto handOver = [&] {
    if (found.isEmpty() || (sinceHandedOver.isValid() && sinceHandedOver.elapsed() < HandOverMs)) return;
    hand(std::exchange(found, {}));
    sinceHandedOver.start();
  };
  QString error;
  const auto visitor = [&](qint64 id, const LogReader::Fields& row) {
    if (test.passes(row)) found << id;
  };
  if (!visitInPieces(*opened.reader, ids, cancelled, visitor, handOver, &error)) return error;
  if (!found.isEmpty()) hand(found);
  return {};
}

ReadRow readRow(const LogSource& log, qint64 id, const LogFilter& filter) {
  ReadRow read;
  const LogReader::OpenResult opened = LogReader::open(log.file);
  read.error = opened.error;
  const auto visitor = [&](qint64, const LogReader::Fields& row) {
    read.found = true;
    read.cells = cellsOf(row, log.headers);
    read.passes = LogFilterTest(filter, log.headers).passes(row);
  };
  if (opened.reader) (void)opened.reader->visit({id}, visitor, &read.error);
  return read;
}

CopiedLines copyRows(const LogSource& log, const QList<qint64>& ids, const Cancelled& cancelled) {
  CopiedLines copied;
  const LogReader::OpenResult opened = LogReader::open(log.file);
  copied.error = opened.error;
  if (!opened.reader) return copied;
  const auto visitor = [&](qint64, const LogReader::Fields& row) {
    appendLine(copied.lines, row, static_cast<int>(log.headers.size()));
  };
  (void)visitInPieces(
      *opened.reader, ids, cancelled, visitor, [] {}, &copied.error);
  return copied;
}

ExportOutcome exportRows(const LogSource& log, const QList<qint64>& ids, const FolderItem& target,
                         const Cancelled& cancelled, const std::function<void(qint64)>& progress) {
  const LogReader::OpenResult opened = LogReader::open(log.file);
  ExportOutcome outcome{false, opened.error};
  if (!opened.reader) return outcome;
  qsizetype done = 0;
  const auto rows = [&]() -> std::optional<QByteArray> {
    QByteArray lines;
    const QList<qint64> piece = ids.mid(done, RowsAtOnce);
    qsizetype found = 0;
    const auto visitor = [&](qint64, const LogReader::Fields& row) {
      appendLine(lines, row, static_cast<int>(log.headers.size()));
      ++found;
    };
    if (!opened.reader->visit(piece, visitor, &outcome.error)) return std::nullopt;
    if (found < piece.size()) outcome.error = VTULocalization::klLogRowsGone();
    if (found < piece.size()) return std::nullopt;
    progress(done += found);
    return lines;
  };
  bool headed = false;
  const auto nextPiece = [&]() -> std::optional<QByteArray> {
    if (cancelled()) return std::nullopt;
    if (std::exchange(headed, true)) return rows();
    QByteArray headings;
    appendLine(headings, log.headers);
    return headings;
  };
  const IoResult written = writeFileInPieces(target, nextPiece);
  if (!written.ok() && outcome.error.isEmpty()) {
    outcome.cancelled = written.error == ECANCELED;
    outcome.error = written.message();
  }
  return outcome;
}
