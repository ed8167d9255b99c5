#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>
#include <vector>

#include "mac/mac-service.h"
#include "support/test-home.h"

namespace {

namespace fs = std::filesystem;

std::vector<std::pair<pid_t, int>> signals_sent;

}  // namespace

// Nothing that a test writes into a pid file may reach a real process.
extern "C" int kill(pid_t pid, int signal) noexcept {
  signals_sent.emplace_back(pid, signal);
  errno = ESRCH;
  return -1;
}

namespace {

constexpr char kApp[] = ".Lumivo/Lumivo.app";

// The service with its package replaced: writes one file, and fails when the test says so.
class TestService : public MacService {
 public:
  int ExtractPackage() override {
    fs::create_directories(GetUserLumivoAppInstallPath().c_str());
    WriteFile((GetUserLumivoAppInstallPath() + "/new").c_str(), "new");
    return result;
  }
  void LoadTargetVersion() override { targetVersion.build_version = target; }

  int result = 0;
  ustring target;
};

class ServiceTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return home.folder / name; }
  void Write(const std::string& name, const std::string& text) const {
    fs::create_directories(fs::path(Path(name)).parent_path());
    WriteFile(Path(name), text);
  }

  TestHome home;
  TestService service;
};

TEST_F(ServiceTest, OnlyANewerBuildOrAMissingExecutableNeedsThePackage) {
  const struct {
    const char* source;  // the installed version file; null for none
    const char* target;
    bool executable;
    bool needed;
  } cases[] = {
      {"[Version]\nbuild_version=3487\n", "3500", true, true},
      {"[Version]\nbuild_version=3487\n", "3487", true, false},
      {"[Version]\nbuild_version=3487\nmajor_version=1\n", "3400", true, false},
      {"[Version]\nbuild_version=3487\n", "3400", false, true},
      {"[Version]\nmajor_version=9\n", "1", true, true},
      {"[Other]\nbuild_version=9999\n", "1", true, true},
      {"[Version]\nbuild_version=12abc\n", "12", true, false},
      {"[Version]\nbuild_version=-5\n", "-4", true, true},
      {"[Version]\nbuild_version=-5\n", "", true, true},
      {nullptr, "", true, false},
      {nullptr, "", false, true},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(std::string(row.source ? row.source : "none") + " -> " + row.target);
    fs::remove_all(Path(kApp));
    if (row.source) Write(std::string(kApp) + "/Contents/Resources/INFO", row.source);
    if (row.executable) Write(std::string(kApp) + "/Contents/MacOS/lumivo-drive-ui", "");
    TestService run;
    run.target = row.target;
    run.PreUpgrade();
    EXPECT_EQ(run.IsNeedUpgrade(), row.needed);
  }
}

TEST_F(ServiceTest, AFailedExtractionLeavesTheOldBundleAndNothingElse) {
  Write(std::string(kApp) + "/old", "old");
  service.result = -7;
  EXPECT_EQ(service.HandlePackageUpgrade(), -1);
  EXPECT_EQ(ReadFile(Path(kApp) + "/old"), "old");
  EXPECT_FALSE(fs::exists(Path(kApp) + "/new"));
  EXPECT_FALSE(fs::exists(Path(kApp) + "_tmp"));

  fs::remove_all(Path(kApp));
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_TRUE(fs::exists(Path(kApp) + "/new")) << "without a backup, what was extracted stays";
}

TEST_F(ServiceTest, SuccessRemovesTheBackupsUpToTheOneThatWasMade) {
  Write(std::string(kApp) + "/old", "old");
  Write(std::string(kApp) + "_tmp/stale", "");
  Write(std::string(kApp) + "_tmp1/stale", "");
  Write(std::string(kApp) + "_tmp3/later", "");
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_TRUE(fs::exists(Path(kApp) + "/new"));
  for (const char* name : {"/old", "_tmp", "_tmp1", "_tmp2"}) EXPECT_FALSE(fs::exists(Path(kApp) + name)) << name;
  EXPECT_TRUE(fs::exists(Path(kApp) + "_tmp3/later"));
}

TEST_F(ServiceTest, OnlyTheOneProcessOfThePidFileIsSignalled) {
  const std::string own = std::to_string(getpid());
  const struct {
    std::string text;
    pid_t signalled;  // 0: none
    const char* line;
  } cases[] = {
      {"pid=1234", 1234, ""},
      {"pid = \"1234\" # the client\r\n", 1234, ""},
      {"", 0, ""},
      {"pid=\"\"\n", 0, ""},
      {"pid=0\n", 0, "[NOTE] mac/mac-service("},
      {"pid=-1\n", 0, "names no process to stop: '-1'\n"},
      {"pid=4294967295\n", 0, "names no process to stop: '4294967295'\n"},
      {"pid=4294968530\n", 0, "names no process to stop: '4294968530'\n"},
      {"pid=99999999999999999999\n", 0, "names no process"},
      {"pid=abc\n", 0, "names no process"},
      {"pid=" + own + "\n", 0, "names no process"},
      {"pid=1 2\n", 0, "Failed to read pid file '"},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(row.text);
    Write(".Lumivo/ui.pid", row.text);
    signals_sent.clear();
    service.StopService();
    if (row.signalled == 0) {
      EXPECT_TRUE(signals_sent.empty());
    } else {
      EXPECT_EQ(signals_sent, (std::vector<std::pair<pid_t, int>>{{row.signalled, SIGTERM}}));
    }
    EXPECT_TRUE(home.Logged(row.line)) << home.Log();
  }
}

TEST_F(ServiceTest, CopiesTreesAndReportsWhatItCannotCopy) {
  Write("from/a/b/f", "data");
  Write("from/g", "");
  EXPECT_EQ(service.FSCopyPath(Path("from"), Path("to")), 0);
  EXPECT_EQ(ReadFile(Path("to/a/b/f")), "data");
  EXPECT_TRUE(fs::exists(Path("to/g")));

  EXPECT_EQ(service.FSCopyPath(Path("none"), Path("to2")), -1);
  EXPECT_TRUE(home.Logged("FSCopyPath: source path '" + Path("none") + "' does not exist\n"));
  EXPECT_EQ(service.FSCopyPath(Path("from/g"), Path("no/such/folder")), -1);
  fs::create_symlink("nowhere", Path("from/a/dangling"));
  EXPECT_EQ(service.FSCopyPath(Path("from"), Path("to3")), -1);
  EXPECT_TRUE(home.Logged("FSCopyPath: failed to copy from '" + Path("from/a/dangling")));
}

}  // namespace
