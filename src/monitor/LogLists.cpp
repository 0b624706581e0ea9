#include "monitor/LogLists.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <numeric>

#include "text/VTULocalization.h"
#include "widgets/Captions.h"

using namespace Qt::Literals::StringLiterals;

constexpr int RowHeight = 24;
constexpr int LeastColumnWidth = 30, MostColumnWidth = 5000;
constexpr int FieldColumnWidth = 200;
constexpr int FirstWidths[] = {150, 150, 130, 130, 110, 150, 124};

/// What both lists have in common.
static void dressList(QTableView& list) {
  QFont font = list.font();
  font.setPointSizeF(qBound(9.0, font.pointSizeF(), 12.0));
  list.setFont(font);
  list.verticalHeader()->hide();
  list.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  list.verticalHeader()->setMinimumSectionSize(RowHeight);
  list.verticalHeader()->setDefaultSectionSize(RowHeight);
  list.horizontalHeader()->setHighlightSections(false);
  list.horizontalHeader()->setSectionsClickable(false);
  list.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  list.setSelectionBehavior(QAbstractItemView::SelectRows);
  list.setEditTriggers(QAbstractItemView::NoEditTriggers);
  list.setTabKeyNavigation(false);
  list.setShowGrid(false);
  list.setWordWrap(false);
}

namespace {

/// Files and folders are told apart by their ends, so their middles give way; notes are read from their beginning.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const bool notes = index.model()->headerData(index.column(), Qt::Horizontal).toString() == "Notes"_L1;
    option->textElideMode = notes ? Qt::ElideRight : Qt::ElideMiddle;
  }
};

}  // namespace

LogListView::LogListView(LogModel* rows, QWidget* parent)
    : QTableView(parent), m_rows(rows), m_note(new QLabel(viewport())) {
  dressList(*this);
  setModel(rows);
  setItemDelegate(new RowDelegate(this));
  // A heading asks at each painting whether its whole column is selected, row by row: it gets a selection of its own.
  horizontalHeader()->setSelectionModel(new QItemSelectionModel(rows, this));
  setSelectionMode(ExtendedSelection);
  setAlternatingRowColors(true);
  setHorizontalScrollMode(ScrollPerPixel);
  horizontalHeader()->setMinimumSectionSize(LeastColumnWidth);
  m_note->setObjectName(u"ListNote"_s);
  m_note->setAlignment(Qt::AlignCenter);
  m_note->setWordWrap(true);
  m_note->setTextFormat(Qt::PlainText);
  m_note->setAttribute(Qt::WA_TransparentForMouseEvents);
  m_note->hide();
}

int LogListView::ListIndex() const {
  const QItemSelection& ranges = selectionModel()->selection();
  if (ranges.isEmpty()) return -1;
  const QModelIndex focused = selectionModel()->currentIndex();
  if (focused.isValid() && ranges.contains(focused)) return focused.row();
  return std::min_element(ranges.begin(), ranges.end(), [](const auto& a, const auto& b) { return a.top() < b.top(); })
      ->top();
}

void LogListView::setListIndex(int row) {
  selectionModel()->setCurrentIndex(m_rows->index(row, 0),
                                    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

QList<qint64> LogListView::selectedIds(qsizetype most) const {
  QItemSelection ranges = selectionModel()->selection();
  std::sort(ranges.begin(), ranges.end(), [](const auto& a, const auto& b) { return a.top() < b.top(); });
  QList<qint64> ids;
  for (const QItemSelectionRange& range : std::as_const(ranges))
    ids += m_rows->shown().mid(range.top(), qMin<qsizetype>(range.height(), most - ids.size()));
  return ids;
}

int LogListView::ScrollPosition() const { return verticalScrollBar()->value(); }

void LogListView::setScrollPosition(int row) {
  doItemsLayout();  // rows that came in during this event are not in the bar's range yet
  verticalScrollBar()->setValue(row);
}

void LogListView::setNote(const QString& note) {
  m_note->setText(note);
  m_note->setVisible(!note.isEmpty());
  placeNote();
}

void LogListView::placeNote() { m_note->setGeometry(viewport()->rect().adjusted(16, 4, -16, -4)); }

QString LogListView::columnWidths() const {
  QStringList widths;
  for (int i = 0; i < horizontalHeader()->count(); ++i) widths << QString::number(columnWidth(i));
  return widths.join(u',');
}

void LogListView::setColumnWidths(const QString& stored) {
  const QStringList texts = stored.split(u',');
  const int columns = horizontalHeader()->count();
  QList<int> widths;
  for (const QString& text : texts) widths << text.toInt();
  const bool good = widths.size() == columns && std::all_of(widths.begin(), widths.end(), [](int width) {
                      return width >= LeastColumnWidth && width <= MostColumnWidth;
                    });
  if (!good) {
    widths = QList<int>(std::begin(FirstWidths), std::end(FirstWidths));
    while (widths.size() < columns) widths << FirstWidths[0];
    widths.resize(columns);
    widths.last() = qMax(widths.last(), viewport()->width() - std::accumulate(widths.begin(), widths.end() - 1, 0));
  }
  for (int i = 0; i < columns; ++i) setColumnWidth(i, widths[i]);
}

void LogListView::keyPressEvent(QKeyEvent* event) {
  const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (event->matches(QKeySequence::Copy))
    emit copyWanted();
  else if (arrow && ListIndex() < 0 && currentIndex().isValid())
    setListIndex(currentIndex().row());
  else
    QTableView::keyPressEvent(event);
}

void LogListView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  fillWidth(event->oldSize().width());
  placeNote();
}

void LogListView::fillWidth(int oldWidth) {
  const int last = horizontalHeader()->count() - 1, whole = horizontalHeader()->length();
  if (last < 0 || whole != oldWidth) return;
  setColumnWidth(last, qMax(LeastColumnWidth, columnWidth(last) + viewport()->width() - whole));
}

QColor fieldGround(const QPalette& palette) {
  const bool dark = palette.color(QPalette::Base).lightness() < 128;
  return dark ? QColor(48, 48, 72) : LogDetailsView::FieldGround;
}

namespace {

class FieldDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    if (index.column() == 0) painter->fillRect(option.rect, fieldGround(option.palette));
    QStyledItemDelegate::paint(painter, option, index);
  }
};

}  // namespace

LogDetailsView::LogDetailsView(QWidget* parent) : QTableView(parent), m_fields(new QStandardItemModel(0, 2, this)) {
  dressList(*this);
  m_fields->setHorizontalHeaderLabels({VTULocalization::klField(), VTULocalization::klValue()});
  setModel(m_fields);
  setItemDelegate(new FieldDelegate(this));
  setSelectionMode(SingleSelection);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  horizontalHeader()->resizeSection(0, FieldColumnWidth);
}

void LogDetailsView::showFields(const QStringList& fields, const QStringList& values) {
  m_fields->setRowCount(static_cast<int>(fields.size()));
  for (int row = 0; row < fields.size(); ++row) {
    auto* const value = new QStandardItem(onOneLine(values.value(row)));  // the model owns it
    value->setToolTip(plainToolTip(values.value(row)));
    value->setData(values.value(row), Qt::UserRole);
    m_fields->setItem(row, 0, new QStandardItem(fields[row]));
    m_fields->setItem(row, 1, value);
  }
}

void LogDetailsView::keyPressEvent(QKeyEvent* event) {
  if (!event->matches(QKeySequence::Copy)) return QTableView::keyPressEvent(event);
  if (currentIndex().isValid())
    QGuiApplication::clipboard()->setText(currentIndex().siblingAtColumn(1).data(Qt::UserRole).toString());
}
