#include "widgets/Messages.h"

#include <QMessageBox>
#include <QPushButton>

#include "version.h"

namespace Messages {

bool askYesNo(QWidget* parent, const QString& question) {
  QMessageBox box(parent);
  box.setWindowTitle(QString::fromUtf8(AppDisplayName));
  box.setIcon(QMessageBox::Question);
  box.setTextFormat(Qt::PlainText);
  box.setText(question);
  const QPushButton* const yes = box.addButton(QMessageBox::Yes);
  box.setDefaultButton(box.addButton(QMessageBox::No));
  box.setEscapeButton(QMessageBox::No);
  box.exec();
  return box.clickedButton() == yes;
}

void tell(QWidget* parent, const QString& text, bool warning, const QString& more) {
  QMessageBox box(parent);
  box.setWindowTitle(QString::fromUtf8(AppDisplayName));
  box.setIcon(warning ? QMessageBox::Warning : QMessageBox::Information);
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setInformativeText(more);
  box.addButton(QMessageBox::Ok);
  box.exec();
}

}  // namespace Messages
