#include "bundle-swap.h"

#include <cstdio>

#include "bundle-layout.h"
#include "file/file-op.h"
#include "version-file.h"

#define LOG_UNIT "lumivo-service"
#include "log.h"

namespace {

const ustring kComponent = "service_debug";

constexpr int kMaxBackups = 10;

// The name that `appPath` is moved aside to in the attempt `index`, 0 to 9.
ustring GetAppBackupDir(const ustring& appPath, int index) {
  ustring path = appPath + "_tmp";
  if (index == 0) return path;

  char postfix[8] = {};
  if (snprintf(postfix, sizeof(postfix), "%d", index) < 0) {
    LOG_ERROR(kComponent, "snprintf failed (continuing without postfix)");
    postfix[0] = '\0';
  }
  return path + postfix;
}

bool IsFolder(const ustring& path) {
  _FILE_INFO_tag info;
  return FSStat(path, info, false) == 0 && info.exist && info.type == FILE_TYPE_FOLDER;
}

// The build number of a complete bundle, 0 for any other.
int CompleteBuild(const ustring& bundle) {
  if (!IsFileExist(bundle + kClientProgram, false)) return 0;
  VerInfo version;
  ReadVersionFile(bundle + kVersionFile, &version);
  return BuildNumber(version);
}

// Removes a bundle, the version file first.
void RemoveBundle(const ustring& bundle) {
  // A link on the way would lead to somebody else's file.
  const bool ownsVersionFile =
      IsFolder(bundle) && IsFolder(bundle + "/Contents") && IsFolder(bundle + kResourceFolder);
  if (ownsVersionFile) FSRemove(bundle + kVersionFile, false);
  FSRemove(bundle, false);
}

}  // namespace

BundleSwap::BundleSwap(const ustring& bundle) : bundle_(bundle) {}

bool BundleSwap::MoveAside() {
  // Extracting over an existing bundle would mix old and new, so one failed look is not enough.
  if (!IsFileExist(bundle_, false) && !IsFileExist(bundle_, false)) return true;

  for (int index = 0; index < kMaxBackups; ++index) {
    const ustring path = GetAppBackupDir(bundle_, index);
    if (FSRename(bundle_, path, false) == 0) {
      backup_ = path;
      backupIndex_ = index;
      return true;
    }
    LOG_ERROR(kComponent, "failed to backup app from '%s' -> '%s'\n", bundle_.c_str(),
              path.c_str());
  }
  LOG_ERROR(kComponent, "failed to backup app from '%s' -> '%s' at max retries, exiting\n",
            bundle_.c_str(), GetAppBackupDir(bundle_, kMaxBackups - 1).c_str());
  return false;
}

void BundleSwap::Rollback() {
  const ustring backup = BackupToRestore();
  if (backup.empty()) {
    LOG_ERROR(kComponent, "Failed to extract package, and no old installation to rollback\n");
    return;
  }
  LOG_ERROR(kComponent, "Failed to extract package, rollback to old installation\n");
  if (!Restore(backup)) {
    LOG_ERROR(kComponent, "failed to restore app from '%s' -> '%s'\n", backup.c_str(),
              bundle_.c_str());
  }
}

void BundleSwap::Commit() {
  LOG_INFO(kComponent, "user installation is ready, removing backup app\n");
  // Lower names were taken: interrupted runs left something there. The lowest goes last, so that
  // whatever this run has to leave lies below the first free name again, where the next
  // replacement removes it.
  for (int index = backupIndex_; index >= 0; --index) {
    RemoveBundle(GetAppBackupDir(bundle_, index));
  }
}

ustring BundleSwap::BackupToRestore() const {
  if (!backup_.empty() && CompleteBuild(backup_) > 0) return backup_;

  ustring best = backup_;
  int bestBuild = 0;
  for (int index = 0; index < kMaxBackups; ++index) {
    const ustring path = GetAppBackupDir(bundle_, index);
    const int build = CompleteBuild(path);
    if (build > bestBuild) {
      best = path;
      bestBuild = build;
    }
  }
  return best;
}

bool BundleSwap::Restore(const ustring& backup) {
  RemoveBundle(bundle_);
  if (FSRename(backup, bundle_, false) == 0) return true;

  // What cannot be removed can still be moved out of the way, and finally to the name that the
  // restored backup vacates: the next replacement removes what lies below the first free name.
  BundleSwap rest(bundle_);
  if (!rest.MoveAside() || FSRename(backup, bundle_, false) != 0) return false;
  if (!rest.backup_.empty()) FSRename(rest.backup_, backup, false);
  return true;
}
