#include "monitor/SystemLogWindow.h"

#include <QApplication>
#include <QHeaderView>
#include <QShortcut>

#include "storage/LogDatabase.h"
#include "storage/Preferences.h"
#include "text/VTULocalization.h"
#include "widgets/Anchors.h"
#include "widgets/Captions.h"
#include "widgets/Colours.h"
#include "widgets/Mnemonics.h"
#include "widgets/Pictures.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

constexpr QSize DesignSize{1000, 416};
constexpr QSize LeastSize{940, 200};
constexpr int DesignDetailsHeight = 158;
constexpr int AddPeriodMs = 2000;
constexpr int BoxIndicator = 24;  // what a check box draws beside its caption

static QString dividerKey() { return u"LogWindowDetailsHeight"_s; }

std::mutex SystemLogWindow::DefaultWindowMutex;
SystemLogWindow* SystemLogWindow::DefaultWindow = nullptr;

SystemLogWindow::SystemLogWindow()
    : m_model(new LogModel(this)),
      m_find(new LogFind(m_model, this)),
      m_export(new LogExport(this)),
      m_open("log-open", this),
      m_load("log-load", this),
      m_row("log-row", this),
      m_delete("log-delete", this),
      m_detailsHeight(DesignDetailsHeight) {
  setObjectName(u"SystemLogWindow"_s);
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(u"System Log"_s);
  setWindowIcon(Pictures::programIcon());
  setAutoFillBackground(true);
  chooseGround();
  setMinimumSize(LeastSize);
  resize(DesignSize);
  if (VantryUtil::prefs && VantryUtil::prefs->HasKey(dividerKey()))
    m_detailsHeight = static_cast<int>(VantryUtil::prefs->integerValue(dividerKey()));
  buildControls();
  placeLists();
  buildKeys();
  connectControls();
  Event_Open();
}

SystemLogWindow::~SystemLogWindow() { receive(false); }

SystemLogWindow* SystemLogWindow::openOne() {
  for (QWidget* const window : QApplication::topLevelWidgets())
    if (auto* const log = qobject_cast<SystemLogWindow*>(window); log && log->isVisible()) return log;
  return nullptr;
}

void SystemLogWindow::bringUp() {
  SystemLogWindow* window = openOne();
  if (!window) window = new SystemLogWindow;  // deletes itself when it is closed
  // One that fills the screen stays so.
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->show();
  window->raise();
  window->activateWindow();
}

void SystemLogWindow::receive(bool receiving) {
  const std::lock_guard lock(DefaultWindowMutex);
  if (receiving)
    DefaultWindow = this;
  else if (DefaultWindow == this)
    DefaultWindow = nullptr;
}

void SystemLogWindow::buildControls() {
  auto* const anchors = new Anchors(this, DesignSize);
  Mnemonics letters;
  const auto dress = [](QWidget* control, const QString& name, const QString& spoken) {
    control->setObjectName(name);
    control->setAccessibleName(spoken);
  };
  const auto place = [&](QWidget* control, const QString& name, const QString& caption, int left, int width,
                         Edges side) {
    dress(control, name, caption);
    anchors->place(control, {left, 376, width, 20}, side | Edge::Bottom);
  };
  const auto button = [&](const QString& name, const QString& caption, int left, int width, Edge side) {
    auto* const made = new QPushButton(this);
    place(made, name, caption, left, width, side);
    setFittedCaption(*made, letters.mark(caption));
    return made;
  };
  const auto box = [&](const QString& name, const QString& caption, int left, int width) {
    auto* const made = new QCheckBox(this);
    place(made, name, caption, left, width, Edge::Right);
    made->setText(letters.mark(caption));
    fitFont(*made, caption, width - BoxIndicator);
    return made;
  };
  dress(TheData = new LogListView(m_model, this), u"TheData"_s, klLogRows());
  dress(LogDetails = new LogDetailsView(this), u"LogDetails"_s, klLogDetails());
  dress(WindowSplitter1 = new WindowSplitter(this), u"WindowSplitter1"_s, klLogDivider());
  REfreshLogButton = button(u"REfreshLogButton"_s, klRefreshLog(), 20, 111, Edge::Left);
  CearLogButton = button(u"CearLogButton"_s, klClearLog(), 143, 111, Edge::Left);
  ExportToText = button(u"ExportToText"_s, klExporttotxt(), 266, 111, Edge::Left);
  place(FindField = new QLineEdit(this), u"FindField"_s, klFind(), 389, 162, Edge::Left | Edge::Right);
  DeleteLogs = button(u"DeleteLogs"_s, klDeleteLog(), 563, 173, Edge::Right);
  FailuresOnlyCheckBox = box(u"FailuresOnlyCheckBox"_s, klFailuresOnly(), 746, 102);
  AutoRefreshCheckBox = box(u"AutoRefreshCheckBox"_s, klAutoRefresh(), 852, 128);
  FindField->setPlaceholderText(klFind());
  FindField->setPalette(readableCue(palette()));
  FindField->setClearButtonEnabled(true);
  FindField->setToolTip(plainToolTip(klFindTip()));
  FailuresOnlyCheckBox->setToolTip(plainToolTip(klFailuresOnlyTip()));
  fitFont(*FindField, klFind(), FindField->width());
  LogAddTimer = new QTimer(this);
  LogAddTimer->setObjectName(u"LogAddTimer"_s);
  LogAddTimer->setInterval(AddPeriodMs);
  m_menu = new LogRowMenu(TheData);
}

void SystemLogWindow::buildKeys() {
  QWidget* const order[] = {TheData,      WindowSplitter1, LogDetails, REfreshLogButton,     CearLogButton,
                            ExportToText, FindField,       DeleteLogs, FailuresOnlyCheckBox, AutoRefreshCheckBox};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
  TheData->setFocus();
  const auto key = [this](const QKeySequence& sequence, auto&& action) {
    connect(new QShortcut(sequence, this), &QShortcut::activated, this, action);
  };
  key(QKeySequence::Find, [this] {
    FindField->setFocus(Qt::ShortcutFocusReason);
    FindField->selectAll();
  });
  key(QKeySequence::Refresh, [this] { REfreshLogButton->click(); });
  key(QKeySequence::Close, [this] { close(); });
  connect(new QShortcut(Qt::Key_Escape, FindField, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
          [this] {
            FindField->clear();
            TheData->setFocus();
          });
}

void SystemLogWindow::connectControls() {
  using Self = SystemLogWindow;
  connect(TheData->selectionModel(), &QItemSelectionModel::selectionChanged, this, &Self::TheData_Change);
  connect(TheData->selectionModel(), &QItemSelectionModel::currentChanged, this, &Self::TheData_Change);
  connect(m_model, &QAbstractItemModel::modelReset, LogDetails, &LogDetailsView::clearFields);
  connect(m_model, &LogModel::rowsArrived, this, [this] {
    if (m_detailsMissing) TheData_Change();
    updateNote();
  });
  connect(m_model, &LogModel::readFailed, this, &Self::sayUnreadable);
  connect(TheData->horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
    if (VantryUtil::prefs && !headers.isEmpty())
      VantryUtil::prefs->setStringValue(widthsKey(), TheData->columnWidths());
  });
  connect(WindowSplitter1, &WindowSplitter::wanted, this, [this](int top) {
    m_detailsHeight += WindowSplitter1->y() - top;
    placeLists();
    m_detailsHeight = LogDetails->height();
    if (VantryUtil::prefs) VantryUtil::prefs->setIntegerValue(dividerKey(), m_detailsHeight);
  });
  connect(REfreshLogButton, &QPushButton::clicked, this, &Self::loadAll);
  connect(CearLogButton, &QPushButton::clicked, this, &Self::CearLogButton_Action);
  connect(ExportToText, &QPushButton::clicked, this, &Self::ExportToText_Action);
  connect(DeleteLogs, &QPushButton::clicked, this, &Self::DeleteLogs_Action);
  connect(AutoRefreshCheckBox, &QCheckBox::clicked, this, &Self::AutoRefreshCheckBox_Action);
  connect(FindField, &QLineEdit::textChanged, this, &Self::FindField_TextChange);
  connect(FailuresOnlyCheckBox, &QCheckBox::toggled, this, &Self::FindField_TextChange);
  connect(LogAddTimer, &QTimer::timeout, this, &Self::LogAddTimer_Action);
  connect(m_find, &LogFind::finished, this, [this] {
    selectKeptRow();
    updateNote();
  });
  connect(m_find, &LogFind::failed, this, &Self::sayUnreadable);
  connect(m_export, &LogExport::changed, this, [this] {
    // Rows that are being exported are not to be deleted under it.
    DeleteLogs->setEnabled(!m_export->running());
    ExportToText->setEnabled(!m_export->running());
  });
}

void SystemLogWindow::placeLists() {
  const DividedPlaces places = dividedPlaces(size(), m_detailsHeight);
  TheData->setGeometry(places.before);
  LogDetails->setGeometry(places.after);
  WindowSplitter1->setGeometry(places.divider);
  WindowSplitter1->raise();
}

/// White; on a dark desktop its window colour, from which fields and boxes stand out.
void SystemLogWindow::chooseGround() {
  const bool dark = palette().color(QPalette::Base).lightness() < 128;
  const QPalette::ColorRole wanted = dark ? QPalette::Window : QPalette::Base;
  if (backgroundRole() != wanted) setBackgroundRole(wanted);  // which is a change of the palette as well
}

void SystemLogWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  chooseGround();
  if (FindField) FindField->setPalette(readableCue(palette()));
}

void SystemLogWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (WindowSplitter1) placeLists();
}
