#pragma once
// What the practice run has dropped, and whether it arrived: each sample against the service's receipt and against the
// copy in its task's output folder. Main thread.

#include <QList>
#include <QString>
#include <optional>

#include "practice/PracticeHome.h"
#include "practice/PracticeService.h"

struct Delivery {
  QString name;  ///< of the sample
  QByteArray content;
  QByteArray sha256;  ///< 64 lower-case hexadecimal digits
  PracticeTask task;
  [[nodiscard]] QString inputPath() const { return task.inputFolder + QLatin1Char('/') + name; }
};

/// Reads the samples of a folder and gives each to the first task that takes it: ".cxf" files to instruments, names
/// that hold the task's file name pattern to that task, the rest to the task for everything.
[[nodiscard]] QList<Delivery> assignSamples(const QString& samplesFolder, const QList<PracticeTask>& tasks);

struct DeliveryVerdict {
  QString sentAs;   ///< the name at the service; empty if nothing arrived
  QString problem;  ///< empty when all is right
};
/// Judges one delivery by content, kind, destination and name, exactly one receipt, input left in place, and a whole
/// copy under the sent name.
[[nodiscard]] DeliveryVerdict judge(const Delivery& delivery, const QList<PracticeReceipt>& receipts);

/// Name, destination, size, sent as and result, in columns.
[[nodiscard]] QString tableOf(const QList<Delivery>& deliveries, const QList<DeliveryVerdict>& verdicts);
