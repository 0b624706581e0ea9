// The admin window's form, offscreen, by object name: its controls, keys, states, and what it stores; and the prompt
// before it.

#include "AdminFixture.h"
#include "admin/AdminPasswordWindow.h"
#include "text/VTULocalization.h"

using namespace Qt::Literals::StringLiterals;

class tst_AdminWindow : public QObject {
  Q_OBJECT

  /// What a new start of the program finds in the preference file.
  static QString onDisk(const QStringList& keys) {
    DictionaryFile file;
    if (!file.open(*VantryUtil::prefs->location()).ok()) return u"unreadable"_s;
    QStringList values;
    for (const QString& key : keys) values << file.StringValue(key);
    return values.join(u'|');
  }

 private slots:
  void theKeyboardReachesEverything() {
    AdminFixture fixture;
    const AdminWindow& window = fixture.open();
    QVERIFY(fixture.line().isEmpty());  // no login, no test
    QCOMPARE(controlsWithoutName(window), QStringList());
    QStringList order, off;
    for (const QWidget* w = fixture.control("SoapLogin"); !order.contains(w->objectName()); w = w->nextInFocusChain()) {
      if (w->parentWidget() == &window && w->focusPolicy() & Qt::TabFocus) order << w->objectName();
      if (!w->isEnabled()) off << w->objectName();
    }
    QCOMPARE(order.join(u' '),
             u"SoapLogin soapPassword TheProxyAddress TheProxyPort CheckAndConnectButton LockTaskListButton "
             "AdminPassword AdminPasswordRepeat saveConfigurationButton LoadConfigurationButton CancelAdminButton "
             "OKAdminButton"_s);
    QCOMPARE(off.join(u' '), u"CheckAndConnectButton AdminPassword AdminPasswordRepeat OKAdminButton"_s);
    QVERIFY2(fixture.control("OKAdminButton")->toolTip().contains(VTULocalization::klSoapPassword()), "why it is off");
  }

  void theLockGuardsOK() {
    AdminFixture fixture;
    fixture.open();
    // Two letters for OK and the test, and the colour of the labels.
    const auto state = [&fixture] {
      const QColor label = fixture.control("AdminPasswordVerificationLabel")->palette().color(QPalette::WindowText);
      return QString(fixture.enabled("OKAdminButton") ? u"O"_s : u"-"_s) +
             (fixture.enabled("CheckAndConnectButton") ? u"T"_s : u"-"_s) + label.name();
    };
    fixture.type("SoapLogin", u"me"_s);
    fixture.type("soapPassword", u"  "_s);
    QCOMPARE(state(), u"--#000000"_s);
    fixture.type("soapPassword", u"pw"_s);
    QCOMPARE(state(), u"OT#000000"_s);
    fixture.lock(true);
    const std::tuple<QString, QString, QString> rows[] = {
        {u" "_s, u" "_s, u"-T#ff0000"_s}, {u"Key"_s, u"k"_s, u"-T#ff0000"_s}, {u"Key "_s, u" kEY"_s, u"OT#000000"_s}};
    for (const auto& [password, repeat, wanted] : rows) {
      fixture.type("AdminPassword", password);
      fixture.type("AdminPasswordRepeat", repeat);
      QCOMPARE(state(), wanted);
    }
    fixture.type("AdminPasswordRepeat", u"k"_s);
    QTest::keyClick(fixture.control("SoapLogin"), Qt::Key_Return);
    QVERIFY(fixture.window().isVisible());
    fixture.lock(false);
    QVERIFY(state() == u"OT#000000"_s && !fixture.enabled("AdminPassword"));
  }

  void thePromptBeforeTheWindow_data() {
    addColumns<QString, QString, bool, bool, bool>("stored", "typed", "asked", "refused", "passed");
    QTest::newRow("no password, no question") << u"  "_s << u""_s << false << false << true;
    QTest::newRow("in other capitals and with blanks") << u"secret"_s << u" SECRET "_s << true << false << true;
    QTest::newRow("a wrong one, then Escape") << u"secret"_s << u"public"_s << true << true << false;
    QTest::newRow("only blanks, then Escape") << u"secret"_s << u"   "_s << true << false << false;
  }
  void thePromptBeforeTheWindow() {
    QFETCH(QString, stored);
    QFETCH(QString, typed);
    QFETCH(bool, refused);
    AdminFixture fixture;
    fixture.store("AdminPassword", stored);
    QString told;
    const Inside<AdminPasswordWindow> prompt([&](AdminPasswordWindow& window) {
      QCOMPARE(controlsWithoutName(window), QStringList());
      auto* const field = window.findChild<QLineEdit*>(u"theAdminPassword"_s);
      QCOMPARE(field->echoMode(), QLineEdit::Password);
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

  void returnStoresAllAndEscapeNothing() {
    const QStringList keys{u"SoapLogin"_s, u"SoapPassword"_s, u"ProxyAddress"_s, u"ProxyPort"_s, u"AdminPassword"_s};
    AdminFixture fixture;
    VantryUtil::setProxy({u"old"_s, 1});
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
      fixture.open();
      for (const char* const field : {"SoapLogin", "soapPassword", "TheProxyAddress", "AdminPassword"})
        fixture.type(field, u" "_s + QLatin1String(field) + u" "_s);
      fixture.type("TheProxyPort", u"8080x"_s);
      fixture.lock(true);
      fixture.type("AdminPasswordRepeat", u"adminpassword"_s);
      QTest::keyClick(fixture.control("TheProxyPort"), key);
      QVERIFY(!fixture.window().isVisible());
      const bool stored = key == Qt::Key_Return;
      QCOMPARE(fixture.window().outcome().otherLogin && fixture.window().outcome().connectionChanged, stored);
      QCOMPARE(VantryUtil::prefs->HasKey(u"SoapLogin"_s), stored);
      QCOMPARE(VantryUtil::proxy().port, stored ? 8080 : 1);
    }
    QTRY_COMPARE(onDisk(keys), u"SoapLogin|soapPassword|TheProxyAddress|8080|AdminPassword"_s);

    fixture.open();
    fixture.lock(false);
    fixture.type("TheProxyPort", {});
    fixture.press("OKAdminButton");
    QVERIFY(fixture.window().outcome().connectionChanged && !fixture.window().outcome().otherLogin);
    QTRY_COMPARE(onDisk(keys), u"SoapLogin|soapPassword|TheProxyAddress|0|"_s);
    fixture.open();
    QVERIFY2(fixture.text("TheProxyPort").isEmpty(), "a port of 0 shows as nothing");
    fixture.press("OKAdminButton");
    QVERIFY(!fixture.window().outcome().connectionChanged);
  }

  void aFailedSaveIsTold() {
    AdminFixture fixture;
    fixture.storeLogin();
    fixture.open();
    const QString folder = SpecialFolder::Preferences().NativePath();
    QVERIFY(QDir(folder).removeRecursively() && QFile::link(u"/nowhere"_s, folder));
    fixture.press("OKAdminButton");
    QTRY_VERIFY(!Problems::present().isEmpty());
    QCOMPARE(Problems::present().first().kind, Problem::Kind::PreferencesNotSaved);
  }
};

VANTRY_TEST(tst_AdminWindow);
#include "tst_AdminWindow.moc"
