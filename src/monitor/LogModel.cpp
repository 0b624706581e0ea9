#include "monitor/LogModel.h"

#include <QIcon>
#include <algorithm>

#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"
#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;

constexpr int RowsAround = 64;  // of a row that is looked at, fetched with it

LogModel::LogModel(QObject* parent) : QAbstractTableModel(parent), m_cache(new LogRowCache(this)) {
  connect(m_cache, &LogRowCache::arrived, this, [this] {
    m_askedBlock = -1;
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit rowsArrived();
  });
  connect(m_cache, &LogRowCache::failed, this, &LogModel::readFailed);
  connect(m_cache, &LogRowCache::failed, this, [this] { m_askedBlock = -1; });
  connect(this, &QAbstractItemModel::modelReset, this, [this] { m_askedBlock = -1; });
}

void LogModel::setLog(const FolderItem& file, const QStringList& headers) {
  beginResetModel();
  m_headers = headers;
  m_all.clear();
  if (m_matches) m_matches->clear();
  m_cache->setLog(file, headers);
  endResetModel();
}

void LogModel::setRows(const QList<qint64>& ids) {
  beginResetModel();
  m_all = ids;
  m_appended = 0;
  m_cache->forget();  // the same id may stand for another row after a deletion
  if (m_matches) m_matches->clear();
  endResetModel();
}

void LogModel::append(QList<qint64>& ids, const QList<qint64>& more, bool seen) {
  const int before = static_cast<int>(ids.size());
  if (seen) beginInsertRows({}, before, before + static_cast<int>(more.size()) - 1);
  ids += more;
  if (seen) endInsertRows();
}

void LogModel::appendRows(const QList<qint64>& ids) {
  if (!ids.isEmpty()) append(m_all, ids, !m_matches);
}

void LogModel::appendRow(qint64 id, const LogCells& cells, bool passes) {
  m_cache->put(id, cells);
  ++m_appended;
  append(m_all, {id}, !m_matches);
  if (m_matches && passes) append(*m_matches, {id}, true);
}

void LogModel::setMatches(const QList<qint64>& ids) {
  beginResetModel();
  m_matches = ids;
  endResetModel();
}

void LogModel::appendMatches(const QList<qint64>& ids) {
  if (m_matches && !ids.isEmpty()) append(*m_matches, ids, true);
}

void LogModel::showAll() {
  if (!m_matches) return;
  beginResetModel();
  m_matches.reset();
  endResetModel();
}

qint64 LogModel::idAt(int row) const { return row >= 0 && row < shown().size() ? shown()[row] : 0; }

/// What a load brought is in order; the few that came after it may not be.
qsizetype LogModel::find(const QList<qint64>& ids, qint64 id) const {
  const auto sorted = ids.begin() + qMax<qsizetype>(0, ids.size() - m_appended);
  const auto at = std::lower_bound(ids.begin(), sorted, id);
  const auto found = at != sorted && *at == id ? at : std::find(sorted, ids.end(), id);
  return found == ids.end() ? -1 : found - ids.begin();
}

const LogCells* LogModel::cells(int row) const {
  const qint64 id = idAt(row);
  if (id == 0) return nullptr;
  const LogCells* const found = m_cache->find(id);
  if (!found && row / RowsAround != m_askedBlock) {
    m_askedBlock = row / RowsAround;
    m_cache->want(shown().mid(m_askedBlock * RowsAround, RowsAround));
  }
  return found;
}

int LogModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown().size());
}

int LogModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : qMax(1, static_cast<int>(m_headers.size()));
}

/// The failure picture, or a blank of its size that keeps the names under one another.
static QIcon rowPicture(bool failed) {
  static const auto make = [](bool drawn) {
    QIcon icon;
    for (const int edge : {16, 24, 32, 48}) {
      QPixmap blank(edge, edge);
      blank.fill(Qt::transparent);
      const QPixmap picture = drawn ? Pictures::load(u"up_status_fail"_s, 1, QSize(edge, edge)) : blank;
      for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) icon.addPixmap(picture, mode);
    }
    return icon;
  };
  static const QIcon failure = make(true), none = make(false);
  return failed ? failure : none;
}

QVariant LogModel::data(const QModelIndex& index, int role) const {
  const bool asked = role == Qt::DisplayRole || role == Qt::ToolTipRole || role == Qt::DecorationRole ||
                     role == Qt::AccessibleTextRole;
  const LogCells* const row = asked && index.isValid() ? cells(index.row()) : nullptr;
  if (!row || index.column() >= row->texts.size()) return {};
  const QString& text = row->texts[index.column()];
  const bool first = index.column() == 0;
  switch (role) {
    case Qt::DisplayRole:
      return row->gone && first ? VTULocalization::klLogRowGone() : onOneLine(text);
    case Qt::DecorationRole:
      return first ? QVariant(rowPicture(row->failed)) : QVariant();
    case Qt::ToolTipRole:
      return plainToolTip(text);
    case Qt::AccessibleTextRole:
      return first && row->failed ? fillPlaceholders(VTULocalization::klLogFailedRow(), {onOneLine(text)})
                                  : onOneLine(text);
    default:
      return {};
  }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return m_headers.value(section);
}
