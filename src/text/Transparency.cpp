#include "text/Transparency.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWidget>
#include <cstdlib>
#include <memory>

using namespace Qt::Literals::StringLiterals;

/// A compositor owns the selection _NET_WM_CM_Sn of screen n (Extended Window Manager Hints, "compositing managers").
static bool hasCompositor(xcb_connection_t* connection) {
  const QByteArray display = qgetenv("DISPLAY");
  const qsizetype dot = display.lastIndexOf('.');
  const QByteArray screen = dot > display.lastIndexOf(':') ? display.mid(dot + 1) : QByteArrayLiteral("0");
  const QByteArray name = "_NET_WM_CM_S" + screen;
  const auto release = [](void* reply) { std::free(reply); };
  const auto atomAsked = xcb_intern_atom(connection, true, static_cast<uint16_t>(name.size()), name.constData());
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(release)> atom(
      xcb_intern_atom_reply(connection, atomAsked, nullptr), release);
  if (!atom || atom->atom == XCB_ATOM_NONE) return false;
  const auto ownerAsked = xcb_get_selection_owner(connection, atom->atom);
  const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(release)> owner(
      xcb_get_selection_owner_reply(connection, ownerAsked, nullptr), release);
  return owner && owner->owner != XCB_WINDOW_NONE;
}

static bool platformCan() {
  const QString platform = QGuiApplication::platformName();
  const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
  if (platform == "xcb"_L1) return x11 && x11->connection() && hasCompositor(x11->connection());
  return platform.startsWith("wayland"_L1) || platform == "offscreen"_L1;
}

int makeTransparent(QWidget& window) {
  if (!platformCan()) return 0;
  window.setAttribute(Qt::WA_TranslucentBackground);
  return 1;
}
