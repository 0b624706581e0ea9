// The admin window's controls: where they stand, what they are called and in which order they are reached.

#include "admin/AdminWindow.h"
#include "text/VTULocalization.h"
#include "widgets/Colours.h"

using namespace VTULocalization;

void AdminWindow::buildConnectionControls() {
  SoapConnectionLabel = m_controls.text("SoapConnectionLabel", klSOAPConnection(), {20, 20, 196, 20}, true);
  SoapLogin = m_controls.field("SoapLogin", {20, 78, 166, 22});
  Label2 = m_controls.label("Label2", klSOAPLogin(), {20, 52, 166, 20}, SoapLogin);
  soapPassword = m_controls.field("soapPassword", {20, 137, 166, 22}, QLineEdit::Password);
  Label3 = m_controls.label("Label3", klSoapPassword(), {20, 112, 166, 20}, soapPassword);
  SoapConnectionLabel1 = m_controls.text("SoapConnectionLabel1", klProxy(), {20, 178, 196, 20}, true);
  TheProxyAddress = m_controls.field("TheProxyAddress", {20, 242, 166, 22});
  Label8 = m_controls.label("Label8", klProxyAddress(), {20, 210, 166, 20}, TheProxyAddress);
  TheProxyPort = m_controls.field("TheProxyPort", {198, 242, 95, 22});
  Label9 = m_controls.label("Label9", klProxyPort(), {198, 210, 166, 20}, TheProxyPort);
  CheckAndConnectButton = m_controls.button("CheckAndConnectButton", klCheckandConnect(), {217, 290, 205, 20});
  CheckAndConnectButton->setEnabled(false);
  TestLine = new QuietLine(this);
  TestLine->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  m_controls.place(TestLine, "TestLine", klTestLineName(), {20, 276, 187, 45});
  Separator1 = m_controls.separator("Separator1", {20, 322, 412, 4});
}

void AdminWindow::buildLockControls() {
  Label7 = m_controls.text("Label7", klAdminLock(), {20, 338, 185, 20}, true);
  LockTaskListButton = m_controls.box("LockTaskListButton", klLocktasklist(), {20, 370, 166, 20});
  AdminPassword = m_controls.field("AdminPassword", {20, 421, 166, 22}, QLineEdit::Password);
  adminPasswordLabel =
      m_controls.label("adminPasswordLabel", klEnteradminpassword(), {20, 395, 166, 20}, AdminPassword);
  AdminPasswordRepeat = m_controls.field("AdminPasswordRepeat", {20, 480, 166, 22}, QLineEdit::Password);
  AdminPasswordVerificationLabel = m_controls.label("AdminPasswordVerificationLabel", klReenteradminpassword(),
                                                    {20, 455, 166, 20}, AdminPasswordRepeat);
  AdminPassword->setEnabled(false);
  AdminPasswordRepeat->setEnabled(false);
}

void AdminWindow::buildBackupControls() {
  backupLabel = m_controls.text("backupLabel", klBackup(), {217, 338, 196, 20}, true);
  saveConfigurationButton = m_controls.button("saveConfigurationButton", klSaveConfiguration(), {217, 370, 205, 20});
  LoadConfigurationButton = m_controls.button("LoadConfigurationButton", klLoadConfiguration(), {217, 402, 205, 20});
  BackupLine = new QuietLine(this);
  m_controls.place(BackupLine, "BackupLine", klBackupLineName(), {217, 432, 205, 45});
}

void AdminWindow::buildFoot() {
  CancelAdminButton = m_controls.button("CancelAdminButton", klCancel(), {250, 514, 80, 20}, false);
  OKAdminButton = m_controls.button("OKAdminButton", klOK(), {342, 514, 80, 20}, false);
  OKAdminButton->setDefault(true);
  OKAdminButton->setEnabled(false);
}

void AdminWindow::setTabOrderOfControls() {
  QWidget* const order[] = {SoapLogin,
                            soapPassword,
                            TheProxyAddress,
                            TheProxyPort,
                            CheckAndConnectButton,
                            LockTaskListButton,
                            AdminPassword,
                            AdminPasswordRepeat,
                            saveConfigurationButton,
                            LoadConfigurationButton,
                            CancelAdminButton,
                            OKAdminButton};
  for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
  SoapLogin->setFocus();
}

void AdminWindow::paintQuietParts() {
  Separator1->setPalette(quieter(palette(), 6));
  TestLine->setPalette(noteColours(palette(), m_testWrong));
  BackupLine->setPalette(noteColours(palette(), false));
}
