#include "qtsingleapplication.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QThread>

namespace {

constexpr int kConnectMilliseconds = 1000;
constexpr int kNameLooks = 10;
constexpr int kNameMilliseconds = 20;

QString GuardPath() {
  QCryptographicHash hash(QCryptographicHash::Sha1);
  hash.addData(QCoreApplication::applicationFilePath().toUtf8());
  hash.addData(QByteArray::number(getuid()));
  return QDir::tempPath() + QStringLiteral("/qtsingleapplication-") + QString::fromLatin1(hash.result().toHex());
}

// Whether nothing lies at `path`, or a node of the wanted kind that belongs to this user. Links are not followed.
bool IsFreeOrOwn(const QString& path, mode_t kind) {
  struct stat node = {};
  if (lstat(QFile::encodeName(path).constData(), &node) != 0) return errno == ENOENT;
  return (node.st_mode & S_IFMT) == kind && node.st_uid == getuid();
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*GUIenabled*/)
    : QApplication(argc, argv), guardPath_(GuardPath()) {}

QtSingleApplication::~QtSingleApplication() = default;

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

    // The process named in the file lives. It is the holder unless the kernel's lock is free: then the process id was
    // given to another process. Nobody is named as long as the holder is writing, and for ever after a power cut.
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
  const QString path = guardPath_ + QStringLiteral(".socket");
  server_ = std::make_unique<QLocalServer>();
  if (server_->listen(path)) return true;

  // A socket of this user's that answers belongs to a running instance; one that does not is a crashed one's.
  if (server_->serverError() == QAbstractSocket::AddressInUseError && IsFreeOrOwn(path, S_IFSOCK)) {
    QLocalSocket probe;
    probe.connectToServer(path);
    if (probe.waitForConnected(kConnectMilliseconds)) return false;
    if (QLocalServer::removeServer(path) && server_->listen(path)) return true;
  }
  qWarning("QtSingleApplication: no guard against a second instance: %s", qPrintable(server_->errorString()));
  return true;
}
