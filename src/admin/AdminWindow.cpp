#include "admin/AdminWindow.h"

#include <QCloseEvent>
#include <exception>

#include "admin/AdminRules.h"
#include "platform/Problems.h"
#include "service/VantryUtil.h"
#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"
#include "widgets/Colours.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

AdminOutcome AdminWindow::ShowModal(QWidget* parent) {
  try {
    AdminWindow window(parent);
    window.exec();
    return window.outcome();
  } catch (const std::exception& e) {
    Messages::tell(parent, fillPlaceholders(klAdminFailed(), {QString::fromUtf8(e.what())}));
    return {};
  }
}

AdminWindow::AdminWindow(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_controls(this),
      m_test("conn-test", nullptr),
      m_copying("backup", nullptr),
      m_chooser(this) {
  setObjectName(u"AdminWindow"_s);
  setWindowTitle(klAdmin());
  setFixedSize(452, 554);
  buildConnectionControls();
  buildLockControls();
  buildBackupControls();
  buildFoot();
  paintQuietParts();
  setTabOrderOfControls();
  connectControls();
}

void AdminWindow::connectControls() {
  using Self = AdminWindow;
  for (QLineEdit* const field : {SoapLogin, soapPassword}) {
    connect(field, &QLineEdit::textChanged, this, &Self::checkCanSave);
    connect(field, &QLineEdit::textChanged, this, &Self::CheckCanTest);
  }
  for (QLineEdit* const field : {AdminPassword, AdminPasswordRepeat})
    connect(field, &QLineEdit::textChanged, this, &Self::checkCanSave);
  for (QLineEdit* const field : {SoapLogin, soapPassword, TheProxyAddress, TheProxyPort})
    connect(field, &QLineEdit::textChanged, this, &Self::dropTest);
  connect(LockTaskListButton, &QCheckBox::toggled, this, &Self::LockTaskListButton_Action);
  connect(CheckAndConnectButton, &QPushButton::clicked, this, &Self::doTest);
  connect(saveConfigurationButton, &QPushButton::clicked, this, &Self::saveConfigurationButton_Action);
  connect(LoadConfigurationButton, &QPushButton::clicked, this, &Self::LoadConfigurationButton_Action);
  connect(OKAdminButton, &QPushButton::clicked, this, &Self::OKAdminButton_Action);
  connect(CancelAdminButton, &QPushButton::clicked, this, [this] { done(QDialog::Rejected); });
}

void AdminWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!m_opened) Event_Open();
  m_opened = true;
}

void AdminWindow::Event_Open() {
  DictionaryFile& prefs = *VantryUtil::prefs;
  SoapLogin->setText(prefs.StringValue(u"SoapLogin"_s));
  soapPassword->setText(prefs.StringValue(u"SoapPassword"_s));
  LockTaskListButton->setChecked(prefs.BooleanValue(u"LockTaskListButton"_s));
  AdminPassword->setText(prefs.StringValue(u"AdminPassword"_s));
  AdminPasswordRepeat->setText(AdminPassword->text());
  TheProxyAddress->setText(prefs.StringValue(u"ProxyAddress"_s));
  TheProxyAddress->setCursorPosition(0);  // a host's name is known by its beginning
  TheProxyPort->setText(portText(prefs.integerValue(u"ProxyPort"_s)));
  checkCanSave();
  if (isCompleteLogin(SoapLogin->text(), soapPassword->text())) doTest();
}

void AdminWindow::checkCanSave() {
  const AdminCheck check = checkAdminForm({SoapLogin->text(), soapPassword->text(), LockTaskListButton->isChecked(),
                                           AdminPassword->text(), AdminPasswordRepeat->text()});
  QPalette colours;
  colours.setColor(QPalette::WindowText, check.passwordsWrong ? requiredColor(palette()) : plainColor(palette()));
  for (QLabel* const label : {adminPasswordLabel, AdminPasswordVerificationLabel}) {
    label->setPalette(colours);
    label->buddy()->setAccessibleDescription(check.passwordsWrong ? klRequired() : QString());
  }
  OKAdminButton->setEnabled(check.canSave);
  QStringList required;
  if (SoapLogin->text().trimmed().isEmpty()) required << klSOAPLogin();
  if (soapPassword->text().trimmed().isEmpty()) required << klSoapPassword();
  if (check.passwordsWrong) required << klEnteradminpassword() << klReenteradminpassword();
  OKAdminButton->setToolTip(requiredToolTip(klRequired(), required));
}

void AdminWindow::CheckCanTest() {
  CheckAndConnectButton->setEnabled(isCompleteLogin(SoapLogin->text(), soapPassword->text()));
}

void AdminWindow::LockTaskListButton_Action() {
  AdminPassword->setEnabled(LockTaskListButton->isChecked());
  AdminPasswordRepeat->setEnabled(LockTaskListButton->isChecked());
  checkCanSave();
}

// The answer of a test that is under way is about values that have just been typed over.
void AdminWindow::dropTest() {
  m_test.cancel();
  tellTest({});
}

void AdminWindow::doTest() {
  const ConnectionRequest request{SoapLogin->text().trimmed(), soapPassword->text().trimmed(),
                                  proxyOfFields(TheProxyAddress->text(), TheProxyPort->text())};
  tellTest({klTestRunning(), {}});
  m_test.run<ConnectionAnswer>(
      0, [request](const auto&) { return testConnection(request); },
      [this, proxy = request.proxy](const ConnectionAnswer& answer) { testAnswered(answer, proxy); },
      [this] {
        tellTest({klNotBegun(), {}}, true);
      });
}

void AdminWindow::testAnswered(const ConnectionAnswer& answer, const VantryUtil::ProxySetting& proxy) {
  tellTest(connectionLine(answer, proxy), answer.kind != ConnectionAnswer::Kind::Succeeded);
  if (answer.kind == ConnectionAnswer::Kind::ErrorAnswered) Messages::tell(this, VantryUtil::errToString(answer.err));
}

void AdminWindow::tellTest(const ConnectionLine& line, bool wrong) {
  m_testWrong = wrong;
  TestLine->say(line.text, line.detail);
  paintQuietParts();
}

void AdminWindow::OKAdminButton_Action() {
  DictionaryFile& prefs = *VantryUtil::prefs;
  const QString login = SoapLogin->text().trimmed(), password = soapPassword->text().trimmed();
  const VantryUtil::ProxySetting proxy = proxyOfFields(TheProxyAddress->text(), TheProxyPort->text());
  const VantryUtil::Account before = VantryUtil::account();
  m_outcome.otherLogin = VantryUtil::changeAccount(login, password, proxy);
  m_outcome.connectionChanged = m_outcome.otherLogin || password != before.password ||
                                proxy.address != before.proxy.address.trimmed() || proxy.port != before.proxy.port;

  prefs.setStringValue(u"ProxyAddress"_s, proxy.address);
  prefs.setIntegerValue(u"ProxyPort"_s, portOf(TheProxyPort->text()));
  const bool locked = LockTaskListButton->isChecked();
  prefs.setStringValue(u"AdminPassword"_s, locked ? AdminPassword->text().trimmed() : QString());
  prefs.setBooleanValue(u"LockTaskListButton"_s, locked);
  // The window doesn't wait for the disk: what it stores is in force already.
  BackgroundCall("save", nullptr)
      .run<bool>(0, [stored = VantryUtil::prefs](const auto&) { return VantryUtil::savePreferences(*stored); }, {});
  done(QDialog::Accepted);
}

void AdminWindow::reject() { CancelAdminButton->click(); }

void AdminWindow::done(int result) {
  m_test.cancel();
  stopCopying();
  QDialog::done(result);
}

void AdminWindow::closeEvent(QCloseEvent* event) {
  // The window has no close button: its two buttons are the ways out, until the program itself closes it.
  if (event->spontaneous())
    event->ignore();
  else
    QDialog::closeEvent(event);
}

void AdminWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || !OKAdminButton) return;
  checkCanSave();
  paintQuietParts();
}
