#include "editor/LiveSample.h"

#include <QEvent>

#include "editor/SampleText.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"

constexpr int PauseMs = 250;
constexpr int LimitMs = 1000;
constexpr int SlowPauseMs = 5000;  // before a folder that was slow to answer is looked at again

LiveSample::LiveSample(QWidget* parent)
    : QLabel(parent),
      m_request{*FolderItem::fromNativePath(QStringLiteral("/")), {}, {}, {}, {}},
      m_pause(this),
      m_call("sample", this) {
  setTextFormat(Qt::PlainText);
  m_pause.setObjectName(QStringLiteral("SamplePause"));
  m_pause.setSingleShot(true);
  connect(&m_pause, &QTimer::timeout, this, [this] { look(); });
}

void LiveSample::follow(const SampleRequest& request) {
  const bool otherFolder = request.folder != m_request.folder;
  m_request = request;
  if (m_line.isEmpty() || otherFolder) show(VTULocalization::klSampleLooking(), {});
  m_pause.start(PauseMs);
}

void LiveSample::say(const QString& line) {
  m_pause.stop();
  m_call.cancel();
  show(line, {});
}

void LiveSample::look() {
  // While a look at this folder hangs, another would hang as well.
  if (m_slowFolder == m_request.folder && !m_call.idle()) return saySlow();
  m_slowFolder.reset();
  m_call.run<FolderSample>(
      LimitMs,
      [request = m_request](const BackgroundCall::Cancelled& stop) { return sampleInputFolder(request, stop); },
      [this](const FolderSample& sample) { show(sampleLine(sample), sampleDetails(sample)); },
      [this] {
        m_call.cancel();
        m_slowFolder = m_request.folder;
        saySlow();
      });
}

void LiveSample::saySlow() {
  show(VTULocalization::klSampleSlow(), {});
  m_pause.start(SlowPauseMs);
}

void LiveSample::show(const QString& line, const QString& details) {
  m_line = line;
  setToolTip(plainToolTip(details.isEmpty() ? line : line + QStringLiteral("\n\n") + details));
  setAccessibleDescription(line);
  fit();
}

void LiveSample::fit() { setText(fontMetrics().elidedText(m_line, Qt::ElideRight, width())); }

void LiveSample::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  fit();
}

void LiveSample::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange) fit();
}
