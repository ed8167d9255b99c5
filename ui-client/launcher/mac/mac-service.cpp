#include "mac/mac-service.h"

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "bundle-layout.h"
#include "file/file-op.h"
#include "mac/launch-services.h"
#include "qt-text.h"

#define LOG_UNIT "mac/mac-service"
#include "log.h"

namespace {

const ustring kComponent = "service_debug";

constexpr int kDefaultTimeout = 10000;
constexpr int kStopProbes = 5;
constexpr unsigned kProbeSeconds = 1;

// The one process that `text` names; 0 when it names none, a group of processes, or ourselves. A
// larger number must not be cut down to a pid_t: it could come out as -1, which is every process.
pid_t ClientPid(const ustring& text) {
  errno = 0;
  const long pid = strtol(text.c_str(), nullptr, 10);
  const bool names =
      errno == 0 && pid > 0 && pid <= std::numeric_limits<pid_t>::max() && pid != getpid();
  return names ? static_cast<pid_t>(pid) : 0;
}

bool IsGone(pid_t pid) {
  return kill(pid, 0) != 0 && errno == ESRCH;
}

void Stop(pid_t pid) {
  if (kill(pid, SIGTERM) != 0) {
    const int error = errno;
    if (error == ESRCH) return;
    LOG_ERROR(kComponent, "kill: %s (%d)\n", strerror(error), error);
  }
  // Probe before sleeping: a client that has already gone costs no wait.
  for (int probe = 0; probe < kStopProbes; ++probe) {
    if (IsGone(pid)) return;
    sleep(kProbeSeconds);
  }
  kill(pid, SIGKILL);
}

}  // namespace

MacService::MacService() {
  timeout = kDefaultTimeout;
  userAppPath = GetUserLumivoAppInstallPath();
}

MacService::~MacService() = default;

MacService* MacService::GetInstace() {
  static MacService instance;
  return &instance;
}

void MacService::StopService() {
  const ustring path = GetUserLumivoInstallPath() + "/ui.pid";
  Config config;
  if (!IsFileExist(path, false)) {
    LOG_DEBUG(kComponent, "pid file '%s' does not exist, no need to terminate\n", path.c_str());
    return;
  }
  if (config.read(path) < 0) {
    LOG_NOTE(kComponent, "Failed to read pid file '%s', not exist ?\n", path.c_str());
    return;
  }
  const ustring value = config["pid"];
  if (value.empty()) return;

  const pid_t pid = ClientPid(value);
  if (pid == 0) {
    LOG_NOTE(kComponent, "pid file '%s' names no process to stop: '%s'\n", path.c_str(),
             value.c_str());
    return;
  }
  Stop(pid);
}

int MacService::HandlePackageUpgrade() {
  if (PerUserBinPathExist()) {
    LOG_DEBUG(kComponent, "local appdata exist\n");
    StopService();
  }
  return PrepareUserEnv();
}

void MacService::PostUpgrade() {
  if (LaunchPerUserBin() < 0) LOG_ERROR(kComponent, "Failed to launch Lumivo UI\n");
}

void MacService::PreUpgrade() {
  LoadTargetVersion();
  LoadSourceVersion();
  LOG_DEBUG(kComponent, "Source version: ('%s', '%s')\n", sourceVersion.build_version.c_str(),
            sourceVersion.icon_overlay_version.c_str());
  LOG_DEBUG(kComponent, "Target version: ('%s', '%s')\n", targetVersion.build_version.c_str(),
            targetVersion.icon_overlay_version.c_str());
}

bool MacService::IsNeedUpgrade() {
  const int source = BuildNumber(sourceVersion);
  const int target = BuildNumber(targetVersion);
  LOG_DEBUG(kComponent, "source version = %d, target version = %d\n", source, target);
  return target > source || !PerUserBinPathExist();
}

void MacService::LoadSourceVerInfo() {
  LoadSourceVersion();
}

void MacService::LoadTargetVerInfo() {
  LoadTargetVersion();
}

bool MacService::PerUserBinPathExist() {
  return access((userAppPath + kClientProgram).c_str(), F_OK) == 0;
}

int MacService::LaunchPerUserBin() {
  const ustring bundle = GetUserLumivoAppInstallPath();
  if (UnregisterBundle(ToQt(bundle)) != 0) {
    LOG_ERROR(kComponent, "Cannot unregister bundle, %s", bundle.c_str());
  }
  return OpenBundle(ToQt(bundle)) ? 0 : -1;
}
