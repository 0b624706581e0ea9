#pragma once
// The prompt that stands before the admin window while an administrator password is stored. Modal; main thread.

#include <QDialog>

#include "admin/FormControls.h"

class AdminPasswordWindow : public QDialog {
  Q_OBJECT
 public:
  /// True if the caller may go on: at once when no password is stored, else once the user has entered it.
  [[nodiscard]] static bool CheckAdminPassword(QWidget* parent);

  explicit AdminPasswordWindow(QWidget* parent);

  /// True once the right password was entered.
  bool Passed = false;

  void reject() override;

 private:
  void theAdminPassword_TextChange();
  void ContinueButton_Action();
  void CancelButton_Action();

  FormControls m_controls;
  QLabel *Label1, *Label2;
  QLineEdit* theAdminPassword;
  QPushButton *CancelButton, *ContinueButton;
};
