#pragma once

#include "ustring.h"
#include "version-file.h"

/// The places of a package that lies beside the launcher's executable, UTF-8. Nothing is looked up
/// on disk. Needs the application object.
struct PackageInfo {
  PackageInfo();

  ustring imagesPath;       ///< the folder of the pictures
  ustring logPath;          ///< a log folder in the user's home, not the launcher's own
  ustring debugConfigPath;  ///< the levels of the log
  ustring packagePath;      ///< the package archive
  ustring confPath;         ///< the folder of settings
};

/// Brings the per-user installation up to date with the package of the launcher's own bundle, and
/// starts the client.
///
/// One object serves one run, on one thread: PreUpgrade(), IsNeedUpgrade(), HandlePackageUpgrade()
/// only when that was true, then always RemoveAgedFolders() and PostUpgrade(). Failures are logged
/// under "service_debug".
class Service {
 public:
  Service() = default;
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;
  virtual ~Service();

  /// Stops the running client. Never fails from the caller's point of view; may block for seconds.
  virtual void StopService() = 0;

  /// Keeps a timeout for subclasses; the stop of the client waits by its own fixed schedule.
  virtual void SetTimeout(int value);

  /// Stops the client and replaces the per-user installation. 0 ready; -1 failed, with the old one
  /// back in its place where there was one.
  virtual int HandlePackageUpgrade() = 0;

  /// Starts the installed client, whichever that is.
  virtual void PostUpgrade() = 0;

  /// Loads both versions.
  virtual void PreUpgrade() = 0;

  /// Whether the package is newer than the installed client, or that is missing. After
  /// PreUpgrade().
  virtual bool IsNeedUpgrade() = 0;

  /// Extracts the package archive into the per-user bundle, which is created with its parents. 0;
  /// negative on failure, with whatever was extracted left in place.
  virtual int ExtractPackage();

  /// Reads the per-user bundle's version file into `sourceVersion`; a missing file leaves it as it
  /// is.
  virtual void LoadSourceVersion();

  /// Reads the launcher bundle's version file into `targetVersion`; a missing file reads as one
  /// without keys.
  virtual void LoadTargetVersion();

  /// Replaces the per-user bundle with the package (BundleSwap), or puts the old one back when the
  /// extraction fails. 0; -1 on failure.
  virtual int PrepareUserEnv();

  /// Removes the application folder of an older per-user layout, where there is one.
  void RemoveAgedFolders();

  /// Copies a file, or a folder tree depth first: bytes only, no permissions. 0; -1 on failure,
  /// with what was copied left in place. A source folder that cannot be read gives an empty folder
  /// and 0.
  int FSCopyPath(const ustring& src, const ustring& dst);

  /// The user's home folder.
  static ustring GetUserInstallPath();
  /// The bundle folder, two levels above the executable's folder, without "..". Needs the
  /// application object.
  static ustring GetRootLumivoInstallPath();
  /// The bundle's resource folder. Needs the application object.
  static ustring GetRootLumivoResourceInstallPath();
  /// The per-user installation folder: HOME/.Lumivo.
  static ustring GetUserLumivoInstallPath();
  /// The per-user application bundle: HOME/.Lumivo/Lumivo.app.
  static ustring GetUserLumivoAppInstallPath();
  /// The per-user data folder, which belongs to the client: HOME/.Lumivo/data.
  static ustring GetUserLumivoDataInstallPath();

 protected:
  int timeout = 0;  ///< kept for subclasses; nothing reads it
  ustring userAppPath;
  VerInfo targetVersion;
  VerInfo sourceVersion;

 private:
  int CopyFolder(const ustring& src, const ustring& dst);
};
