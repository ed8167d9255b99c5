// A small client for the launcher to install, start, stop and upgrade: one window, one pid file,
// one process per user.

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QSaveFile>
#include <QSettings>
#include <QSocketNotifier>
#include <QVBoxLayout>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

int g_signal_pipe[2] = {-1, -1};

void Log(const QString& text) {
  fprintf(stderr, "lumivo-drive-ui: %s\n", qUtf8Printable(text));
}

extern "C" void OnSignal(int) {
  const int saved = errno;
  const char byte = 0;
  // A full pipe already holds the wish to quit.
  [[maybe_unused]] const ssize_t written = write(g_signal_pipe[1], &byte, 1);
  errno = saved;
}

/// Lets SIGTERM and SIGINT end the event loop of `app` as a closed window would.
bool QuitOnSignals(QApplication* app) {
  if (pipe(g_signal_pipe) != 0) return false;
  for (int fd : g_signal_pipe) {
    if (fcntl(fd, F_SETFD, FD_CLOEXEC) != 0 || fcntl(fd, F_SETFL, O_NONBLOCK) != 0) return false;
  }
  auto* notifier = new QSocketNotifier(g_signal_pipe[0], QSocketNotifier::Read, app);
  QObject::connect(notifier, &QSocketNotifier::activated, app, &QCoreApplication::quit);
  struct sigaction action = {};
  action.sa_handler = OnSignal;
  action.sa_flags = SA_RESTART;
  return sigaction(SIGTERM, &action, nullptr) == 0 && sigaction(SIGINT, &action, nullptr) == 0;
}

/// The client's place in the user's home: a lock that one process at a time holds, and the pid file
/// that names it.
class Presence {
 public:
  Presence() : folder_(QDir::homePath() + QStringLiteral("/.Lumivo")) {}
  Presence(const Presence&) = delete;
  Presence& operator=(const Presence&) = delete;
  ~Presence() {
    // Another process may have written its own file since, for instance after the folder was
    // replaced.
    if (!content_.isEmpty() && Content() == content_) QFile::remove(PidPath());
    if (lock_ >= 0) close(lock_);
  }

  enum class Entry { kEntered, kTaken, kFailed };

  /// Takes the lock, which the system gives back however the process ends. Logs why it could not.
  Entry Enter() {
    if (!QDir().mkpath(folder_)) return Fail(QStringLiteral("cannot create '%1'").arg(folder_));
    const QString path = folder_ + QStringLiteral("/ui.lock");
    lock_ = open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (lock_ < 0) {
      return Fail(QStringLiteral("cannot open '%1': %2")
                      .arg(path, QString::fromLocal8Bit(strerror(errno))));
    }
    if (flock(lock_, LOCK_EX | LOCK_NB) == 0) return Entry::kEntered;
    if (errno == EWOULDBLOCK) return Entry::kTaken;
    return Fail(
        QStringLiteral("cannot lock '%1': %2").arg(path, QString::fromLocal8Bit(strerror(errno))));
  }

  /// Writes the pid file, whole or not at all. Logs why it could not.
  bool Announce() {
    const QByteArray content =
        "pid=" + QByteArray::number(QCoreApplication::applicationPid()) + '\n';
    QSaveFile file(PidPath());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.commit()) {
      Fail(QStringLiteral("cannot write '%1': %2").arg(PidPath(), file.errorString()));
      return false;
    }
    content_ = content;
    return true;
  }

 private:
  static Entry Fail(const QString& text) {
    Log(text);
    return Entry::kFailed;
  }
  QString PidPath() const { return folder_ + QStringLiteral("/ui.pid"); }
  QByteArray Content() const {
    QFile file(PidPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QString folder_;
  QByteArray content_;
  int lock_ = -1;
};

QString BuildNumber() {
  QSettings info(QCoreApplication::applicationDirPath() + QStringLiteral("/../Resources/INFO"),
                 QSettings::IniFormat);
  info.beginGroup(QStringLiteral("Version"));
  return info.value(QStringLiteral("build_version"), QStringLiteral("unknown")).toString();
}

}  // namespace

int main(int argc, char* argv[]) {
  // Its own plug-ins come on top of the installed ones, so that the client starts with either.
  const QString self = QFileInfo(QFile::decodeName(argc > 0 ? argv[0] : "")).absolutePath();
  QCoreApplication::addLibraryPath(
      QDir::cleanPath(self + QStringLiteral("/../Frameworks/plugins")));
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Lumivo Drive"));

  Presence presence;
  switch (presence.Enter()) {
    case Presence::Entry::kTaken:
      Log(QStringLiteral("already running"));
      return 0;
    case Presence::Entry::kFailed:
      return 1;
    case Presence::Entry::kEntered:
      break;
  }
  // Before the pid file is there: whoever reads it may send a signal at once.
  if (!QuitOnSignals(&app)) {
    Log(QStringLiteral("cannot watch for signals: %1")
            .arg(QString::fromLocal8Bit(strerror(errno))));
    return 1;
  }
  if (!presence.Announce()) return 1;

  QWidget window;
  window.setWindowTitle(QStringLiteral("Lumivo Drive, build %1").arg(BuildNumber()));
  auto* layout = new QVBoxLayout(&window);
  layout->setContentsMargins(48, 32, 48, 32);
  layout->addWidget(new QLabel(QStringLiteral("Lumivo Drive, build %1").arg(BuildNumber())), 0,
                    Qt::AlignCenter);
  layout->addWidget(
      new QLabel(QStringLiteral("Process %1").arg(QCoreApplication::applicationPid())), 0,
      Qt::AlignCenter);
  window.show();
  return QApplication::exec();
}
