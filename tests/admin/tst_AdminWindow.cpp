// The admin window's form, offscreen, by object name: its controls, keys, states, and what it stores.

#include "AdminFixture.h"

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
  void everyControlStandsInItsPlace() {
    const struct {
      const char* name;
      QRect place;
      const char* caption;
    } rows[] = {{"SoapConnectionLabel", {20, 20, 196, 20}, "SOAP Connection"},
                {"Label2", {20, 52, 166, 20}, "SOAP Login"},
                {"SoapLogin", {20, 78, 166, 22}, ""},
                {"Label3", {20, 112, 166, 20}, "SOAP Password"},
                {"soapPassword", {20, 137, 166, 22}, ""},
                {"SoapConnectionLabel1", {20, 178, 196, 20}, "Proxy"},
                {"Label8", {20, 210, 166, 20}, "Proxy Address"},
                {"Label9", {198, 210, 166, 20}, "Proxy Port"},
                {"TheProxyAddress", {20, 242, 166, 22}, ""},
                {"TheProxyPort", {198, 242, 95, 22}, ""},
                {"CheckAndConnectButton", {217, 290, 205, 20}, "Check and Connect"},
                {"Separator1", {20, 322, 412, 4}, ""},
                {"Label7", {20, 338, 185, 20}, "Admin Lock"},
                {"backupLabel", {217, 338, 196, 20}, "Backup"},
                {"LockTaskListButton", {20, 370, 166, 20}, "Lock task list"},
                {"saveConfigurationButton", {217, 370, 205, 20}, "Save Configuration"},
                {"adminPasswordLabel", {20, 395, 166, 20}, "Enter admin password"},
                {"LoadConfigurationButton", {217, 402, 205, 20}, "Load Configuration"},
                {"AdminPassword", {20, 421, 166, 22}, ""},
                {"AdminPasswordVerificationLabel", {20, 455, 166, 20}, "Re-enter admin password"},
                {"AdminPasswordRepeat", {20, 480, 166, 22}, ""},
                {"CancelAdminButton", {250, 514, 80, 20}, "Cancel"},
                {"OKAdminButton", {342, 514, 80, 20}, "OK"}};
    for (const int pixels : {12, 22}) {
      const FontSize font(pixels);
      AdminFixture fixture;
      fixture.open();
      for (const auto& row : rows) {
        const QWidget& control = *fixture.control(row.name);
        QVERIFY2(control.geometry() == row.place && captionOf(control) == QLatin1String(row.caption), row.name);
        const QFontMetrics metrics = control.fontMetrics();
        const int beside = qobject_cast<const QCheckBox*>(&control) ? 20 : 0;
        QVERIFY2(metrics.horizontalAdvance(captionOf(control)) + beside <= control.width(), row.name);
        QVERIFY2(metrics.height() <= qMax(20, control.height()), row.name);
      }
    }
  }

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
    QCOMPARE(state(), u"--#000000"_s);
    fixture.type("soapPassword", u"pw"_s);
    QCOMPARE(state(), u"OT#000000"_s);
    fixture.lock(true);
    QVERIFY(fixture.enabled("AdminPassword") && fixture.enabled("AdminPasswordRepeat"));
    fixture.type("AdminPassword", u"Key"_s);
    QCOMPARE(state(), u"-T#ff0000"_s);
    QTest::keyClick(fixture.control("SoapLogin"), Qt::Key_Return);
    QVERIFY(fixture.window().isVisible());
    fixture.type("AdminPasswordRepeat", u"kEY"_s);
    QCOMPARE(state(), u"OT#000000"_s);
    fixture.type("AdminPasswordRepeat", u"k"_s);
    fixture.lock(false);
    QCOMPARE(state(), u"OT#000000"_s);
    QVERIFY(!fixture.enabled("AdminPassword"));
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
    QCOMPARE(fixture.text("AdminPassword") + fixture.text("AdminPasswordRepeat"), u"AdminPasswordAdminPassword"_s);
    QVERIFY(fixture.enabled("OKAdminButton"));
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

  void labelsAreBlackOnALightGround() {
    AdminFixture fixture;
    QPalette light = QApplication::palette();
    light.setColor(QPalette::WindowText, QColor(35, 38, 41));
    fixture.open().setPalette(light);
    QCOMPARE(fixture.control("adminPasswordLabel")->palette().color(QPalette::WindowText), QColor(Qt::black));
  }
};

VANTRY_TEST(tst_AdminWindow);
#include "tst_AdminWindow.moc"
