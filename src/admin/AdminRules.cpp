#include "admin/AdminRules.h"

#include <algorithm>
#include <limits>

AdminCheck checkAdminForm(const AdminForm& form) {
  AdminCheck check;
  check.passwordsWrong = form.locked && (form.adminPassword.trimmed().isEmpty() ||
                                         !opensLock(form.adminPasswordRepeat, form.adminPassword));
  check.canSave = !check.passwordsWrong && isCompleteLogin(form.login, form.password);
  return check;
}

bool isCompleteLogin(const QString& login, const QString& password) {
  return !login.trimmed().isEmpty() && !password.trimmed().isEmpty();
}

int portOf(const QString& text) {
  const QString trimmed = text.trimmed();
  const bool negative = trimmed.startsWith(u'-');
  qint64 number = 0;
  for (qsizetype i = negative || trimmed.startsWith(u'+') ? 1 : 0; i < trimmed.size(); ++i) {
    const char16_t c = trimmed[i].unicode();
    if (c < u'0' || c > u'9') break;
    number = std::min<qint64>(number * 10 + (c - u'0'), std::numeric_limits<int>::max());
  }
  return static_cast<int>(negative ? -number : number);
}

QString portText(qint64 port) { return port == 0 ? QString() : QString::number(port); }

bool opensLock(const QString& entered, const QString& stored) {
  return entered.trimmed().compare(stored.trimmed(), Qt::CaseInsensitive) == 0;
}
