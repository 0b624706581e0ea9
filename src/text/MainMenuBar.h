#pragma once
// The program's one menu bar, which stands in the main window. The File menu's items are answered by whoever connects
// to them; the Edit menu's by the text field that has the focus. Main thread.

#include <QMenuBar>
#include <QPointer>

#include "text/EditCommands.h"

class MainMenuBar : public QMenuBar {
 public:
  explicit MainMenuBar(QWidget* parent = nullptr);

  QMenu* FileMenu = nullptr;
  QAction* FileAbout = nullptr;
  QAction* FileCheckForUpdates = nullptr;  ///< off until somebody who answers it switches it on
  QAction* UntitledSeparator = nullptr;
  QAction* FileQuit = nullptr;

  QMenu* EditMenu = nullptr;
  QAction* EditUndo = nullptr;
  QAction* EditSeparator1 = nullptr;
  QAction* EditCut = nullptr;
  QAction* EditCopy = nullptr;
  QAction* EditPaste = nullptr;
  QAction* EditClear = nullptr;
  QAction* EditSeparator2 = nullptr;
  QAction* EditSelectAll = nullptr;

 private:
  void buildFileMenu();
  void buildEditMenu();
  void focusMoved(QWidget* now);
  void enableEditItems();

  QPointer<QWidget> m_field;  ///< the text field that has the focus, or had it before the menu took it
};
