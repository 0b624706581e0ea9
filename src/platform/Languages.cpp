#include "platform/Languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>
#include <map>
#include <memory>

#include "platform/System.h"

using namespace Qt::Literals::StringLiterals;

namespace Languages {

static const QString Folder = u":/languages"_s;
static const QString Prefix = u"vantry_"_s;

QStringList shipped() {
  QStringList names;
  for (const QString& file : QDir(Folder).entryList({Prefix + u"*.qm"_s}, QDir::Files, QDir::Name))
    names << file.mid(Prefix.size()).chopped(3);
  return names;
}

QString choose(const QStringList& wanted) {
  const QStringList tables = shipped();
  for (const QString& name : wanted) {
    const QLocale locale(name);
    const bool unknown = locale.language() == QLocale::C && name != u"C"_s && name != u"POSIX"_s;
    if (unknown) continue;
    if (locale.language() == QLocale::English || locale.language() == QLocale::C) return {};
    for (const QString& table : tables) {
      const QLocale offered(table);
      if (offered.language() == locale.language() && offered.script() == locale.script()) return table;
    }
  }
  return {};
}

QString lookUp(const QString& language, const char* key) {
  static const auto tables = [] {
    std::map<QString, std::unique_ptr<QTranslator>> loaded;
    for (const QString& name : shipped()) {
      auto table = std::make_unique<QTranslator>();
      if (table->load(Prefix + name, Folder)) loaded.emplace(name, std::move(table));
    }
    return loaded;
  }();
  const auto found = tables.find(choose({language}));
  return found == tables.end() ? QString() : found->second->translate(nullptr, key);
}

void install(const QString& table) {
  static QList<QPointer<QTranslator>> inForce;
  for (const QPointer<QTranslator>& old : std::exchange(inForce, {})) delete old.data();
  if (table.isEmpty()) return;
  const QString ofQt = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  for (const auto& [name, folder] : {std::pair(u"qtbase_"_s + table, ofQt), std::pair(Prefix + table, Folder)}) {
    auto* const translator = new QTranslator(qApp);
    const bool loaded = translator->load(name, folder) && QCoreApplication::installTranslator(translator);
    System::DebugLog((loaded ? u"Language table "_s : u"No language table "_s) + name + u" in "_s + folder);
    if (loaded)
      inForce << translator;
    else
      delete translator;
  }
}

}  // namespace Languages
