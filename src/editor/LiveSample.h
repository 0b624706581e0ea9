#pragma once
// The quiet line under the fields: what the rules of the form select in the chosen folder now. Follows what is typed
// after a short pause, off the main thread. A folder that is slow to answer is looked at again later. Main thread.

#include <QLabel>
#include <QTimer>

#include "engine/FolderSample.h"
#include "widgets/BackgroundCall.h"

class LiveSample : public QLabel {
 public:
  explicit LiveSample(QWidget* parent);

  /// Shows the sample of these rules, soon.
  void follow(const SampleRequest& request);
  /// Shows a text instead.
  void say(const QString& line);
  /// The whole line; on the screen it is cut to the width.
  [[nodiscard]] const QString& line() const { return m_line; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void look();
  void saySlow();
  void show(const QString& line, const QString& details);
  void fit();

  SampleRequest m_request;
  QTimer m_pause;
  BackgroundCall m_call;
  std::optional<FolderItem> m_slowFolder;
  QString m_line;
};
