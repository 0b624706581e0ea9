// GIO comes first: Qt makes a macro of `signals`.
#include <gio/gio.h>

#include "platform/Mount.h"

#include <dirent.h>
#include <fcntl.h>
#include <netdb.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

#include "platform/FileCipher.h"
#include "platform/FolderCall.h"
#include "platform/System.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using SteadyClock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds LookEvery(100);
constexpr auto CancelLimit = std::chrono::seconds(5);  // for the service to say that it has given up
constexpr auto FolderLimit = std::chrono::seconds(3);  // from the mount to its folder's being there
constexpr int MaxUnderWay = 8;                         // with those that were left behind

std::atomic<int> underWay{0};

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename T>
using Owned = std::unique_ptr<T, Unref>;

/// One mounting: the caller waits for it with a limit, and a thread of its own does it. The mount service's library
/// waits in many places for the bus, for the service and for the folder, and few of them can be given a limit.
struct Mounting {
  Mounting() : cancellable(g_cancellable_new()) {}
  ~Mounting() { wipe(password); }
  Mounting(const Mounting&) = delete;
  Mounting& operator=(const Mounting&) = delete;

  QByteArray url, login, password;  // these don't change once the thread runs
  const Owned<GCancellable> cancellable;

  // The mounting thread's own.
  bool asked = false;
  int refusal = 0;  // why we broke it off, in place of what the service makes of it
  bool answered = false;
  int error = 0;

  std::mutex mutex;  // guards all below
  std::condition_variable changed;
  bool haveSession = false;
  bool ended = false;
  int errorCode = 0;
  QByteArray folder;
};
using MountingPointer = std::shared_ptr<Mounting>;

/// A main context of this thread's own, so that callbacks come here and not to a loop that nobody runs.
class OwnContext {
 public:
  OwnContext() : m_context(g_main_context_new()) { g_main_context_push_thread_default(m_context); }
  ~OwnContext() {
    // What the bus still has to release for us waits here, and would otherwise be kept for good.
    while (g_main_context_iteration(m_context, FALSE)) {
    }
    g_main_context_pop_thread_default(m_context);
    g_main_context_unref(m_context);
  }
  OwnContext(const OwnContext&) = delete;
  OwnContext& operator=(const OwnContext&) = delete;

  /// Runs what is due until `done` or until `deadline`; wakes ten times a second.
  template <typename Done>
  void runUntil(SteadyClock::time_point deadline, const Done& done) const {
    GSource* const beat = g_timeout_source_new(static_cast<guint>(LookEvery.count()));
    g_source_set_callback(
        beat, [](gpointer) -> gboolean { return G_SOURCE_CONTINUE; }, nullptr, nullptr);
    g_source_attach(beat, m_context);
    while (!done() && SteadyClock::now() < deadline) g_main_context_iteration(m_context, TRUE);
    g_source_destroy(beat);
    g_source_unref(beat);
  }

 private:
  GMainContext* m_context;
};

/// Some parts of the mount service tell what failed only in the words of the system, at the end of their own.
int codeInWords(const char* message) {
  constexpr std::pair<int, int> known[] = {
      // EINVAL is what a name that nobody knows gives.
      {ECONNREFUSED, MountError::Unreachable}, {EHOSTUNREACH, MountError::Unreachable},
      {ENETUNREACH, MountError::Unreachable},  {EINVAL, MountError::Unreachable},
      {EHOSTDOWN, MountError::Unreachable},    {ECONNABORTED, MountError::Unreachable},
      {ECONNRESET, MountError::Unreachable},   {ETIMEDOUT, MountError::TimedOut},
      {ENOENT, MountError::NotThere},          {ENODEV, MountError::NotThere},
      {EACCES, MountError::LoginRefused},      {EPERM, MountError::LoginRefused}};
  for (const auto& [number, code] : known)
    if (g_str_has_suffix(message, g_strerror(number))) return code;
  for (const int number : {EAI_NONAME, EAI_AGAIN, EAI_NODATA, EAI_FAIL})
    if (g_str_has_suffix(message, ::gai_strerror(number))) return MountError::Unreachable;
  // Another key than the one that is known of this host, and a server that hangs up: in the service's own words.
  if (g_str_equal(message, g_dgettext("gvfs", "Host key verification failed"))) return MountError::Question;
  if (g_str_equal(message, g_dgettext("gvfs", "Connection unexpectedly went down"))) return MountError::Unreachable;
  return EIO;
}

int codeOf(const GError* error) {
  if (error->domain == G_RESOLVER_ERROR) return MountError::Unreachable;
  // The service's process for this share has crashed.
  if (g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY)) return MountError::ServiceEnded;
  if (error->domain != G_IO_ERROR) return error->domain == G_DBUS_ERROR ? MountError::NoSession : EIO;
  switch (error->code) {
    case G_IO_ERROR_ALREADY_MOUNTED:
      return 0;
    case G_IO_ERROR_PERMISSION_DENIED:
    case G_IO_ERROR_FAILED_HANDLED:
    case G_IO_ERROR_PROXY_AUTH_FAILED:
      return MountError::LoginRefused;
    case G_IO_ERROR_NOT_FOUND:
    case G_IO_ERROR_NOT_DIRECTORY:
      return MountError::NotThere;
    case G_IO_ERROR_HOST_NOT_FOUND:
    case G_IO_ERROR_HOST_UNREACHABLE:
    case G_IO_ERROR_NETWORK_UNREACHABLE:
    case G_IO_ERROR_CONNECTION_REFUSED:
    case G_IO_ERROR_NOT_CONNECTED:
    case G_IO_ERROR_BROKEN_PIPE:
      return MountError::Unreachable;
    case G_IO_ERROR_TIMED_OUT:
      return MountError::TimedOut;
    case G_IO_ERROR_CANCELLED:
      return MountError::Cancelled;
    case G_IO_ERROR_NOT_SUPPORTED:
    case G_IO_ERROR_INVALID_ARGUMENT:
    case G_IO_ERROR_INVALID_FILENAME:
    case G_IO_ERROR_NOT_MOUNTED:
    case G_IO_ERROR_NOT_MOUNTABLE_FILE:
      return MountError::NotSupported;
    case G_IO_ERROR_CLOSED:
    case G_IO_ERROR_DBUS_ERROR:
      return MountError::NoSession;
    default:
      return codeInWords(error->message);
  }
}

void answerLogin(GMountOperation* operation, const char*, const char*, const char*, GAskPasswordFlags wanted,
                 gpointer data) {
  Mounting& mounting = **static_cast<MountingPointer*>(data);
  if (mounting.asked) mounting.refusal = MountError::LoginRefused;  // asked again: what we gave was wrong
  if (mounting.refusal != 0) return g_mount_operation_reply(operation, G_MOUNT_OPERATION_ABORTED);
  mounting.asked = true;
  if (mounting.login.isEmpty() && (wanted & G_ASK_PASSWORD_ANONYMOUS_SUPPORTED)) {
    g_mount_operation_set_anonymous(operation, TRUE);
    return g_mount_operation_reply(operation, G_MOUNT_OPERATION_HANDLED);
  }
  QByteArray user = mounting.login;
  // Where no domain is asked for, what looks like one is part of the name.
  if (wanted & G_ASK_PASSWORD_NEED_DOMAIN) {
    QByteArray domain;
    const qsizetype backslash = user.indexOf('\\'), at = user.lastIndexOf('@');
    if (backslash >= 0) {
      domain = user.left(backslash);
      user.remove(0, backslash + 1);
    } else if (at >= 0) {
      domain = user.mid(at + 1);
      user.truncate(at);
    }
    if (!domain.isEmpty()) g_mount_operation_set_domain(operation, domain.constData());
  }
  if (wanted & G_ASK_PASSWORD_NEED_USERNAME) g_mount_operation_set_username(operation, user.constData());
  if (wanted & G_ASK_PASSWORD_NEED_PASSWORD) g_mount_operation_set_password(operation, mounting.password.constData());
  g_mount_operation_set_password_save(operation, G_PASSWORD_SAVE_NEVER);
  g_mount_operation_reply(operation, G_MOUNT_OPERATION_HANDLED);
}

void declineQuestion(GMountOperation* operation, const char*, char** choices, gpointer data) {
  (*static_cast<MountingPointer*>(data))->refusal = MountError::Question;
  // The last choice declines. For a certificate the service looks at the choice alone, and the first, its default,
  // takes any.
  g_mount_operation_set_choice(operation, static_cast<int>(g_strv_length(choices)) - 1);
  g_mount_operation_reply(operation, G_MOUNT_OPERATION_ABORTED);
}

void mounted(GObject* file, GAsyncResult* result, gpointer data) {
  const std::unique_ptr<MountingPointer> mounting(static_cast<MountingPointer*>(data));
  GError* error = nullptr;
  if (!g_file_mount_enclosing_volume_finish(G_FILE(file), result, &error)) {
    (*mounting)->error = codeOf(error);
    // The service's words name the address and never the login.
    if ((*mounting)->error != 0 && !g_cancellable_is_cancelled((*mounting)->cancellable.get()))
      System::DebugLog(u"Vantry Uploader - mounting failed: "_s + QString::fromUtf8(error->message));
    g_clear_error(&error);
  }
  (*mounting)->answered = true;
}

void releaseMounting(gpointer data, GClosure*) { delete static_cast<MountingPointer*>(data); }

Owned<GMountOperation> makeOperation(const MountingPointer& mounting) {
  Owned<GMountOperation> operation(g_mount_operation_new());
  const auto connect = [&](const char* signal, GCallback handler) {
    g_signal_connect_data(operation.get(), signal, handler, new MountingPointer(mounting), &releaseMounting,
                          G_CONNECT_DEFAULT);
  };
  connect("ask-password", G_CALLBACK(answerLogin));
  connect("ask-question", G_CALLBACK(declineQuestion));
  return operation;
}

/// For nfs the service says that there is no such share whenever it gets no list of them, so we knock ourselves: at the
/// port mapper's door, where it asks first, and at the server's.
bool nobodyAnswersNfs(const char* url, GCancellable* cancellable) {
  constexpr guint Seconds = 3;
  const std::unique_ptr<GUri, decltype(&g_uri_unref)> uri(g_uri_parse(url, G_URI_FLAGS_PARSE_RELAXED, nullptr),
                                                          &g_uri_unref);
  if (!uri || !g_uri_get_host(uri.get()) || g_ascii_strcasecmp(g_uri_get_scheme(uri.get()), "nfs") != 0) return false;
  const Owned<GSocketClient> client(g_socket_client_new());
  g_socket_client_set_timeout(client.get(), Seconds);
  g_socket_client_set_enable_proxy(client.get(), FALSE);
  for (const guint16 port : {guint16(111), guint16(2049)}) {
    const Owned<GSocketConnection> connection(
        g_socket_client_connect_to_host(client.get(), g_uri_get_host(uri.get()), port, cancellable, nullptr));
    if (!connection) return !g_cancellable_is_cancelled(cancellable);
  }
  return false;
}

/// The mount service is reached over the session bus, which must not take the program with it when it ends.
bool haveSession(GCancellable* cancellable) {
  const bool named = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS");
  const QByteArray socket = qgetenv("XDG_RUNTIME_DIR") + "/bus";
  if (!named && ::access(socket.constData(), F_OK) != 0) return false;  // GIO would start a bus of its own
  GDBusConnection* const bus = g_bus_get_sync(G_BUS_TYPE_SESSION, cancellable, nullptr);
  if (!bus) return false;
  g_dbus_connection_set_exit_on_close(bus, FALSE);
  static GDBusConnection* const kept = bus;  // the mount service's library asks for the same one
  const bool open = !g_dbus_connection_is_closed(bus);
  if (bus != kept) g_object_unref(bus);
  return open;
}

QByteArray localPath(GFile* file) {
  const std::unique_ptr<char, decltype(&g_free)> path(g_file_get_path(file), &g_free);
  return QByteArray(path.get());
}

/// Waits for the folder, which appears a moment behind the mount, and gives an error.
int findFolder(const OwnContext& context, GFile* file, GCancellable* cancellable, QByteArray& path) {
  int error = 0;
  const auto there = [&] {
    path = localPath(file);
    if (path.isEmpty()) return false;
    // Listed and not only looked at: what is known of an earlier mount at this place may be told for a second.
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(path.constData()), &::closedir);
    errno = folder ? 0 : errno;
    if (folder) (void)::readdir(folder.get());  // an empty folder gives nothing, and no error
    error = errno;
    return error == 0;
  };
  context.runUntil(SteadyClock::now() + FolderLimit,
                   [&] { return there() || g_cancellable_is_cancelled(cancellable); });
  if (path.isEmpty()) return MountError::NoFolder;
  if (error == 0) return 0;
  if (error == ENOENT) return MountError::NotThere;
  return error == EACCES ? MountError::LoginRefused : MountError::Unreachable;
}

/// What the thread does; ends when it is done or soon after its being cancelled, unless something hangs.
int mountHere(const MountingPointer& mounting, QByteArray& folder) {
  const OwnContext context;
  GCancellable* const cancellable = mounting->cancellable.get();
  if (!haveSession(cancellable)) return MountError::NoSession;
  {
    const std::lock_guard lock(mounting->mutex);
    mounting->haveSession = true;
  }
  const Owned<GFile> file(g_file_new_for_uri(mounting->url.constData()));
  // The service "mounts" pages of the web as well, and never shows them.
  if (g_file_has_uri_scheme(file.get(), "http") || g_file_has_uri_scheme(file.get(), "https"))
    return MountError::NotSupported;
  {
    const Owned<GMountOperation> operation = makeOperation(mounting);
    g_file_mount_enclosing_volume(file.get(), G_MOUNT_MOUNT_NONE, operation.get(), cancellable, &mounted,
                                  new MountingPointer(mounting));
    context.runUntil(SteadyClock::time_point::max(), [&] { return mounting->answered; });
  }
  if (mounting->error == MountError::NotThere && nobodyAnswersNfs(mounting->url.constData(), cancellable))
    mounting->error = MountError::Unreachable;
  if (mounting->error != 0) return mounting->refusal != 0 ? mounting->refusal : mounting->error;
  return findFolder(context, file.get(), cancellable, folder);
}

void mountOnThread(const MountingPointer& mounting) {
  System::nameThisThread("mount");
  QByteArray folder;
  const int errorCode = mountHere(mounting, folder);
  {
    const std::lock_guard lock(mounting->mutex);
    mounting->errorCode = errorCode;
    mounting->folder = folder;
    mounting->ended = true;
  }
  mounting->changed.notify_all();
  --underWay;
}

/// False when the system gives no thread, or too many hang.
bool start(const MountingPointer& mounting) {
  if (++underWay > MaxUnderWay) {
    --underWay;
    return false;
  }
  try {
    std::thread(mountOnThread, mounting).detach();
  } catch (const std::system_error&) {
    --underWay;
    return false;
  }
  return true;
}

}  // namespace

/// True if a server with its port, or its name alone, may stand so before the first slash: no part of a login does.
static bool maybeServer(QStringView text) {
  const qsizetype colon = text.indexOf(u':', text.startsWith(u'[') ? qMax(text.indexOf(u']'), qsizetype(0)) : 0);
  return colon < 0 || text.mid(colon + 1).toUShort() > 0;
}

void wakeAutomount(const QByteArray& path) {
  const FolderCall call;
  const int folder = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder >= 0) ::close(folder);
}

QString shareForDisplay(const QString& url) {
  const qsizetype server = url.indexOf(u"//"_s) + 2;
  if (server < 2) return url.trimmed();
  const qsizetype end = url.indexOf(u'/', server);
  qsizetype at = url.lastIndexOf(u'@', end < 0 ? -1 : end);
  // A slash within the password, which had better been escaped.
  if (at < server && end >= 0 && !maybeServer(QStringView(url).mid(server, end - server))) at = url.lastIndexOf(u'@');
  return (at < server ? url : url.left(server) + url.mid(at + 1)).trimmed();
}

QString shareForService(const QString& url) {
  QString address = QString(url).replace(u' ', u"%20"_s);
  const qsizetype end = address.startsWith(u"nfs://"_s, Qt::CaseInsensitive) ? address.indexOf(u'/', 6) : -1;
  if (end < 0) return address;
  for (const QLatin1StringView port : {":2049"_L1, ":"_L1})
    if (QStringView(address).left(end).endsWith(port)) return address.remove(end - port.size(), port.size());
  return address;
}

QString mountShare(const MountRequest& request, int& errorCode, int limitMs) {
  const auto deadline = SteadyClock::now() + std::chrono::milliseconds(limitMs);
  const auto mounting = std::make_shared<Mounting>();
  mounting->url = shareForService(request.url).toUtf8();
  mounting->login = request.userName.toUtf8();
  mounting->password = request.password.toUtf8();
  errorCode = MountError::TimedOut;
  if (!start(mounting)) return {};

  std::unique_lock lock(mounting->mutex);
  const auto ended = [&] { return mounting->ended; };
  int givenUp = 0;
  while (givenUp == 0 && !mounting->changed.wait_for(lock, LookEvery, ended)) {
    if (request.cancelled && request.cancelled())
      givenUp = MountError::Cancelled;
    else if (SteadyClock::now() >= deadline)
      givenUp = mounting->haveSession ? MountError::TimedOut : MountError::NoSession;
  }
  if (givenUp != 0) {
    lock.unlock();  // what is told of the cancelling at once may come from this thread
    g_cancellable_cancel(mounting->cancellable.get());
    lock.lock();
    mounting->changed.wait_for(lock, CancelLimit, ended);
  }
  errorCode = mounting->ended && (mounting->errorCode == 0 || givenUp == 0) ? mounting->errorCode : givenUp;
  return errorCode == 0 ? QString::fromUtf8(mounting->folder) : QString();
}
