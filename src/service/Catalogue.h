#pragma once
// What the two catalogues have in common: a list that is fetched whole, handed out as a copy, and looked up from its
// first entry to its last without regard to case. Any thread.

#include <QList>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <set>

#include "service/VantryUtil.h"

template <typename Record>
class Catalogue {
 public:
  [[nodiscard]] QList<Record> records() const {
    const QMutexLocker lock(&m_mutex);
    return m_records;
  }
  void setRecords(const QList<Record>& records) {
    const QMutexLocker lock(&m_mutex);
    m_records = records;
  }
  [[nodiscard]] bool everFetched() const {
    const QMutexLocker lock(&m_mutex);
    return m_everFetched;
  }
  /// Empties the list as if it had never been fetched.
  void forget() {
    const QMutexLocker lock(&m_mutex);
    m_records.clear();
    m_everFetched = false;
  }

  /// Empties the list and fills it from a method's reply; entries that are no objects or arrays are passed over. An
  /// answer to a login that was replaced meanwhile is dropped. After a failure it counts as never fetched.
  [[nodiscard]] bool fetch(const QString& method, HttpFailure* failure, QString* err) {
    forget();
    const quint64 login = VantryUtil::account().loginNumber;
    QString said;
    const std::optional<Dictionary> reply = VantryUtil::VTSoap(method, said, {}, {}, failure);
    if (err) *err = said;
    if (!reply) return false;
    QList<Record> fetched;
    for (const QVariant& value : reply->Values()) {
      if (value.canConvert<JSONItem>()) fetched.append(Record(VantryUtil::JSONtoDictionary(value.value<JSONItem>())));
    }
    const QMutexLocker lock(&m_mutex);  // another login forgets the list behind this, or is seen
    if (VantryUtil::account().loginNumber != login) return false;
    m_records = fetched;
    m_everFetched = true;
    return true;
  }

 private:
  mutable QMutex m_mutex;  // guards both below
  QList<Record> m_records;
  bool m_everFetched = false;
};

/// Equal without regard to case.
[[nodiscard]] bool sameText(const QString& one, const QString& other);
/// Texts that differ in more than case, in the order of their coming: of those that don't, the first stands.
class DistinctTexts {
 public:
  /// Takes a text; false if it is there already.
  bool take(const QString& text);
  [[nodiscard]] const QStringList& list() const { return m_list; }

 private:
  struct Less {
    bool operator()(const QString& one, const QString& other) const;
  };
  std::set<QString, Less> m_seen;
  QStringList m_list;
};
/// A field of a record as text: empty if it is missing.
[[nodiscard]] QString recordText(const Dictionary& record, const QString& key);
