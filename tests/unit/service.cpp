#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include "mac/mac-service.h"
#include "support/test-home.h"

namespace {

namespace fs = std::filesystem;

struct Signal {
  pid_t process;
  int number;
  bool operator==(const Signal& other) const {
    return process == other.process && number == other.number;
  }
};

void PrintTo(const Signal& sent, std::ostream* stream) {
  *stream << "signal " << sent.number << " to " << sent.process;
}

std::vector<Signal> signals_sent;

constexpr pid_t kGone = 1234;
constexpr pid_t kStubborn = 5678;   // a process that no SIGTERM ends
constexpr pid_t kForbidden = 4321;  // another user's

// The signals to a process that is still there after each of the five probes.
std::vector<Signal> WholeStop(pid_t process) {
  std::vector<Signal> stop = {{process, SIGTERM}};
  stop.insert(stop.end(), 5, {process, 0});
  stop.push_back({process, SIGKILL});
  return stop;
}

}  // namespace

// Takes the place of the system's: nothing that a test writes into a pid file reaches a process.
// Only some systems declare it noexcept.
extern "C" int kill(pid_t pid, int signal) noexcept(noexcept(kill(pid, signal))) {
  signals_sent.push_back({pid, signal});
  if (pid == kStubborn) return 0;
  errno = pid == kForbidden ? EPERM : ESRCH;
  return -1;
}

// Nor does a test wait for the seconds between two probes.
extern "C" unsigned sleep(unsigned) {
  return 0;
}

namespace {

struct TestService : MacService {
  using MacService::targetVersion;
};

class ServiceTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return home.folder / (".Lumivo/" + name); }

  TestHome home;
  TestService service;
};

struct Versions {
  const char* installed;  // the version file
  const char* offered;    // the package's build
  bool isNeeded;
};

TEST_F(ServiceTest, OnlyANewerBuildNeedsThePackage) {
  const std::string program = Path("Lumivo.app/Contents/MacOS/lumivo-drive-ui");
  fs::create_directories(Path("Lumivo.app/Contents/MacOS"));
  fs::create_directories(Path("Lumivo.app/Contents/Resources"));
  WriteFile(program, "");
  const Versions rows[] = {
      {"[Version]\nbuild_version=3487\n", "3488", true},
      {"[Version]\nbuild_version=3487\n", "3487", false},
      {"[Version]\nbuild_version=3487\n", "999", false},
      {"[Version]\nbuild_version=12abc\n", "12", false},
      {"[Version]\nbuild_version=-5\n", "", true},
      {"[Version]\nmajor_version=9\n[Other]\nbuild_version=9\n", "1", true},
  };
  for (const Versions& row : rows) {
    WriteFile(Path("Lumivo.app/Contents/Resources/INFO"), row.installed);
    TestService run;
    run.targetVersion.build_version = row.offered;
    run.PreUpgrade();
    EXPECT_EQ(run.IsNeedUpgrade(), row.isNeeded) << row.installed << " -> " << row.offered;
  }
  fs::remove(program);
  EXPECT_TRUE(service.IsNeedUpgrade());
}

struct PidFile {
  std::string text;
  std::vector<Signal> sent;
  std::string logged = {};
};

TEST_F(ServiceTest, SignalsOnlyTheOneProcessThatThePidFileNames) {
  const std::string own = std::to_string(getpid());
  const PidFile rows[] = {
      {"pid=1234", {{kGone, SIGTERM}}},
      {"pid = \"1234\" # the client\r\n", {{kGone, SIGTERM}}},
      {"pid=5678", WholeStop(kStubborn)},
      {"pid=4321", WholeStop(kForbidden), "kill: Operation not permitted (1)\n"},
      {"pid=0", {}, "names no process to stop: '0'\n"},
      {"pid=-1", {}, "names no process to stop: '-1'\n"},
      {"pid=4294967295", {}, "names no process to stop: '4294967295'\n"},  // -1 in 32 bits
      {"pid=4294968530", {}, "names no process to stop: '4294968530'\n"},  // 1234 in 32 bits
      {"pid=99999999999999999999", {}, "names no process to stop: '99999999999999999999'\n"},
      {"pid=abc", {}, "names no process to stop: 'abc'\n"},
      {"pid=" + own, {}, "names no process to stop: '" + own + "'\n"},
      {"pid=\"\"\n", {}},
      {"", {}},
      {"pid=1 2\n", {}, "Failed to read pid file '"},
  };
  for (const PidFile& row : rows) {
    WriteFile(Path("ui.pid"), row.text);
    signals_sent.clear();
    service.StopService();
    EXPECT_EQ(signals_sent, row.sent) << row.text;
    EXPECT_TRUE(home.Logged(row.logged)) << row.logged << "\n" << home.Log();
  }
}

TEST_F(ServiceTest, CopiesATreeOrReportsWhatItCannotCopy) {
  fs::create_directories(Path("from/a/b"));
  WriteFile(Path("from/a/b/f"), "data");
  EXPECT_EQ(service.FSCopyPath(Path("from"), Path("to")), 0);
  EXPECT_EQ(ReadFile(Path("to/a/b/f")), "data");
  fs::create_symlink("nowhere", Path("from/dangling"));
  EXPECT_EQ(service.FSCopyPath(Path("from"), Path("to")), -1);
  EXPECT_EQ(service.FSCopyPath(Path("none"), Path("to")), -1);
}

}  // namespace
