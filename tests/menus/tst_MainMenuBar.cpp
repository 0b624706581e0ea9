// The Edit menu on real fields, and the About window.

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QTest>

#include "support/TestRunner.h"
#include "text/AboutWindow.h"
#include "text/MainMenuBar.h"
#include "text/Transparency.h"

using namespace Qt::Literals::StringLiterals;

static QString enabledItems(const QMenu& menu) {
  QStringList names;
  for (const QAction* const item : menu.actions())
    if (item->isEnabled() && !item->isSeparator()) names << item->objectName().mid(4);
  return names.join(u' ');
}

class tst_MainMenuBar : public QObject {
  Q_OBJECT
 private slots:
  void theEditMenuFollowsTheField() {
    QLineEdit line(u"a"_s), toRead(u"a"_s), password(u"a"_s);
    toRead.setReadOnly(true);
    password.setEchoMode(QLineEdit::Password);
    QPlainTextEdit area(u"a"_s);
    QComboBox list;
    const QString all = u"Cut Copy Paste Clear SelectAll"_s;  // once everything in the field is selected
    for (const auto& [field, enabled] : {std::pair<QWidget*, QString>(&line, all),
                                         {&toRead, u"Copy SelectAll"_s},
                                         {&password, u"Paste Clear SelectAll"_s},
                                         {&area, all},
                                         {&list, {}}}) {
      QMainWindow window;
      auto* const bar = new MainMenuBar(&window);
      field->setParent(&window);
      window.show();
      window.activateWindow();
      QVERIFY(QTest::qWaitForWindowActive(&window));
      field->setFocus();
      bar->setFocus(Qt::MenuBarFocusReason);  // as the keyboard does on its way into a menu
      bar->EditSelectAll->trigger();
      QCOMPARE(enabledItems(*bar->EditMenu), enabled);
      bar->EditClear->trigger();
      if (auto* const edited = qobject_cast<QLineEdit*>(field)) {
        QCOMPARE(edited->text().isEmpty(), field != &toRead);
        bar->EditUndo->trigger();
        QCOMPARE(edited->text().isEmpty(), field == &password);  // which keeps no way back
      }
      window.setFocus();
      QCOMPARE(enabledItems(*bar->EditMenu), QString());
      field->setParent(nullptr);
    }
  }

  void theAboutWindowHasItsShapeAndClosesAtAnyClickOrEscape() {
    for (const bool transparent : {true, false}) {  // where the desktop can't
      AboutWindow window(nullptr, [=](QWidget& made) { return transparent ? makeTransparent(made) : 0; });
      window.open();
      QImage shown(window.size(), QImage::Format_ARGB32_Premultiplied);
      shown.fill(Qt::green);
      window.render(&shown, {}, {}, QWidget::DrawChildren);
      QCOMPARE(qAlpha(shown.pixel(638, 221)), transparent ? 0 : 255);  // a corner outside the shape
      QCOMPARE(shown.pixelColor(300, 60) == window.palette().window().color(), !transparent);
      if (transparent)
        QTest::keyClick(&window, Qt::Key_Escape);
      else
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, {200, 160});  // on the version
      QVERIFY(!window.isVisible());
    }
  }
};

VANTRY_TEST(tst_MainMenuBar);
#include "tst_MainMenuBar.moc"
