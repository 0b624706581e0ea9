#pragma once
// The rows of the log viewer's list: their row ids in order, all of them or those that pass a filter, at eight bytes
// each, and the cells of those that are looked at. Main thread.

#include <QAbstractTableModel>
#include <QList>
#include <optional>

#include "monitor/LogRowCache.h"

class LogModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  explicit LogModel(QObject* parent);

  /// Takes the columns of a log; all rows go. Without a log there is one empty column.
  void setLog(const FolderItem& file, const QStringList& headers);
  [[nodiscard]] const QStringList& headers() const { return m_headers; }

  // The list.
  void setRows(const QList<qint64>& ids);
  void appendRows(const QList<qint64>& ids);
  /// Appends one row; while a filter holds, the view shows it if `passes`.
  void appendRow(qint64 id, const LogCells& cells, bool passes);
  [[nodiscard]] const QList<qint64>& all() const { return m_all; }
  [[nodiscard]] bool contains(qint64 id) const { return find(m_all, id) >= 0; }

  // The view of it.
  void setMatches(const QList<qint64>& ids);
  void appendMatches(const QList<qint64>& ids);
  void showAll();
  [[nodiscard]] const QList<qint64>& shown() const { return m_matches ? *m_matches : m_all; }
  [[nodiscard]] qint64 idAt(int row) const;  ///< 0 for a row that there isn't
  [[nodiscard]] int rowOf(qint64 id) const { return static_cast<int>(find(shown(), id)); }  ///< -1: not shown
  /// The cells of a row, or nullptr until they have come; rowsArrived tells.
  [[nodiscard]] const LogCells* cells(int row) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 signals:
  void rowsArrived();
  void readFailed(const QString& reason);

 private:
  void append(QList<qint64>& ids, const QList<qint64>& more, bool seen);
  [[nodiscard]] qsizetype find(const QList<qint64>& ids, qint64 id) const;

  QStringList m_headers;
  QList<qint64> m_all;
  std::optional<QList<qint64>> m_matches;  // what a filter leaves
  qsizetype m_appended = 0;                // rows that came one by one, whose ids may be out of order
  mutable int m_askedBlock = -1;           // of the rows asked for last, so that a painting asks once for each
  LogRowCache* m_cache;
};
