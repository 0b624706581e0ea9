#include "text/MainMenuBar.h"

#include <QApplication>
#include <QMenu>

#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QMenu* addNamedMenu(QMenuBar& bar, const QString& name, const QString& caption) {
  QMenu* const menu = bar.addMenu(caption);
  menu->setObjectName(name);
  return menu;
}

QAction* addItem(QMenu& menu, const QString& name, const QString& caption, const QKeySequence& keys = {}) {
  QAction* const item = menu.addAction(caption);
  item->setObjectName(name);
  item->setShortcut(keys);
  item->setMenuRole(QAction::NoRole);  // or a platform might move it by what its caption says
  return item;
}

QAction* addLine(QMenu& menu, const QString& name) {
  QAction* const line = menu.addSeparator();
  line->setObjectName(name);
  return line;
}

}  // namespace

MainMenuBar::MainMenuBar(QWidget* parent) : QMenuBar(parent) {
  setObjectName(u"MainMenuBar"_s);
  buildFileMenu();
  buildEditMenu();
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focusMoved(now); });
  connect(EditMenu, &QMenu::aboutToShow, this, &MainMenuBar::enableEditItems);
  focusMoved(QApplication::focusWidget());
}

void MainMenuBar::buildFileMenu() {
  FileMenu = addNamedMenu(*this, u"FileMenu"_s, MenuText::klFileMenu());
  FileAbout = addItem(*FileMenu, u"FileAbout"_s, MenuText::klFileAbout());
  FileCheckForUpdates = addItem(*FileMenu, u"FileCheckForUpdates"_s, VTULocalization::klCheckForUpdates());
  UntitledSeparator = addLine(*FileMenu, u"UntitledSeparator"_s);
  FileQuit = addItem(*FileMenu, u"FileQuit"_s, MenuText::klFileQuit(), Qt::CTRL | Qt::Key_Q);
  FileQuit->setShortcutContext(Qt::ApplicationShortcut);  // while the log viewer is frontmost too
  FileAbout->setMenuRole(QAction::AboutRole);
  FileQuit->setMenuRole(QAction::QuitRole);
  FileCheckForUpdates->setEnabled(false);
}

void MainMenuBar::buildEditMenu() {
  EditMenu = addNamedMenu(*this, u"EditMenu"_s, MenuText::klEditMenu());
  EditUndo = addItem(*EditMenu, u"EditUndo"_s, MenuText::klEditUndo(), Qt::CTRL | Qt::Key_Z);
  EditSeparator1 = addLine(*EditMenu, u"EditSeparator1"_s);
  EditCut = addItem(*EditMenu, u"EditCut"_s, MenuText::klEditCut(), Qt::CTRL | Qt::Key_X);
  EditCopy = addItem(*EditMenu, u"EditCopy"_s, MenuText::klEditCopy(), Qt::CTRL | Qt::Key_C);
  EditPaste = addItem(*EditMenu, u"EditPaste"_s, MenuText::klEditPaste(), Qt::CTRL | Qt::Key_V);
  EditClear = addItem(*EditMenu, u"EditClear"_s, MenuText::klEditClear());
  EditSeparator2 = addLine(*EditMenu, u"EditSeparator2"_s);
  EditSelectAll = addItem(*EditMenu, u"EditSelectAll"_s, MenuText::klEditSelectAll(), Qt::CTRL | Qt::Key_A);

  const std::pair<QAction*, EditCommand> answers[] = {
      {EditUndo, EditCommand::Undo},   {EditCut, EditCommand::Cut},     {EditCopy, EditCommand::Copy},
      {EditPaste, EditCommand::Paste}, {EditClear, EditCommand::Clear}, {EditSelectAll, EditCommand::SelectAll}};
  for (const auto& [item, command] : answers) {
    item->setData(static_cast<int>(command));
    connect(item, &QAction::triggered, this, [this, command = command] {
      doEdit(command, m_field);
      enableEditItems();
    });
  }
}

void MainMenuBar::focusMoved(QWidget* now) {
  if (qobject_cast<QMenuBar*>(now) || qobject_cast<QMenu*>(now)) return;  // the menu works on the field before it
  m_field = textFieldOf(now);
  enableEditItems();
}

void MainMenuBar::enableEditItems() {
  for (QAction* const item : EditMenu->actions())
    if (!item->isSeparator()) item->setEnabled(canDo(static_cast<EditCommand>(item->data().toInt()), m_field));
}
