#pragma once

#include "owners.h"
#include "ustring.h"

/// The lock that lets one launcher at a time work on the per-user installation.
///
/// Copies of the launcher at different paths are separate single instances, yet share the
/// installation of their user. They take turns by an exclusive lock (`flock`) on its folder, which
/// the kernel drops when the holder ends, however it ends. Destroying the object releases it.
class InstallationLock {
 public:
  /// Opens `folder`, the per-user installation folder. Nothing is locked yet.
  explicit InstallationLock(const ustring& folder);

  /// Waits until no other launcher holds the lock, ten seconds at most. Logs a line when it has to
  /// wait, and another one when the time is over.
  ///
  /// @return false when another launcher still holds it: the installation must be left alone. True
  /// when it is ours, and also where the folder cannot be opened or locked: starting a client
  /// matters more than strict turn-taking
  bool Acquire();

 private:
  const ustring folder_;
  const Descriptor lock_;
};
