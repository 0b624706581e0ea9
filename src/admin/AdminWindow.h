#pragma once
// The modal dialog in which the login, the proxy and the lock of the administration are set, the connection is tested
// and the tasks are backed up. It edits copies and stores them on OK alone; backup and restore act at once. Main
// thread; lives for one opening. The service and the folders are asked on threads of their own.

#include <QDialog>
#include <memory>

#include "admin/ConnectionTest.h"
#include "admin/FormControls.h"
#include "admin/QuietLine.h"
#include "admin/TaskBackup.h"
#include "widgets/BackgroundCall.h"
#include "widgets/PathChooser.h"

/// What the closing of the window leaves to be done.
struct AdminOutcome {
  bool connectionChanged = false;  ///< login, password or proxy
  bool otherLogin = false;         ///< the login among them
  bool tasksRestored = false;      ///< the task list must be loaded anew
};

class AdminWindow : public QDialog {
  Q_OBJECT
 public:
  /// Shows the window and returns when it is closed.
  [[nodiscard]] static AdminOutcome ShowModal(QWidget* parent);

  explicit AdminWindow(QWidget* parent);

  [[nodiscard]] const AdminOutcome& outcome() const { return m_outcome; }
  void reject() override;
  void done(int result) override;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void buildConnectionControls();
  void buildLockControls();
  void buildBackupControls();
  void buildFoot();
  void setTabOrderOfControls();
  void connectControls();
  void paintQuietParts();

  void Event_Open();
  void checkCanSave();
  void CheckCanTest();
  void LockTaskListButton_Action();
  void OKAdminButton_Action();

  void doTest();
  void tellTest(const ConnectionLine& line, bool wrong = false);
  void testAnswered(const ConnectionAnswer& answer, const VantryUtil::ProxySetting& proxy);
  void dropTest();

  void saveConfigurationButton_Action();
  void LoadConfigurationButton_Action();
  void beginCopying(bool restoring, std::function<void(CopyJob&)> copy, std::function<void(const CopyJob&)> end);
  void copyingEnded(const QString& line);
  /// Stops a copying that is under way, and tells which files are missing.
  void stopCopying();

  FormControls m_controls;
  AdminOutcome m_outcome;
  bool m_opened = false;
  bool m_testWrong = false;
  BackgroundCall m_test, m_copying;
  PathChooser m_chooser;
  std::shared_ptr<CopyJob> m_job;  // under way; nullptr otherwise
  bool m_restoring = false;        // what m_job does

  QLabel *SoapConnectionLabel, *Label2, *Label3, *SoapConnectionLabel1, *Label8, *Label9, *Label7, *backupLabel,
      *adminPasswordLabel, *AdminPasswordVerificationLabel;
  QLineEdit *SoapLogin, *soapPassword, *TheProxyAddress, *TheProxyPort, *AdminPassword, *AdminPasswordRepeat;
  QCheckBox* LockTaskListButton;
  QPushButton *CheckAndConnectButton, *saveConfigurationButton, *LoadConfigurationButton, *CancelAdminButton,
      *OKAdminButton = nullptr;
  QFrame* Separator1;
  QuietLine *TestLine, *BackupLine;
};
