#pragma once
// The folder into which the practice service puts what it receives: a file for each receipt, under a safe name, and a
// line of JSON for each in receipts.jsonl. The service's thread.

#include <QFile>
#include <QString>
#include <memory>

#include "practice/PracticeService.h"

class PracticeStore {
 public:
  /// Without a folder nothing is ever written. Goes on counting behind the files that stand there.
  explicit PracticeStore(const QString& folder);

  /// A file for one request's content while it arrives; gone with the object unless keep() is called.
  class Incoming {
   public:
    explicit Incoming(const QString& path);
    ~Incoming();
    Incoming(const Incoming&) = delete;
    Incoming& operator=(const Incoming&) = delete;
    void write(QByteArrayView bytes);

   private:
    friend class PracticeStore;
    QFile m_file;
    bool m_good;
  };
  /// nullptr without a folder.
  [[nodiscard]] std::unique_ptr<Incoming> begin();
  /// Gives the file its name from the receipt's and writes the receipt's line; sets storedAs. False if the disk
  /// refused any of it.
  [[nodiscard]] bool keep(std::unique_ptr<Incoming> incoming, PracticeReceipt& receipt);

 private:
  QString m_folder;
  int m_begun = 0;
  int m_number = 0;  // of the last file kept
};
