#include "widgets/Messages.h"

#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>

#include "version.h"

constexpr int LeastLetters = 55;  // in a line, the picture counted

/// The toolkit breaks what stands below a short text to the width of that text, and cuts the title.
static void widen(const QMessageBox& box) {
  if (auto* const grid = qobject_cast<QGridLayout*>(box.layout()))
    grid->addItem(new QSpacerItem(LeastLetters * box.fontMetrics().averageCharWidth(), 0), grid->rowCount(), 0, 1,
                  grid->columnCount());
}

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
  widen(box);
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
  widen(box);
  box.exec();
}

}  // namespace Messages
