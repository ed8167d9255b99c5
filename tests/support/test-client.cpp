// The client of the end-to-end tests: writes its pid file, notes how it was started, and ends the way HOME/client-mode
// says: "ignore" keeps running on SIGTERM, "linger" takes two seconds, anything else ends at once.
//
// A start is one line in HOME/starts: process id, session id, folder of the executable, open descriptors above 2.

#include <dirent.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace {

volatile sig_atomic_t terminated = 0;

void OnTerminate(int) {
  terminated = 1;
}

std::string OpenDescriptors() {
  std::string list;
  DIR* folder = opendir("/proc/self/fd");
  while (const dirent* entry = readdir(folder)) {
    const int fd = atoi(entry->d_name);
    if (fd > 2 && fd != dirfd(folder)) list += std::string(" ") + entry->d_name;
  }
  closedir(folder);
  return list;
}

std::string Folder() {
  char path[4096] = {};
  if (readlink("/proc/self/exe", path, sizeof(path) - 1) < 0) return "?";
  const std::string text(path);
  return text.substr(0, text.rfind('/'));
}

}  // namespace

int main() {
  const std::string home = getenv("HOME") != nullptr ? getenv("HOME") : "";
  const std::string descriptors = OpenDescriptors();
  std::string mode;
  std::ifstream(home + "/client-mode") >> mode;
  if (mode == "ignore") {
    signal(SIGTERM, SIG_IGN);
  } else {
    signal(SIGTERM, OnTerminate);
  }

  const std::string pidFile = home + "/.Lumivo/ui.pid";
  std::ofstream(pidFile) << "pid=" << getpid() << "\n";
  // One write, so that a test never reads half a line.
  const std::string line =
      std::to_string(getpid()) + " " + std::to_string(getsid(0)) + " " + Folder() + descriptors + "\n";
  std::ofstream(home + "/starts", std::ios::app) << line << std::flush;

  // A test that fails must not leave a client behind for ever.
  for (int tenths = 0; tenths < 1200 && terminated == 0; ++tenths) usleep(100000);
  if (mode == "linger") sleep(2);
  unlink(pidFile.c_str());
  return 0;
}
