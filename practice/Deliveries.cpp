#include "practice/Deliveries.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

static QByteArray hashOf(const QByteArray& content) {
  return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

static std::optional<QByteArray> contentOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  return file.readAll();
}

static bool takes(const PracticeTask& task, const QString& name) {
  if (!name.endsWith(task.extension, Qt::CaseInsensitive)) return false;
  return task.fileName.isEmpty() || task.fileName == "*"_L1 || name.contains(task.fileName, Qt::CaseInsensitive);
}

// The task with the narrowest rule: one that names both an ending and a pattern before one that takes everything.
static const PracticeTask* taskFor(const QString& name, const QList<PracticeTask>& tasks) {
  const PracticeTask* best = nullptr;
  qsizetype bestLength = -1;
  for (const PracticeTask& task : tasks) {
    const qsizetype length = task.extension.size() + task.fileName.size();
    if (!takes(task, name) || length <= bestLength) continue;
    best = &task;
    bestLength = length;
  }
  return best;
}

QList<Delivery> assignSamples(const QString& samplesFolder, const QList<PracticeTask>& tasks) {
  QList<Delivery> deliveries;
  for (const QFileInfo& file : QDir(samplesFolder).entryInfoList(QDir::Files, QDir::Name)) {
    const PracticeTask* task = taskFor(file.fileName(), tasks);
    const auto content = contentOf(file.filePath());
    if (task && content) deliveries.append({file.fileName(), *content, hashOf(*content), *task});
  }
  return deliveries;
}

// The name as the task makes it: unchanged, or prefix, base and the minute at which it was sent.
static bool nameIsRight(const Delivery& delivery, const QString& sentAs) {
  const PracticeTask& task = delivery.task;
  if (!task.addDate) return sentAs == delivery.name;
  const QFileInfo file(delivery.name);
  const QRegularExpression wanted(u"^%1_%2_\\d{4}-\\d{2}_\\d{2}h\\d{1,2}m\\d{1,2}s_\\.%3$"_s.arg(
      QRegularExpression::escape(task.prefix), QRegularExpression::escape(file.completeBaseName()),
      QRegularExpression::escape(file.suffix())));
  return wanted.match(sentAs).hasMatch();
}

static QString problemWith(const Delivery& delivery, const PracticeReceipt& receipt) {
  const bool instrument = delivery.task.warden == "Instrument"_L1;
  if (receipt.size != delivery.content.size()) return u"wrong size"_s;
  if (receipt.kind != (instrument ? "instrument"_L1 : "print"_L1)) return u"wrong kind of job"_s;
  if (receipt.destination != delivery.task.destination) return u"wrong destination"_s;
  if (!nameIsRight(delivery, receipt.name)) return u"wrong name"_s;
  const auto input = contentOf(delivery.inputPath());
  if (!input || hashOf(*input) != delivery.sha256) return u"the input file is gone or changed"_s;
  const auto copy = contentOf(delivery.task.outputFolder + u'/' + receipt.name);
  if (!copy) return u"no copy in the output folder"_s;
  return hashOf(*copy) == delivery.sha256 ? QString() : u"the copy differs"_s;
}

DeliveryVerdict judge(const Delivery& delivery, const QList<PracticeReceipt>& receipts) {
  DeliveryVerdict verdict;
  int arrived = 0;
  for (const PracticeReceipt& receipt : receipts) {
    if (receipt.sha256 != delivery.sha256) continue;
    ++arrived;
    verdict.sentAs = receipt.name;
    verdict.problem = problemWith(delivery, receipt);
  }
  if (arrived == 0) verdict.problem = u"not arrived"_s;
  if (arrived > 1) verdict.problem = u"arrived %1 times"_s.arg(arrived);
  return verdict;
}

QString tableOf(const QList<Delivery>& deliveries, const QList<DeliveryVerdict>& verdicts) {
  QList<QStringList> rows{{u"file"_s, u"destination"_s, u"bytes"_s, u"sent as"_s, u"result"_s}};
  for (qsizetype i = 0; i < deliveries.size(); ++i)
    rows.append({deliveries[i].name, deliveries[i].task.destination, QString::number(deliveries[i].content.size()),
                 verdicts[i].sentAs, verdicts[i].problem.isEmpty() ? u"ok"_s : verdicts[i].problem});
  QList<qsizetype> widths(5, 0);
  for (const QStringList& row : rows)
    for (qsizetype column = 0; column < row.size(); ++column) widths[column] = qMax(widths[column], row[column].size());
  QString text;
  for (const QStringList& row : rows) {
    QString line;
    for (qsizetype column = 0; column < row.size(); ++column)
      line += (column == 2 ? row[column].rightJustified(widths[column]) : row[column].leftJustified(widths[column])) +
              u"  "_s;
    text += line.trimmed() + u'\n';
  }
  return text;
}
