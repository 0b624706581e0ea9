#include "monitor/LogExport.h"

#include "text/Placeholders.h"
#include "text/VTULocalization.h"
#include "widgets/Captions.h"
#include "widgets/Messages.h"

using namespace Qt::Literals::StringLiterals;
using namespace VTULocalization;

constexpr int ShowAfterMs = 300;
constexpr int ProgressWidth = 360;
constexpr qsizetype LongestName = 60;

LogExport::LogExport(QWidget* window)
    : QObject(window), m_window(window), m_chooser(window), m_writing("log-export", this) {}

void LogExport::begin(const LogSource& log, std::function<QList<qint64>()> rows) {
  const PathChooser::Texts texts{klExporttotxt(), klSave(), klCancel(), {}, u"log.txt"_s};
  m_chooser.choose(PathChooser::What::NewFile, texts, std::nullopt,
                   [this, log, rows = std::move(rows)](const std::optional<FolderItem>& target) {
                     if (target && !running()) write(log, rows(), *target);
                   });
}

void LogExport::write(const LogSource& log, const QList<qint64>& ids, const FolderItem& target) {
  m_progress = new QProgressDialog(fillPlaceholders(klLogExporting(), {onOneLine(target.Name(), LongestName)}),
                                   klCancel(), 0, static_cast<int>(ids.size()), m_window);
  m_progress->setObjectName(u"ExportProgress"_s);
  m_progress->setWindowTitle(klExporttotxt());
  m_progress->setAttribute(Qt::WA_DeleteOnClose);
  m_progress->setAutoReset(false);
  m_progress->setAutoClose(false);
  m_progress->setMinimumDuration(ShowAfterMs);
  m_progress->setMinimumWidth(ProgressWidth);
  m_progress->setValue(0);
  connect(m_progress, &QProgressDialog::canceled, this, &LogExport::cancel);
  m_writing.runInPieces<qint64, ExportOutcome>(
      0,
      [log, ids, target](const Cancelled& cancelled, const std::function<void(qint64)>& progress) {
        return exportRows(log, ids, target, cancelled, progress);
      },
      [this](qint64 rows) {
        if (m_progress) m_progress->setValue(static_cast<int>(rows));
      },
      [this](const ExportOutcome& outcome) { end(outcome.error); }, [this] { end(klLogBusy()); });
  emit changed();
}

void LogExport::cancel() {
  if (!running()) return;
  m_writing.cancel();
  end({});
}

void LogExport::end(const QString& error) {
  if (m_progress) m_progress->deleteLater();
  m_progress = nullptr;
  emit changed();
  if (!error.isEmpty()) Messages::tell(m_window, fillPlaceholders(klLogNotExported(), {error}));
}
