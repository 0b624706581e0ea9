// The rules of the administration without a window, and the prompt before it.

#include "AdminFixture.h"
#include "admin/AdminPasswordWindow.h"
#include "admin/AdminRules.h"

using namespace Qt::Literals::StringLiterals;

class tst_AdminRules : public QObject {
  Q_OBJECT
 private slots:
  void whatMayBeSaved() {
    const struct {
      const char* label;
      AdminForm form;
      AdminCheck check;
    } rows[] = {
        {"nothing is entered", {}, {false, false}},
        {"a login of blanks", {u"  "_s, u"pw"_s, false, {}, {}}, {false, false}},
        {"a whole login, and passwords without a lock", {u"me"_s, u"pw"_s, false, u"a"_s, u"b"_s}, {false, true}},
        {"a lock with two blanks", {u"me"_s, u"pw"_s, true, u" "_s, u" "_s}, {true, false}},
        {"a lock with different passwords", {u"me"_s, u"pw"_s, true, u"a"_s, u"b"_s}, {true, false}},
        {"equal but for case and blanks", {u"me"_s, u"pw"_s, true, u"Abc "_s, u" aBC"_s}, {false, true}},
        {"a good lock without a login", {{}, {}, true, u"a"_s, u"a"_s}, {false, false}}};
    for (const auto& row : rows) QVERIFY2(checkAdminForm(row.form) == row.check, row.label);
  }

  void aPortIsTheNumberAtTheHead() {
    const std::pair<QString, int> rows[] = {{u" 3128 "_s, 3128},
                                            {u"8080x"_s, 8080},
                                            {u"80.9"_s, 80},
                                            {u"x80"_s, 0},
                                            {u""_s, 0},
                                            {u"-5"_s, -5},
                                            {u"99999999999999999999"_s, 2147483647}};
    for (const auto& [text, port] : rows) QCOMPARE(portOf(text), port);
  }

  void theLock_data() {
    addColumns<QString, QString, bool, bool, bool>("stored", "typed", "asked", "refused", "passed");
    QTest::newRow("no password, no question") << u"  "_s << u""_s << false << false << true;
    QTest::newRow("in other capitals and with blanks") << u"secret"_s << u" SECRET "_s << true << false << true;
    QTest::newRow("a wrong one, then Escape") << u"secret"_s << u"public"_s << true << true << false;
    QTest::newRow("only blanks, then Escape") << u"secret"_s << u"   "_s << true << false << false;
  }
  void theLock() {
    QFETCH(QString, stored);
    QFETCH(QString, typed);
    QFETCH(bool, refused);
    AdminFixture fixture;
    fixture.store("AdminPassword", stored);
    QString told;
    const Inside<AdminPasswordWindow> prompt([&](AdminPasswordWindow& window) {
      QCOMPARE(controlsWithoutName(window), QStringList());
      auto* const field = window.findChild<QLineEdit*>(u"theAdminPassword"_s);
      QCOMPARE(field->geometry(), QRect(167, 86, 266, 22));
      field->setText(typed);
      QCOMPARE(window.findChild<QPushButton*>(u"ContinueButton"_s)->isEnabled(), !typed.trimmed().isEmpty());
      const BoxAnswer ok(QMessageBox::Ok);
      QTest::keyClick(field, Qt::Key_Return);
      told = ok.text();
      if (!window.isVisible()) return;
      QCOMPARE(field->text(), typed);
      QTest::keyClick(field, Qt::Key_Escape);
    });
    QTEST(AdminPasswordWindow::CheckAdminPassword(nullptr), "passed");
    QTEST(prompt.done(), "asked");
    QCOMPARE(told, refused ? u"Incorrect Administrator Password Entered"_s : QString());
  }
};

VANTRY_TEST(tst_AdminRules);
#include "tst_AdminRules.moc"
