#include "storage/SetAside.h"

#include <cerrno>

#include "platform/Date.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MostNames = 1000;

QString nameAside(const QString& name, const QString& moment, int number) {
  const qsizetype point = name.lastIndexOf(u'.');
  const QString stem = point > 0 ? name.first(point) : name;
  const QString ending = point > 0 ? name.sliced(point) : QString();
  const QString counter = number > 1 ? u" %1"_s.arg(number) : QString();
  return stem + u" damaged "_s + moment + counter + ending;
}

IoResult rename(const FolderItem& folder, const QString& from, const QString& to) {
  FolderItem item = folder.Child(from);
  return item.setName(to);
}

/// Moves all or nothing; the file itself comes last in `suffixes`, as an empty one.
IoResult moveAll(const FolderItem& folder, const QString& from, const QString& to, const QStringList& suffixes) {
  for (qsizetype i = 0; i < suffixes.size(); ++i) {
    const IoResult moved = rename(folder, from + suffixes[i], to + suffixes[i]);
    if (moved.ok()) continue;
    for (qsizetype done = i - 1; done >= 0; --done) {
      // The failure to report is the first one; what can't go back is still there under its new name.
      static_cast<void>(rename(folder, to + suffixes[done], from + suffixes[done]));
    }
    return moved;
  }
  return {};
}

}  // namespace

SetAsideResult setAside(const FolderItem& file, const QStringList& suffixes) {
  const QString moment = Date().local().toString(u"yyyy-MM-dd HH.mm.ss");
  const FolderItem folder = file.Parent();
  const QStringList parts = suffixes + QStringList{QString()};
  for (int number = 1;; ++number) {
    const QString name = nameAside(file.Name(), moment, number);
    const IoResult moved = moveAll(folder, file.Name(), name, parts);
    if (moved.ok()) return {moved, name};
    if (moved.error != EEXIST || number == MostNames) return {moved, {}};
  }
}
