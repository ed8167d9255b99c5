#include "qtsingleapplication.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QThread>
#include <cerrno>

namespace {

constexpr int kNameDigits = 16;  // 64 bits: no two executables of one user share a name
constexpr int kNameLooks = 10;
constexpr int kNameMilliseconds = 20;

QString GuardPath() {
  QCryptographicHash hash(QCryptographicHash::Sha1);
  hash.addData(QCoreApplication::applicationFilePath().toUtf8());
  hash.addData(QByteArray::number(getuid()));
  return QDir::tempPath() + QStringLiteral("/qtsingleapplication-") +
         QString::fromLatin1(hash.result().toHex().left(kNameDigits));
}

// Whether nothing lies at `path`, or a plain file of this user's. Links are not followed.
bool IsFreeOrOwn(const QString& path) {
  struct stat node = {};
  if (lstat(QFile::encodeName(path).constData(), &node) != 0) return errno == ENOENT;
  return S_ISREG(node.st_mode) && node.st_uid == getuid();
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*GUIenabled*/)
    : QApplication(argc, argv), guardPath_(GuardPath()) {}

QtSingleApplication::~QtSingleApplication() = default;

bool QtSingleApplication::isRunning() {
  isPrimary_ = isPrimary_ || TakeLock();
  return !isPrimary_;
}

bool QtSingleApplication::TakeLock() {
  const QString path = guardPath_ + QStringLiteral(".lock");
  lock_ = std::make_unique<QLockFile>(path);
  lock_->setStaleLockTime(0);  // a long upgrade is no reason to start a second one

  // At most two rounds: the second one follows the removal of a lock whose holder is gone.
  for (int round = 0; round < 2 && IsFreeOrOwn(path); ++round) {
    if (lock_->tryLock(0)) {
      // Whoever can read the file could hold the kernel's lock on it.
      QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
      return true;
    }
    if (lock_->error() != QLockFile::LockFailedError) break;

    // The process named in the file is alive. It is the holder unless the kernel's lock is free, in
    // which case its id has been given to another process. The file names nobody while the holder
    // is writing it, and may name nobody for good after a power cut.
    qint64 pid = 0;
    for (int look = 0; look < kNameLooks && !lock_->getLockInfo(&pid, nullptr, nullptr); ++look) {
      QThread::msleep(kNameMilliseconds);
    }
    if (!lock_->removeStaleLockFile()) return false;
  }
  qWarning("QtSingleApplication: the lock file '%s' cannot be used", qPrintable(path));
  lock_.reset();
  return true;
}
