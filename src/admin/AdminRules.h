#pragma once
// The rules of the administration, apart from its windows. Plain functions on values; any thread.

#include <QString>

/// What stands in the fields of the admin window.
struct AdminForm {
  QString login, password;
  bool locked = false;
  QString adminPassword, adminPasswordRepeat;
};

struct AdminCheck {
  bool passwordsWrong = false;  ///< shown in red
  bool canSave = false;
  bool operator==(const AdminCheck&) const = default;
};
[[nodiscard]] AdminCheck checkAdminForm(const AdminForm& form);

/// True if neither is blank.
[[nodiscard]] bool isCompleteLogin(const QString& login, const QString& password);

/// The number at the head of a text, without its fraction; 0 if there is none. Beyond what an int holds, its bounds.
[[nodiscard]] int portOf(const QString& text);
/// A stored port as the field shows it; empty for 0.
[[nodiscard]] QString portText(qint64 port);

/// Whether `entered` opens the lock; capitals and blanks at the ends make no difference.
[[nodiscard]] bool opensLock(const QString& entered, const QString& stored);
