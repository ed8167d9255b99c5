#include "qtsingleapplication.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QThread>
#include <cerrno>
#include <cstring>

namespace {

// The name of a socket may have no more than 103 bytes, and about half are in a temporary folder's
// already.
constexpr int kNameDigits = 16;
constexpr int kNameLooks = 10;
constexpr int kNameMilliseconds = 20;

QString GuardPath() {
  QCryptographicHash hash(QCryptographicHash::Sha1);
  hash.addData(QCoreApplication::applicationFilePath().toUtf8());
  hash.addData(QByteArray::number(getuid()));
  return QDir::tempPath() + QStringLiteral("/qtsingleapplication-") +
         QString::fromLatin1(hash.result().toHex().left(kNameDigits));
}

// Whether nothing lies at `path`, or a node of the wanted kind that belongs to this user. Links are
// not followed.
bool IsFreeOrOwn(const QString& path, mode_t kind) {
  struct stat node = {};
  if (lstat(QFile::encodeName(path).constData(), &node) != 0) return errno == ENOENT;
  return (node.st_mode & S_IFMT) == kind && node.st_uid == getuid();
}

// A new socket with `path` applied to it by `use` (bind or connect): its descriptor, or -1 with
// errno.
int OpenSocket(const QByteArray& path, int (*use)(int, const sockaddr*, socklen_t)) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  if (static_cast<size_t>(path.size()) >= sizeof address.sun_path) {
    errno = ENAMETOOLONG;
    return -1;
  }
  memcpy(address.sun_path, path.constData(), static_cast<size_t>(path.size()));

  const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
  if (fd < 0) return -1;
  fcntl(fd, F_SETFD, FD_CLOEXEC);
  fcntl(fd, F_SETFL, O_NONBLOCK);
  if (use(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return fd;
  const int error = errno;
  close(fd);
  errno = error;
  return -1;
}

int Listen(const QByteArray& path) {
  const int fd = OpenSocket(path, bind);
  if (fd >= 0)
    listen(
        fd,
        SOMAXCONN);  // nobody is ever accepted, and some systems refuse whom the queue cannot take
  return fd;
}

bool Answers(const QByteArray& path) {
  const int fd = OpenSocket(path, connect);
  if (fd < 0) return errno == EAGAIN;  // and others keep them waiting
  close(fd);
  return true;
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*GUIenabled*/)
    : QApplication(argc, argv), guardPath_(GuardPath()) {}

QtSingleApplication::~QtSingleApplication() {
  if (socket_ < 0) return;
  unlink(QFile::encodeName(guardPath_ + QStringLiteral(".socket")).constData());
  close(socket_);
}

bool QtSingleApplication::isRunning() {
  if (isPrimary_) return false;
  switch (TakeLock()) {
    case Lock::kTaken:
      isPrimary_ = true;
      break;
    case Lock::kHeldElsewhere:
      break;
    case Lock::kUnusable:
      isPrimary_ = TakeSocket();
      break;
  }
  return !isPrimary_;
}

QtSingleApplication::Lock QtSingleApplication::TakeLock() {
  const QString path = guardPath_ + QStringLiteral(".lock");
  lock_ = std::make_unique<QLockFile>(path);
  lock_->setStaleLockTime(0);  // a long upgrade is no reason to start a second one

  // At most two rounds: the second one follows the removal of a lock whose holder is gone.
  for (int round = 0; round < 2 && IsFreeOrOwn(path, S_IFREG); ++round) {
    if (lock_->tryLock(0)) {
      // Whoever can read the file could hold the kernel's lock on it.
      QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
      return Lock::kTaken;
    }
    if (lock_->error() != QLockFile::LockFailedError) break;

    // The process named in the file lives. It is the holder unless the kernel's lock is free: then
    // the process id was given to another process. Nobody is named as long as the holder is
    // writing, and for ever after a power cut.
    qint64 pid = 0;
    for (int look = 0; look < kNameLooks && !lock_->getLockInfo(&pid, nullptr, nullptr); ++look) {
      QThread::msleep(kNameMilliseconds);
    }
    if (!lock_->removeStaleLockFile()) return Lock::kHeldElsewhere;
  }
  qWarning("QtSingleApplication: the lock file '%s' cannot be used", qPrintable(path));
  lock_.reset();
  return Lock::kUnusable;
}

bool QtSingleApplication::TakeSocket() {
  const QString name = guardPath_ + QStringLiteral(".socket");
  const QByteArray path = QFile::encodeName(name);
  socket_ = Listen(path);
  // A socket of this user's that answers belongs to a running instance; one that does not is a
  // crashed one's.
  if (socket_ < 0 && errno == EADDRINUSE && IsFreeOrOwn(name, S_IFSOCK)) {
    if (Answers(path)) return false;
    if (unlink(path.constData()) == 0) socket_ = Listen(path);
  }
  if (socket_ < 0)
    qWarning("QtSingleApplication: no guard against a second instance: %s", strerror(errno));
  return true;
}
