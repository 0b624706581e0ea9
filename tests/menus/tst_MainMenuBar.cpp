// The menus by their object names, and the Edit menu on real fields.

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QTest>

#include "support/TestRunner.h"
#include "text/MainMenuBar.h"

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
  void theEditMenuFollowsTheField_data() {
    QTest::addColumn<QWidget*>("field");
    QTest::addColumn<QString>("enabled");  // once everything in the field is selected
    const auto row = [](const char* label, QWidget* field, const char* property, const QVariant& value,
                        const QString& enabled) {
      field->setProperty(property, value);
      QTest::newRow(label) << field << enabled;
    };
    const QString all = u"Cut Copy Paste Clear SelectAll"_s, toRead = u"Copy SelectAll"_s;
    row("a line", new QLineEdit(u"a"_s), "readOnly", false, all);
    row("a line to read", new QLineEdit(u"a"_s), "readOnly", true, toRead);
    row("a password", new QLineEdit(u"a"_s), "echoMode", QLineEdit::Password, u"Paste Clear SelectAll"_s);
    row("a text area", new QPlainTextEdit(u"a"_s), "readOnly", false, all);
    row("a list box", new QComboBox, "editable", false, {});
  }
  void theEditMenuFollowsTheField() {
    QFETCH(QWidget*, field);
    QMainWindow window;
    auto* const bar = new MainMenuBar(&window);
    field->setParent(&window);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    field->setFocus();
    bar->setFocus(Qt::MenuBarFocusReason);  // as the keyboard does on its way into a menu
    bar->EditSelectAll->trigger();
    QTEST(enabledItems(*bar->EditMenu), "enabled");
    bar->EditClear->trigger();
    if (auto* const line = qobject_cast<QLineEdit*>(field)) {
      QCOMPARE(line->text().isEmpty(), !line->isReadOnly());
      bar->EditUndo->trigger();
      QCOMPARE(line->text().isEmpty(), line->echoMode() == QLineEdit::Password);  // which keeps no way back
    }
    window.setFocus();
    QCOMPARE(enabledItems(*bar->EditMenu), QString());
  }
};

VANTRY_TEST(tst_MainMenuBar);
#include "tst_MainMenuBar.moc"
