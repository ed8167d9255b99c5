#include "lumivo-service.h"

#include <QCoreApplication>
#include <QDir>

#include "bundle-layout.h"
#include "bundle-swap.h"
#include "extractor.h"
#include "file/file-op.h"
#include "qt-text.h"

#define LOG_UNIT "lumivo-service"
#include "log.h"

namespace {

const ustring kComponent = "service_debug";

}  // namespace

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
  extractor.archive = GetRootLumivoResourceInstallPath() + kPackage;

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
  ReadVersionFile(path, &sourceVersion);
  LOG_INFO(kComponent, "source_version = (%s, %s, %s, %s)\n", sourceVersion.major_version.c_str(),
           sourceVersion.minor_version.c_str(), sourceVersion.build_version.c_str(),
           sourceVersion.icon_overlay_version.c_str());
}

void Service::LoadTargetVersion() {
  ReadVersionFile(GetRootLumivoInstallPath() + kVersionFile, &targetVersion);
  LOG_INFO(kComponent, "target_version = (%s, %s, %s, %s)\n", targetVersion.major_version.c_str(),
           targetVersion.minor_version.c_str(), targetVersion.build_version.c_str(),
           targetVersion.icon_overlay_version.c_str());
}

int Service::PrepareUserEnv() {
  BundleSwap swap(userAppPath);
  if (!swap.MoveAside()) return -1;
  if (ExtractPackage() != 0) {
    swap.Rollback();
    return -1;
  }
  swap.Commit();
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
  return GetRootLumivoInstallPath() + kResourceFolder;
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
