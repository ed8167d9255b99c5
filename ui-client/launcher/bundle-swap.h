#pragma once

#include "ustring.h"

/// Replaces the per-user application bundle, so that a complete client, old or new, is what
/// remains.
///
/// One object serves one replacement: MoveAside(), then the caller puts the new bundle in place,
/// then Commit() or, when that failed, Rollback(). Failures are logged under "service_debug".
/// Blocks its thread; nobody else may work on the installation meanwhile (InstallationLock).
///
/// A bundle is complete when it has the client's program and a build number. The version file,
/// which holds that number, is the last entry of a package and the first file of a bundle to be
/// removed, so whatever is cut short, half a bundle never looks complete.
///
/// The replacement passes through these states. The last column says what the next start does after
/// a crash, a kill or a power cut in that state:
///
/// | state | `Lumivo.app` | backup | next start |
/// |---|---|---|---|
/// | old | old | none | starts over |
/// | aside | missing | old | extracts, or restores the old one |
/// | extracting | partial | old | moves the partial one aside, extracts, or restores the old one |
/// | new | new | old | starts the new client |
/// | cleaning up | new | partial | starts the new client; a later replacement removes the rest |
/// | rolling back | partial | old | as in "extracting" |
///
/// Each state begins with one rename, or with one file that appears or goes. A power cut finds
/// these steps in order where the file system keeps the order of names (APFS, HFS+, ext4, XFS,
/// Btrfs). Where it does not, the two write barriers of the extraction keep the order that matters:
/// everything but the version file is on the disk before that one is written, and that one before
/// the old bundle goes. Nothing is forced in a rollback: what a power cut undoes of it, the next
/// start does again.
class BundleSwap {
 public:
  /// `bundle` is the application bundle to replace. Nothing is looked at yet.
  explicit BundleSwap(const ustring& bundle);

  /// Moves the bundle aside, to the first backup name that a rename accepts. Atomic. A bundle that
  /// does not exist is success. One that still can't be examined on a second try counts as not
  /// existing; creating its folder then fails.
  ///
  /// @return false when none of the ten names could be taken; the bundle is untouched then
  bool MoveAside();

  /// Puts a bundle back in place of the partial new one, which is removed: the one that MoveAside()
  /// moved. Only when that one is incomplete, or there was none, and an interrupted run left a
  /// complete backup, the backup with the highest build number goes back instead, and the
  /// incomplete one stays at its backup name. Where no backup is better, the incomplete one goes
  /// back. With nothing to put back the partial bundle stays.
  void Rollback();

  /// Removes the backups, from the one that MoveAside() made down to the first name. The new
  /// bundle must be complete and on the disk, as Extractor::Extract() leaves it. Whatever cannot be
  /// removed stays for the next replacement.
  void Commit();

 private:
  ustring BackupToRestore() const;
  bool Restore(const ustring& backup);

  const ustring bundle_;
  ustring backup_;  // where the bundle lies now; empty while it has not been moved
  int backupIndex_ = 0;
};
