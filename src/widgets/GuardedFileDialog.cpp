#include "widgets/GuardedFileDialog.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QCompleter>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSettings>
#include <QShortcut>
#include <QToolButton>
#include <QTreeView>

#include "platform/MountTable.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

constexpr int LimitMs = 400;     // for an answer, before the line says that there is none
constexpr int ListingMs = 2000;  // the same for a folder's list

namespace {

constexpr int UrlRole = Qt::UserRole + 1;  // of the toolkit's lists of places

// A folder of the kernel's own that nobody chooses.
const QString& parkingPlace() {
  static const QString path = u"/proc/self/task"_s;
  return path;
}

QStringList viewNames() { return {u"listView"_s, u"treeView"_s}; }

QFileDialog::ViewMode& lastViewMode() {
  static QFileDialog::ViewMode mode = QFileDialog::Detail;
  return mode;
}

bool leadsToShare(const QString& path) {
  return !path.isEmpty() && MountTable::present().leadsToShare(QFile::encodeName(path));
}

/// Comes back when a share has answered for real: an open folder can't be answered from what the kernel remembers.
bool answers(const QString& path) {
  const QFileInfo info(path);
  return QDirIterator(info.isDir() ? path : info.path()).hasNext();
}

/// The folders that other dialogs of this user were last in may lie on a share, and the toolkit's dialog would look
/// at them while it is being made.
const QString& withoutMemory(const QString& directory) {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u"/dev/null"_s);
  return directory;
}

/// The toolkit's columns are made for short American dates; other dates, and most sizes, don't fit.
void fitColumns(QTreeView& list) {
  enum Column { Name, Size, Type, Date };
  QHeaderView& header = *list.header();
  const QFontMetrics metrics = list.fontMetrics();
  const auto fit = [&](Column column, const QString& longest) {
    header.resizeSection(column, qMax(header.sectionSizeHint(column), metrics.horizontalAdvance(longest + u"mm"_s)));
  };
  const QLocale locale = QLocale::system();  // in which the toolkit's model writes them
  fit(Size, locale.formattedDataSize(1023));
  fit(Type, QCoreApplication::translate("QAbstractFileIconProvider", "Folder"));
  fit(Date, locale.toString(QDateTime(QDate(2028, 12, 28), QTime(22, 58, 58)), QLocale::ShortFormat));
  header.setStretchLastSection(false);
  header.setSectionResizeMode(Name, QHeaderView::Stretch);
}

}  // namespace

GuardedFileDialog::GuardedFileDialog(QWidget* window, const QString& title, const QString& directory)
    : QFileDialog(window, title, withoutMemory(directory)), m_question("chooser", this) {
  setOption(DontUseNativeDialog);  // the toolkit's own shows the prompt, and reads folders on a thread
  setViewMode(lastViewMode());
  m_guarded = toolkitIsKnown();
  if (!m_guarded) return;
  m_model = findChild<QFileSystemModel*>();
  m_name = findChild<QLineEdit*>(u"fileNameEdit"_s);
  m_line = new QLabel(this);
  m_line->setObjectName(u"SilentFolderText"_s);
  m_line->setTextFormat(Qt::PlainText);
  m_line->setWordWrap(true);
  m_line->hide();
  if (auto* const grid = qobject_cast<QGridLayout*>(layout()))
    grid->addWidget(m_line, grid->rowCount(), 0, 1, grid->columnCount());
  m_listing.setSingleShot(true);
  connect(&m_listing, &QTimer::timeout, this, [this] { tellSilent(m_model->rootPath()); });
  connect(m_model, &QFileSystemModel::rootPathChanged, this, &GuardedFileDialog::handleEntered);
  connect(m_model, &QFileSystemModel::directoryLoaded, this, &GuardedFileDialog::handleLoaded);
  fitColumns(*findChild<QTreeView*>(u"treeView"_s));
  guardViews();
  guardName();
  guardPlaces();
  guardButtons();
  handleEntered(m_model->rootPath());
}

bool GuardedFileDialog::toolkitIsKnown() const {
  for (const char* const slot : {"_q_autoCompleteFileName(QString)", "_q_createDirectory()", "_q_deleteCurrent()",
                                 "_q_selectionChanged()", "_q_showContextMenu(QPoint)", "_q_updateOkButton()"})
    if (metaObject()->indexOfMethod(slot) < 0) return false;
  for (const QString& name : {u"backButton"_s, u"forwardButton"_s, u"toParentButton"_s, u"newFolderButton"_s})
    if (!findChild<QToolButton*>(name)) return false;
  for (const QString& name : viewNames())
    if (!findChild<QAbstractItemView*>(name)) return false;
  if (!findChild<QTreeView*>(u"treeView"_s)) return false;
  const auto* const sidebar = findChild<QAbstractItemView*>(u"sidebar"_s);
  const auto* const name = findChild<QLineEdit*>(u"fileNameEdit"_s);
  return sidebar && sidebar->metaObject()->indexOfSignal("goToUrl(QUrl)") >= 0 && name && name->completer() &&
         findChild<QComboBox*>(u"lookInCombo"_s) && findChild<QDialogButtonBox*>(u"buttonBox"_s) &&
         findChild<QFileSystemModel*>();
}

void GuardedFileDialog::retire() {
  if (!m_guarded) return hide(), deleteLater();
  static auto* const retired = new QSet<GuardedFileDialog*>;  // never destroyed: a thread may hang for ever
  lastViewMode() = viewMode();
  m_question.cancel();
  m_listing.stop();
  hide();
  setParent(nullptr);
  retired->insert(this);
  // The thread takes the folders in their order: when it comes to this one, it has left the others behind, and with
  // no view, completer or watcher there is nobody who asks for more.
  m_completer->deleteLater();  // it may be calling: Return in its list of names chooses
  for (const QString& name : viewNames()) findChild<QAbstractItemView*>(name)->setModel(nullptr);
  m_model->setOption(QFileSystemModel::DontWatchForChanges);
  connect(m_model, &QFileSystemModel::directoryLoaded, this, [this](const QString& path) {
    if (path != parkingPlace()) return;
    retired->remove(this);
    deleteLater();
  });
  m_model->setRootPath(parkingPlace());
}

void GuardedFileDialog::guardViews() {
  for (const QString& name : viewNames()) {
    auto* const view = findChild<QAbstractItemView*>(name);
    view->installEventFilter(this);
    connect(
        view->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
        [this] { m_model->setReadOnly(leadsToShare(m_model->rootPath())); }, Qt::QueuedConnection);
    disconnect(view, &QAbstractItemView::activated, this, nullptr);
    connect(view, &QAbstractItemView::activated, this, &GuardedFileDialog::handleActivated);
    disconnect(view, &QWidget::customContextMenuRequested, this, nullptr);
    connect(view, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
      ask(m_model->rootPath(), [=, this] { QMetaObject::invokeMethod(this, "_q_showContextMenu", Q_ARG(QPoint, at)); });
    });
    for (auto* const shortcut : view->findChildren<QShortcut*>()) {
      disconnect(shortcut, &QShortcut::activated, this, nullptr);
      connect(shortcut, &QShortcut::activated, this,
              [this] { ask(m_model->rootPath(), [this] { callToolkit("_q_deleteCurrent"); }); });
    }
  }
  auto* const selection = findChild<QAbstractItemView*>(u"listView"_s)->selectionModel();  // that of both views
  disconnect(selection, nullptr, this, nullptr);
  connect(selection, &QItemSelectionModel::selectionChanged, this, &GuardedFileDialog::handleSelection);
}

void GuardedFileDialog::guardName() {
  m_completer = m_name->completer();
  disconnect(m_name, &QLineEdit::textChanged, this, nullptr);
  connect(m_name, &QLineEdit::textChanged, this, &GuardedFileDialog::handleText);
}

void GuardedFileDialog::guardPlaces() {
  auto* const sidebar = findChild<QAbstractItemView*>(u"sidebar"_s);
  disconnect(sidebar, SIGNAL(goToUrl(QUrl)), this, nullptr);
  connect(sidebar, SIGNAL(goToUrl(QUrl)), this, SLOT(goToUrl(QUrl)));
  sidebar->setDragDropMode(QAbstractItemView::NoDragDrop);  // a folder that is dropped is looked at
  auto* const places = findChild<QComboBox*>(u"lookInCombo"_s);
  disconnect(places, &QComboBox::textActivated, this, nullptr);
  connect(places, &QComboBox::activated, this, [=, this](int row) { goToUrl(places->itemData(row, UrlRole).toUrl()); });
}

void GuardedFileDialog::guardButtons() {
  const auto guard = [this](const char* name, std::function<void()> step) {
    auto* const button = findChild<QToolButton*>(QLatin1StringView(name));
    disconnect(button, &QAbstractButton::clicked, this, nullptr);
    connect(button, &QAbstractButton::clicked, this, step);
  };
  guard("backButton", [this] { enterVisited(m_at - 1); });
  guard("forwardButton", [this] { enterVisited(m_at + 1); });
  guard("toParentButton", [this] { enterParent(); });
  guard("newFolderButton", [this] { ask(m_model->rootPath(), [this] { createFolder(); }); });
  for (QAction* const action : actions()) {
    disconnect(action, &QAction::triggered, this, nullptr);
    const bool toParent = action->objectName() == u"qt_goto_parent_action";
    connect(action, &QAction::triggered, this, [=, this] { toParent ? enterParent() : enter(QDir::homePath()); });
  }
}

void GuardedFileDialog::createFolder() {
  m_model->setReadOnly(false);  // until it has been given its name
  callToolkit("_q_createDirectory");
}

bool GuardedFileDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QFileDialog::eventFilter(watched, event);
  const auto& key = *static_cast<const QKeyEvent*>(event);
  const bool left = key.key() == Qt::Key_Left && key.modifiers() == Qt::AltModifier;
  if (key.key() == Qt::Key_Backspace)
    enterParent();
  else if (left || key.key() == Qt::Key_Back)
    enterVisited(m_at - 1);
  else
    return QFileDialog::eventFilter(watched, event);
  return true;
}

void GuardedFileDialog::ask(const QString& path, std::function<void()> then) {
  m_question.cancel();
  tellSilent({});
  if (!leadsToShare(path)) return then();
  m_question.run<bool>(
      LimitMs, [path](const auto&) { return answers(path); },
      [=, this](bool) {
        tellSilent({});
        then();
      },
      [=, this] { tellSilent(path); });
}

void GuardedFileDialog::enter(const QString& path) {
  ask(path, [=, this] {
    setDirectory(path);
    emit directoryEntered(path);
    if (fileMode() != Directory) return;
    m_name->clear();  // selects the folder that was entered, by which its name comes back
    m_name->clear();
  });
}

void GuardedFileDialog::enterParent() {
  const QString path = m_model->rootPath();
  // Nothing is above the root but the list of drives.
  enter(path == u"/" ? m_model->myComputer().toString() : QDir::cleanPath(path + u"/.."_s));
}

void GuardedFileDialog::enterVisited(qsizetype at) {
  if (at < 0 || at >= m_visited.size()) return;
  ask(m_visited[at], [=, this] {
    m_at = at;
    setDirectory(m_visited[at]);
    enableVisited();
  });
}

void GuardedFileDialog::goToUrl(const QUrl& url) {
  const QString path = url.toLocalFile();
  enter(path.isEmpty() ? m_model->myComputer().toString() : path);
}

void GuardedFileDialog::handleActivated(const QModelIndex& index) {
  const QString path = index.data(QFileSystemModel::FilePathRole).toString();
  ask(path, [=, this, row = QPersistentModelIndex(index)] { m_model->isDir(row) ? enter(path) : accept(); });
}

void GuardedFileDialog::handleSelection() {
  const QModelIndex index = findChild<QAbstractItemView*>(u"listView"_s)->selectionModel()->selectedRows().value(0);
  const QString path = index.data(QFileSystemModel::FilePathRole).toString();
  emit currentChanged(path);
  if (!leadsToShare(m_model->rootPath()) && !leadsToShare(path)) return callToolkit("_q_selectionChanged");
  const bool named = index.isValid() && (fileMode() == Directory || !m_model->isDir(index));
  if (named && !m_name->hasFocus()) m_name->setText(index.data().toString());
}

void GuardedFileDialog::handleText() {
  m_question.cancel();
  tellSilent({});
  const bool share = leadsToShare(m_model->rootPath()) || leadsToShare(target());
  m_name->setCompleter(share ? nullptr : m_completer);
  if (!share) {
    if (m_name->hasFocus())  // the toolkit keeps some that match no more, and chooses the first
      findChild<QAbstractItemView*>(u"listView"_s)->clearSelection();
    QMetaObject::invokeMethod(this, "_q_autoCompleteFileName", Q_ARG(QString, m_name->text()));
    return callToolkit("_q_updateOkButton");
  }
  auto* const box = findChild<QDialogButtonBox*>(u"buttonBox"_s);
  if (auto* const button = box->button(acceptMode() == AcceptOpen ? QDialogButtonBox::Open : QDialogButtonBox::Save))
    button->setEnabled(fileMode() == Directory || !m_name->text().isEmpty());
}

QString GuardedFileDialog::target() const {
  QString name = m_name->text();
  if (name.contains(u'"')) name = name.section(u'"', 1, 1);
  if (name == u"~" || name.startsWith(u"~/")) name.replace(0, 1, QDir::homePath());
  if (name.startsWith(u'$')) name = qEnvironmentVariable(name.sliced(1).toUtf8().constData());
  return QDir::cleanPath(name.startsWith(u'/') ? name : m_model->rootPath() + u'/' + name);
}

void GuardedFileDialog::accept() {
  if (!m_guarded) return QFileDialog::accept();
  if (m_name->text() == u"..") {
    m_name->selectAll();
    return enterParent();
  }
  const QString path = target(), present = m_model->rootPath();
  ask(path, [=, this] {
    // The toolkit looks for what is typed in the present folder first, which may be the one that hangs.
    if (leadsToShare(present) && !liesIn(QFile::encodeName(path), QFile::encodeName(present))) {
      const qsizetype slash = path.lastIndexOf(u'/');
      setDirectory(path.left(qMax(slash, 1)));
      m_name->setText(path.sliced(slash + 1));
    }
    QFileDialog::accept();
  });
}

void GuardedFileDialog::handleEntered(const QString& path) {
  if (path == parkingPlace()) return;
  if (m_visited.value(m_at) != path) {
    m_visited.resize(m_at + 1);
    m_visited.append(path);
    ++m_at;
  }
  enableVisited();
  m_model->setReadOnly(leadsToShare(path));  // else each look at a row may look at the file
  if (path.startsWith(u'/') && !m_loaded.contains(path)) return m_listing.start(ListingMs);
  m_listing.stop();  // the list of drives is never told to be complete
}

void GuardedFileDialog::handleLoaded(const QString& path) {
  m_loaded.insert(path);
  if (path == m_model->rootPath()) m_listing.stop();
  if (path == m_silent && !m_question.running()) tellSilent({});
}

void GuardedFileDialog::tellSilent(const QString& path) {
  m_silent = path;
  m_line->setVisible(!path.isEmpty());
  const QString name = path.mid(path.lastIndexOf(u'/') + 1);
  m_line->setText(fillPlaceholders(VTULocalization::klFolderSilent(), {name.isEmpty() ? path : name}));
}

void GuardedFileDialog::enableVisited() {
  findChild<QToolButton*>(u"backButton"_s)->setEnabled(m_at > 0);
  findChild<QToolButton*>(u"forwardButton"_s)->setEnabled(m_at + 1 < m_visited.size());
}

void GuardedFileDialog::callToolkit(const char* slot) { QMetaObject::invokeMethod(this, slot); }
