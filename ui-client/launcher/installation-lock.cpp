#include "installation-lock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <chrono>
#include <thread>

#define LOG_UNIT "launcher"
#include "log.h"

namespace {

using std::chrono::steady_clock;

const ustring kComponent = "launcher_debug";

constexpr std::chrono::seconds kPatience(10);
constexpr std::chrono::milliseconds kProbeInterval(100);

// Whether another process holds the lock. If not, it is ours, or the folder cannot be locked.
bool IsHeldElsewhere(int fd) {
  while (flock(fd, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EINTR) return errno == EWOULDBLOCK;
  }
  return false;
}

}  // namespace

InstallationLock::InstallationLock(const ustring& folder)
    : folder_(folder), lock_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

bool InstallationLock::Acquire() {
  if (!lock_.valid() || !IsHeldElsewhere(lock_.get())) return true;

  LOG_NOTE(kComponent, "another launcher is working on '%s', waiting for it\n", folder_.c_str());
  const auto deadline = steady_clock::now() + kPatience;
  while (steady_clock::now() < deadline) {
    std::this_thread::sleep_for(kProbeInterval);
    if (!IsHeldElsewhere(lock_.get())) return true;
  }
  LOG_WARNING(kComponent, "another launcher is still working on '%s', leaving it alone\n",
              folder_.c_str());
  return false;
}
