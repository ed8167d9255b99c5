#include "lumivo-service.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <cstdio>
#include <cstdlib>

#include "extractor.h"
#include "file/file-op.h"

#define LOG_UNIT "lumivo-service"
#include "log.h"

namespace {

const ustring kComponent = "service_debug";

constexpr int kMaxBackups = 10;
constexpr char kVersionFile[] = "/Contents/Resources/INFO";  // in either bundle

ustring FromQt(const QString& text) {
  return ustring(text.toUtf8().constData());
}

// The name that the per-user bundle is moved aside to in the attempt `index`, 0 to 9.
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

void ReadVersion(const ustring& path, VerInfo* version) {
  QSettings settings(QString::fromUtf8(path.c_str()), QSettings::IniFormat);
  settings.beginGroup(QStringLiteral("Version"));
  const auto read = [&settings](const QString& key, ustring* field) {
    if (settings.contains(key)) *field = FromQt(settings.value(key).toString());
  };
  read(QStringLiteral("major_version"), &version->major_version);
  read(QStringLiteral("minor_version"), &version->minor_version);
  read(QStringLiteral("build_version"), &version->build_version);
  read(QStringLiteral("icon_overlay_version"), &version->icon_overlay_version);
}

// The build number of a bundle that was extracted to its end, 0 of any other: its version file
// comes last.
int CompleteBuild(const ustring& bundle) {
  if (!IsFileExist(bundle + "/Contents/MacOS/lumivo-drive-ui", false)) return 0;
  VerInfo version;
  ReadVersion(bundle + kVersionFile, &version);
  return BuildNumber(version);
}

// Removes a bundle. It falls apart in one step first: a removal that is cut short must not leave
// what looks complete.
void Discard(const ustring& bundle) {
  _FILE_INFO_tag info;
  if (FSStat(bundle, info, false) == 0 && info.exist && info.type == FILE_TYPE_FOLDER) {
    FSRename(bundle + "/Contents", bundle + "/removed", false);
  }
  FSRemove(bundle, false);
}

}  // namespace

int BuildNumber(const VerInfo& version) {
  return atoi(version.build_version.c_str());
}

PackageInfo::PackageInfo() {
  const ustring folder = FromQt(QCoreApplication::applicationDirPath());
  imagesPath = folder + "/images";
  logPath = FromQt(QDir::homePath()) + "/.Lumivo_log";
  debugConfigPath = folder + "/log/launcher.debug";
  packagePath = folder + "/package/lumivo.lvp";
  confPath = folder + "/conf";
}

Service::~Service() = default;

void Service::SetTimeout(int value) {
  timeout = value;
}

int Service::ExtractPackage() {
  Extractor extractor;
  extractor.destination = GetUserLumivoAppInstallPath();
  extractor.archive = GetRootLumivoResourceInstallPath() + "/package/lumivo.lvp";

  if (FSMKDir(extractor.destination, true) < 0) {
    LOG_ERROR(kComponent, "failed to create folder: '%s'\n", extractor.destination.c_str());
    return -1;
  }
  LOG_INFO(kComponent, "extract package: '%s' -> '%s'\n", extractor.archive.c_str(),
           extractor.destination.c_str());
  return extractor.Extract();
}

void Service::LoadSourceVersion() {
  const ustring path = GetUserLumivoAppInstallPath() + kVersionFile;
  if (!IsFileExist(path, false)) {
    LOG_INFO(kComponent, "source does not exist\n");
    return;
  }
  ReadVersion(path, &sourceVersion);
  LOG_INFO(kComponent, "source_version = (%s, %s, %s, %s)\n", sourceVersion.major_version.c_str(),
           sourceVersion.minor_version.c_str(), sourceVersion.build_version.c_str(),
           sourceVersion.icon_overlay_version.c_str());
}

void Service::LoadTargetVersion() {
  ReadVersion(GetRootLumivoInstallPath() + kVersionFile, &targetVersion);
  LOG_INFO(kComponent, "target_version = (%s, %s, %s, %s)\n", targetVersion.major_version.c_str(),
           targetVersion.minor_version.c_str(), targetVersion.build_version.c_str(),
           targetVersion.icon_overlay_version.c_str());
}

// On success `backup` and `index` name where the bundle lies now; both stay as they are when there
// was no bundle.
bool Service::MoveAside(ustring* backup, int* index) {
  // One that cannot be looked at is there: an extraction over it would mix both.
  _FILE_INFO_tag info;
  if (GetFileInfo(userAppPath, info) == 0 && !info.exist) return true;

  for (int attempt = 0; attempt < kMaxBackups; ++attempt) {
    const ustring path = GetAppBackupDir(userAppPath, attempt);
    if (FSRename(userAppPath, path, false) == 0) {
      *backup = path;
      *index = attempt;
      return true;
    }
    LOG_ERROR(kComponent, "failed to backup app from '%s' -> '%s'\n", userAppPath.c_str(),
              path.c_str());
  }
  LOG_ERROR(kComponent, "failed to backup app from '%s' -> '%s' at max retries, exiting\n",
            userAppPath.c_str(), GetAppBackupDir(userAppPath, kMaxBackups - 1).c_str());
  return false;
}

// After an interrupted run the bundle that was moved aside is a part only, and the last complete
// one another backup.
ustring Service::BestBackup(const ustring& made) const {
  if (!made.empty() && CompleteBuild(made) > 0) return made;
  ustring best = made;
  int build = 0;
  for (int i = 0; i < kMaxBackups; ++i) {
    const ustring path = GetAppBackupDir(userAppPath, i);
    const int found = CompleteBuild(path);
    if (found > build) {
      best = path;
      build = found;
    }
  }
  return best;
}

void Service::Rollback(const ustring& made) {
  const ustring backup = BestBackup(made);
  if (backup.empty()) {
    LOG_ERROR(kComponent, "Failed to extract package, and no old installation to rollback\n");
    return;
  }
  LOG_ERROR(kComponent, "Failed to extract package, rollback to old installation\n");
  if (!made.empty() && backup != made) Discard(made);
  Discard(userAppPath);
  if (FSRename(backup, userAppPath, false) == 0) return;

  // What could not be removed can still be moved out of the way, in the end to the name that
  // becomes free: a later upgrade removes the backups up to the first free name.
  ustring rest;
  int index = 0;
  if (!MoveAside(&rest, &index) || FSRename(backup, userAppPath, false) != 0) return;
  if (!rest.empty()) FSRename(rest, backup, false);
}

int Service::PrepareUserEnv() {
  ustring backup;
  int index = 0;
  if (!MoveAside(&backup, &index)) return -1;

  if (ExtractPackage() != 0) {
    Rollback(backup);
    return -1;
  }
  LOG_INFO(kComponent, "user installation is ready, removing backup app\n");
  // Lower names were not free: earlier runs that were interrupted left something there. The lowest
  // goes last, so that what this run may leave is again below the first free name.
  for (int i = index; i >= 0; --i) Discard(GetAppBackupDir(userAppPath, i));
  return 0;
}

void Service::RemoveAgedFolders() {
  const ustring path = GetUserLumivoInstallPath() + "/app";
  LOG_INFO(kComponent, "removing aged app folder %s\n", path.c_str());
  FSRemove(path, false);
}

int Service::FSCopyPath(const ustring& src, const ustring& dst) {
  LOG_DEBUG(kComponent, "copy from '%s' to '%s'\n", src.c_str(), dst.c_str());
  _FILE_INFO_tag info;
  if (FSStat(src, info, false) < 0) {
    LOG_ERROR(kComponent, "FSCopyPath: failed to stat source '%s'\n", src.c_str());
    return -1;
  }
  if (!info.exist) {
    LOG_ERROR(kComponent, "FSCopyPath: source path '%s' does not exist\n", src.c_str());
    return -1;
  }
  if (info.type != FILE_TYPE_FOLDER) return FSCopy(src, dst, false) < 0 ? -1 : 0;
  if (FSMKDir(dst, true) < 0) {
    LOG_ERROR(kComponent, "FSCopyPath: failed to create dest folder '%s'\n", dst.c_str());
    return -1;
  }
  return CopyFolder(src, dst);
}

int Service::CopyFolder(const ustring& src, const ustring& dst) {
  DIR_HANDLE handle;
  if (FSOpenDir(src, 0, handle) < 0) {
    LOG_WARNING(kComponent, "FSCopyPath: failed to create handle  for src '%s' failed\n",
                src.c_str());
    return 0;
  }
  int result = 0;
  DIR_ENTRY entry;
  while (result == 0 && FSReadDir(handle, entry) > 0) {
    if (entry.name == "." || entry.name == "..") continue;
    const ustring from = src + "/" + entry.name;
    const ustring to = dst + "/" + entry.name;
    if ((entry.type == FILE_TYPE_FOLDER ? FSCopyPath(from, to) : FSCopy(from, to, false)) < 0) {
      LOG_ERROR(kComponent, "FSCopyPath: failed to copy from '%s' to '%s'\n", from.c_str(),
                to.c_str());
      result = -1;
    }
  }
  FSCloseDir(handle);
  return result;
}

ustring Service::GetUserInstallPath() {
  return FromQt(QDir::homePath());
}

ustring Service::GetRootLumivoInstallPath() {
  return FromQt(QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../..")));
}

ustring Service::GetRootLumivoResourceInstallPath() {
  return GetRootLumivoInstallPath() + "/Contents/Resources";
}

ustring Service::GetUserLumivoInstallPath() {
  return GetUserInstallPath() + "/.Lumivo";
}

ustring Service::GetUserLumivoAppInstallPath() {
  return GetUserLumivoInstallPath() + "/Lumivo.app";
}

ustring Service::GetUserLumivoDataInstallPath() {
  return GetUserLumivoInstallPath() + "/data";
}
