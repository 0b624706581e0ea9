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

/// Presses a button of the next message box, and keeps its text.
class BoxAnswer : public QObject {
 public:
  explicit BoxAnswer(QMessageBox::StandardButton button) : m_button(button) {
    connect(&m_timer, &QTimer::timeout, this, [this] { press(); });
    m_timer.start(5);
  }
  [[nodiscard]] const QString& text() const { return m_text; }

 private:
  void press() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) return;
    m_timer.stop();
    m_text = box->text();
    box->button(m_button)->click();
  }
  QMessageBox::StandardButton m_button;
  QTimer m_timer;
  QString m_text;
};

/// Chooses a folder in the next dialog, or cancels it.
class Choice : public QObject {
 public:
  explicit Choice(QString folder) : m_folder(std::move(folder)) {
    connect(&m_timer, &QTimer::timeout, this, [this] { choose(); });
    m_timer.start(5);
  }
  [[nodiscard]] bool made() const { return m_made; }
  QString title, prompt, directory, action;

 private:
  void choose() {
    auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible()) return;
    m_timer.stop();
    title = dialog->windowTitle();
    directory = dialog->directory().path();
    action = dialog->labelText(QFileDialog::Accept);
    prompt = dialog->findChild<QLabel*>(QStringLiteral("PromptText"))->text();
    if (!m_folder.isEmpty()) dialog->setDirectory(m_folder);
    static_cast<QDialog*>(dialog)->done(m_folder.isEmpty() ? QDialog::Rejected : QDialog::Accepted);
    m_made = true;
  }
  QString m_folder;
  QTimer m_timer;
  bool m_made = false;
};

/// Does something in the next dialog of a kind, once, as soon as it is open.
template <typename Dialog>
class Inside : public QObject {
 public:
  explicit Inside(std::function<void(Dialog&)> act) : m_act(std::move(act)) {
    connect(&m_timer, &QTimer::timeout, this, [this] {
      auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!dialog || !dialog->isVisible()) return;
      m_timer.stop();
      m_act(*dialog);
      m_done = true;
    });
    m_timer.start(5);
  }
  [[nodiscard]] bool done() const { return m_done; }

 private:
  std::function<void(Dialog&)> m_act;
  QTimer m_timer;
  bool m_done = false;
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
