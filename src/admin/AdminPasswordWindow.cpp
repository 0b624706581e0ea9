#include "admin/AdminPasswordWindow.h"

#include "admin/AdminRules.h"
#include "storage/Preferences.h"
#include "text/VTULocalization.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

static QString storedPassword() {
  return VantryUtil::prefs ? VantryUtil::prefs->StringValue(u"AdminPassword"_s).trimmed() : QString();
}

bool AdminPasswordWindow::CheckAdminPassword(QWidget* parent) {
  if (storedPassword().isEmpty()) return true;
  AdminPasswordWindow prompt(parent);
  prompt.exec();
  return prompt.Passed;
}

AdminPasswordWindow::AdminPasswordWindow(QWidget* parent) : QDialog(parent), m_controls(this) {
  setObjectName(u"AdminPasswordWindow"_s);
  setWindowTitle(klAdminPasswordRequired());
  setFixedSize(460, 194);
  Label1 = m_controls.text("Label1", {}, {20, 20, 413, 55});
  Label1->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  Label1->setWordWrap(true);
  // These and the buttons' captions are the same in every language.
  Label1->setText(
      u"The admin functions are locked and require a password for access.\n"
      "Pease enter the administrator password below."_s);
  Label1->setAccessibleName(Label1->text());
  theAdminPassword = m_controls.field("theAdminPassword", {167, 86, 266, 22}, QLineEdit::Password);
  Label2 = m_controls.label("Label2", klPassword(), {20, 87, 135, 20}, theAdminPassword);
  Label2->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  CancelButton = m_controls.button("CancelButton", u"Cancel"_s, {250, 127, 80, 20}, false);
  ContinueButton = m_controls.button("ContinueButton", u"OK"_s, {353, 127, 80, 20}, false);
  ContinueButton->setDefault(true);
  ContinueButton->setEnabled(false);
  theAdminPassword->setFocus();
  connect(theAdminPassword, &QLineEdit::textChanged, this, &AdminPasswordWindow::theAdminPassword_TextChange);
  connect(ContinueButton, &QPushButton::clicked, this, &AdminPasswordWindow::ContinueButton_Action);
  connect(CancelButton, &QPushButton::clicked, this, &AdminPasswordWindow::CancelButton_Action);
}

void AdminPasswordWindow::theAdminPassword_TextChange() {
  ContinueButton->setEnabled(!theAdminPassword->text().trimmed().isEmpty());
}

void AdminPasswordWindow::ContinueButton_Action() {
  if (!opensLock(theAdminPassword->text(), storedPassword())) {
    Messages::tell(this, klIncorrectPassword());
    return;
  }
  Passed = true;
  done(QDialog::Accepted);
}

void AdminPasswordWindow::CancelButton_Action() {
  Passed = false;
  done(QDialog::Rejected);
}

void AdminPasswordWindow::reject() { CancelButton->click(); }
