#include "admin/FormControls.h"

#include <QFontInfo>

#include "widgets/Captions.h"

constexpr int LargestPixels = 13;   // of text that stands in a control 20 pixels high
constexpr int CheckMarkWidth = 24;  // what a check box takes up before its caption

FormControls::FormControls(QWidget* window) : m_window(window) {
  QFont font = window->font();
  if (QFontInfo(font).pixelSize() > LargestPixels) font.setPixelSize(LargestPixels);
  window->setFont(font);
}

void FormControls::place(QWidget* control, const char* name, const QString& spoken, QRect at) {
  control->setObjectName(QString::fromLatin1(name));
  control->setAccessibleName(spoken);
  control->setGeometry(at);
}

QLabel* FormControls::text(const char* name, const QString& caption, QRect at, bool bold) {
  auto* const made = new QLabel(m_window);
  made->setTextFormat(Qt::PlainText);
  place(made, name, caption, at);
  QFont font = made->font();
  font.setBold(bold);
  made->setFont(font);
  if (!fitFont(*made, caption, at.width())) made->setToolTip(plainToolTip(caption));
  made->setText(caption);
  return made;
}

QLabel* FormControls::label(const char* name, const QString& caption, QRect at, QWidget* field) {
  QLabel* const made = text(name, caption, at);
  made->setBuddy(field);
  made->setText(m_letters.mark(caption));
  field->setAccessibleName(caption);
  return made;
}

QLineEdit* FormControls::field(const char* name, QRect at, QLineEdit::EchoMode echo) {
  auto* const made = new QLineEdit(m_window);
  made->setEchoMode(echo);
  place(made, name, {}, at);
  return made;
}

QPushButton* FormControls::button(const char* name, const QString& caption, QRect at, bool withLetter) {
  auto* const made = new QPushButton(m_window);
  made->setAutoDefault(false);  // Return belongs to OK
  place(made, name, caption, at);
  setFittedCaption(*made, withLetter ? m_letters.mark(caption) : caption);
  return made;
}

QCheckBox* FormControls::box(const char* name, const QString& caption, QRect at) {
  auto* const made = new QCheckBox(m_window);
  place(made, name, caption, at);
  if (!fitFont(*made, caption, at.width() - CheckMarkWidth)) made->setToolTip(plainToolTip(caption));
  made->setText(m_letters.mark(caption));
  return made;
}

QFrame* FormControls::separator(const char* name, QRect at) {
  auto* const line = new QFrame(m_window);
  line->setFrameShape(QFrame::HLine);
  place(line, name, {}, at);
  return line;
}
