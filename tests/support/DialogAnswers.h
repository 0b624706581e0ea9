#pragma once
// What answers the dialogs that a window opens while a test waits for it, and what a test asks of any window.

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QSet>
#include <QTimer>
#include <functional>

/// Does something in the next dialog of a kind, once, as soon as it is open.
template <typename Dialog>
class Inside : public QObject {
 public:
  explicit Inside(std::function<void(Dialog&)> act) {
    connect(&m_timer, &QTimer::timeout, this, [this, act = std::move(act)] {
      auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!dialog || !dialog->isVisible()) return;
      m_timer.stop();
      act(*dialog);
      m_done = true;
    });
    m_timer.start(5);
  }
  [[nodiscard]] bool done() const { return m_done; }

 private:
  QTimer m_timer;
  bool m_done = false;
};

/// Presses a button of the next message box, and keeps its text.
class BoxAnswer {
 public:
  explicit BoxAnswer(QMessageBox::StandardButton button)
      : m_answer([this, button](QMessageBox& box) {
          m_text = box.text();
          box.button(button)->click();
        }) {}
  [[nodiscard]] const QString& text() const { return m_text; }

 private:
  QString m_text;
  const Inside<QMessageBox> m_answer;
};

/// Chooses a folder in the next dialog, or cancels it.
class Choice {
 public:
  explicit Choice(const QString& folder)
      : m_choice([this, folder](QFileDialog& dialog) {
          title = dialog.windowTitle();
          directory = dialog.directory().path();
          action = dialog.labelText(QFileDialog::Accept);
          prompt = dialog.findChild<QLabel*>(QStringLiteral("PromptText"))->text();
          if (!folder.isEmpty()) dialog.setDirectory(folder);
          static_cast<QDialog&>(dialog).done(folder.isEmpty() ? QDialog::Rejected : QDialog::Accepted);
        }) {}
  [[nodiscard]] bool made() const { return m_choice.done(); }
  QString title, prompt, directory, action;

 private:
  const Inside<QFileDialog> m_choice;
};

/// The longest that the event loop stood still, less what the machine kept the thread waiting for a processor.
class LoopWatch : public QObject {
 public:
  LoopWatch() {
    connect(&m_heart, &QTimer::timeout, this, [this] { beat(); });
    m_clock.start();
    m_queued = queuedMs();
    m_heart.start(5);
  }
  [[nodiscard]] qint64 longestMs() const { return m_longest; }

 private:
  static qint64 queuedMs() {
    QFile file(QStringLiteral("/proc/thread-self/schedstat"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() / 1'000'000 : 0;
  }
  void beat() {
    const qint64 queued = queuedMs();
    m_longest = qMax(m_longest, m_clock.restart() - (queued - m_queued));
    m_queued = queued;
  }
  QTimer m_heart;
  QElapsedTimer m_clock;
  qint64 m_queued = 0, m_longest = 0;
};

/// The controls of a window that the keyboard reaches and that lack a name for assistive technology or, but for
/// buttons, a label that leads to them.
inline QStringList controlsWithoutName(const QWidget& window) {
  QSet<QWidget*> labelled;
  for (const QLabel* const label : window.findChildren<QLabel*>()) labelled.insert(label->buddy());
  QStringList lacking;
  for (QWidget* const control : window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (control->focusPolicy() == Qt::NoFocus) continue;
    const bool led = qobject_cast<QAbstractButton*>(control) || labelled.contains(control);
    if (control->accessibleName().isEmpty() || !led) lacking << control->objectName();
  }
  return lacking;
}
