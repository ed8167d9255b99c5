#pragma once

#include <QApplication>
#include <memory>

class QLockFile;

/// An application of which one instance runs per executable and user.
///
/// Stands in for the class of the same name of Qt Solutions where that package is not installed,
/// with the operations that the launcher uses. An instance is known by the absolute path of its
/// executable and the user's id: copies at other paths, and other users, never see each other.
///
/// The guard is a lock file in the temporary folder, held through the kernel as well as by the
/// process id written in it: what a crashed holder leaves behind never blocks the next start, even
/// when its process id belongs to another process by then. Anybody may write into that folder, so a
/// lock file that cannot be made, or that is not a plain file of this user's, is ignored. Running
/// twice is preferred to being locked out.
class QtSingleApplication : public QApplication {
  Q_OBJECT

 public:
  /// Creates the application object. `argc` and `argv` must outlive it. `GUIenabled` is there for
  /// the shape of the original; QApplication always has a GUI.
  QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);

  /// Releases the lock if this instance holds it.
  ~QtSingleApplication() override;

  /// Whether another instance runs. The first call that finds none makes this instance the one that
  /// runs, until it is destroyed; later calls are cheap. Main thread only. Waits at most two fifths
  /// of a second, and only when the lock file names nobody.
  bool isRunning();

 private:
  /// False when another instance holds the lock; true also when the lock cannot be used.
  bool TakeLock();

  const QString guardPath_;
  std::unique_ptr<QLockFile> lock_;
  bool isPrimary_ = false;
};
