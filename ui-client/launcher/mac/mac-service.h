#pragma once

#include "lumivo-service.h"

/// The upgrade of a per-user installation that is an application bundle: how its client is found,
/// stopped and started.
class MacService : public Service {
 public:
  /// Does nothing but find its paths below the user's home. Needs the application object.
  MacService();
  ~MacService() override;

  /// The one instance of this process, made on the first call, from whichever thread. The Worker
  /// makes its own.
  static MacService* GetInstace();

  /// Ends the client that the pid file names: SIGTERM, a look every second for up to 5 seconds,
  /// then SIGKILL. Only a value that begins with the ID of one other process is signaled; any
  /// other is logged. Blocks for 5 seconds at most.
  void StopService() override;

  /// Stops the client where there is one, then PrepareUserEnv(), whose result it gives.
  int HandlePackageUpgrade() override;

  /// LaunchPerUserBin(); a failure is logged; nothing more can be done.
  void PostUpgrade() override;

  /// Loads both versions, the package's first, and logs build and icon overlay of each.
  void PreUpgrade() override;

  /// True when the package's build number is above the installed one's (a missing or other text
  /// counts as 0), or when the client's executable is missing, whatever the builds are then.
  bool IsNeedUpgrade() override;

  /// The same as LoadSourceVersion() and LoadTargetVersion().
  void LoadSourceVerInfo();
  void LoadTargetVerInfo();

  /// Whether there is a client executable in the per-user bundle, executable or not.
  bool PerUserBinPathExist();

  /// Makes the platform forget where it last saw the bundle (a failure is only logged), then opens
  /// it. 0 when the platform accepted that, -1 otherwise. Waits for the former, not for the client.
  static int LaunchPerUserBin();
};
