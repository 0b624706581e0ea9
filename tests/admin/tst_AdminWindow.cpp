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
  void theLockGuardsOK() {
    AdminFixture fixture;
    fixture.open();
    // Two letters for OK and the test, and one for the labels' red.
    const auto state = [&fixture] {
      const QColor label = fixture.control("AdminPasswordVerificationLabel")->palette().color(QPalette::WindowText);
      return QString(fixture.enabled("OKAdminButton") ? u"O"_s : u"-"_s) +
             (fixture.enabled("CheckAndConnectButton") ? u"T"_s : u"-"_s) + (label.red() == 255 ? u"R"_s : u"-"_s);
    };
    QVERIFY(fixture.line().isEmpty() && state() == u"---"_s);  // no login, no test
    fixture.type("SoapLogin", u"me"_s);
    fixture.type("soapPassword", u"  "_s);
    QCOMPARE(state(), u"---"_s);
    QVERIFY2(fixture.control("OKAdminButton")->toolTip().contains(VTULocalization::klSoapPassword()), "why it is off");
    fixture.type("soapPassword", u"pw"_s);
    QCOMPARE(state(), u"OT-"_s);
    fixture.lock(true);
    for (const auto& [password, repeat, wanted] :
         {std::tuple(u" "_s, u" "_s, u"-TR"_s), {u"Key"_s, u"k"_s, u"-TR"_s}, {u"Key "_s, u" kEY"_s, u"OT-"_s}}) {
      fixture.type("AdminPassword", password);
      fixture.type("AdminPasswordRepeat", repeat);
      QCOMPARE(state(), wanted);
    }
    fixture.lock(false);
    QVERIFY(state() == u"OT-"_s && !fixture.enabled("AdminPassword"));
  }

  void thePromptBeforeTheWindow() {
    const QString refusal = u"Incorrect Administrator Password Entered"_s;
    for (const auto& [stored, typed, told, passed] : {std::tuple(u"  "_s, u""_s, u""_s, true),
                                                      {u"secret"_s, u" SECRET "_s, u""_s, true},
                                                      {u"secret"_s, u"public"_s, refusal, false},
                                                      {u"secret"_s, u"   "_s, u""_s, false}}) {
      AdminFixture fixture;
      fixture.store("AdminPassword", stored);
      QString heard;
      const Inside<AdminPasswordWindow> prompt([&](AdminPasswordWindow& window) {
        auto* const field = controlOf<QLineEdit>(window, "theAdminPassword");
        QCOMPARE(field->echoMode(), QLineEdit::Password);
        field->setText(typed);
        QCOMPARE(controlOf<QPushButton>(window, "ContinueButton")->isEnabled(), !typed.trimmed().isEmpty());
        const BoxAnswer ok(QMessageBox::Ok);
        QTest::keyClick(field, Qt::Key_Return);
        heard = ok.text();
        if (!window.isVisible()) return;
        QCOMPARE(field->text(), typed);
        QTest::keyClick(field, Qt::Key_Escape);
      });
      QCOMPARE(AdminPasswordWindow::CheckAdminPassword(nullptr), passed);
      QCOMPARE(prompt.done(), !typed.isEmpty());
      QCOMPARE(heard, told);
    }
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
