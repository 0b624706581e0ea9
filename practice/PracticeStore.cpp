#include "practice/PracticeStore.h"

#include <QDir>

#include "practice/OrderedJson.h"

using namespace Qt::Literals::StringLiterals;

PracticeStore::PracticeStore(const QString& folder) : m_folder(folder) {
  if (m_folder.isEmpty()) return;
  QDir().mkpath(m_folder);
  for (const QString& name : QDir(m_folder).entryList(QDir::Files | QDir::Hidden)) {
    const qsizetype dash = name.indexOf(u'-');
    if (dash > 0) m_number = qMax(m_number, name.left(dash).toInt());
  }
}

PracticeStore::Incoming::Incoming(const QString& path) : m_file(path), m_good(m_file.open(QIODevice::WriteOnly)) {}

PracticeStore::Incoming::~Incoming() {
  if (!m_file.fileName().isEmpty()) m_file.remove();
}

void PracticeStore::Incoming::write(QByteArrayView bytes) {
  m_good = m_good && m_file.write(bytes.data(), bytes.size()) == bytes.size();
}

std::unique_ptr<PracticeStore::Incoming> PracticeStore::begin() {
  if (m_folder.isEmpty()) return nullptr;
  return std::make_unique<Incoming>(m_folder + u"/.incoming-%1"_s.arg(++m_begun));
}

// Letters, digits and a few signs stay; the rest, which a sender may choose at will, becomes '_'.
static QString safeName(const QString& name) {
  QString safe;
  for (const QChar c : name.right(100)) safe += c.isLetterOrNumber() || u" ._-&"_s.contains(c) ? c : QChar(u'_');
  return safe;
}

bool PracticeStore::keep(std::unique_ptr<Incoming> incoming, PracticeReceipt& receipt) {
  if (!incoming) return m_folder.isEmpty();
  const QString path = m_folder + u"/%1-%2"_s.arg(++m_number, 4, 10, QChar(u'0')).arg(safeName(receipt.name));
  if (!incoming->m_good || !incoming->m_file.flush() || !incoming->m_file.rename(path)) return false;
  incoming->m_file.close();
  incoming->m_file.setFileName({});
  receipt.storedAs = path;

  QFile list(m_folder + u"/receipts.jsonl"_s);
  const QByteArray line = OrderedJson::object({{"name", receipt.name},
                                               {"kind", receipt.kind},
                                               {"destination", receipt.destination},
                                               {"size", receipt.size},
                                               {"sha256", QString::fromLatin1(receipt.sha256)}}) +
                          '\n';
  return list.open(QIODevice::Append) && list.write(line) == line.size() && list.flush();
}
