#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>
#include <vector>

#include "mac/mac-service.h"
#include "support/test-home.h"
#include "support/tree.h"

using Signals = std::vector<std::pair<pid_t, int>>;
static Signals signals_sent;

// Nothing that a test writes into a pid file may reach a real process.
extern "C" int kill(pid_t pid, int signal) noexcept {
  signals_sent.emplace_back(pid, signal);
  errno = ESRCH;
  return -1;
}

namespace {

// The service with its package replaced: writes one file, and fails when the test says so.
class TestService : public MacService {
 public:
  int ExtractPackage() override {
    BuildTree(GetUserLumivoInstallPath().c_str(), "Lumivo.app/ Lumivo.app/new=");
    return result;
  }
  void LoadTargetVersion() override { targetVersion.build_version = target; }

  int result = 0;
  ustring target;
};

class ServiceTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return home.folder / (".Lumivo/" + name); }

  TestHome home;
  TestService service;
};

TEST_F(ServiceTest, OnlyANewerBuildOrAMissingExecutableNeedsThePackage) {
  const struct {
    const char* source;  // the installed version file
    const char* target;
    bool executable;
    bool needed;
  } rows[] = {
      {"[Version]\nbuild_version=3487\n", "3500", true, true},
      {"[Version]\nbuild_version=3487\n", "3487", true, false},
      {"[Version]\nbuild_version=3487\n", "999", true, false},
      {"[Version]\nbuild_version=3487\n", "3400", false, true},
      {"[Version]\nbuild_version=12abc\n", "12", true, false},
      {"[Version]\nbuild_version=-5\n", "", true, true},
      {"[Version]\nmajor_version=9\n[Other]\nbuild_version=9\n", "1", true, true},
      {nullptr, "", true, false},
      {nullptr, "", false, true},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.source ? row.source : "none") + " -> " + row.target);
    std::filesystem::remove_all(Path("Lumivo.app"));
    BuildTree(Path("Lumivo.app"), "Contents/MacOS/ Contents/Resources/");
    if (row.source) WriteFile(Path("Lumivo.app/Contents/Resources/INFO"), row.source);
    if (row.executable) WriteFile(Path("Lumivo.app/Contents/MacOS/lumivo-drive-ui"), "");
    TestService run;
    run.target = row.target;
    run.PreUpgrade();
    EXPECT_EQ(run.IsNeedUpgrade(), row.needed);
  }
}

// Success removes the backups up to the one that was made; a failure brings the old bundle back, if there was one.
TEST_F(ServiceTest, AReplacementLeavesOneWholeBundleAndNothingOfItsOwn) {
  const std::string old = "Lumivo.app/ Lumivo.app/old=", fresh = "Lumivo.app/ Lumivo.app/new=";
  const std::string stale = " Lumivo.app_tmp/ Lumivo.app_tmp/stale= Lumivo.app_tmp1=", later = " Lumivo.app_tmp3/";
  const struct {
    std::string before;
    int result;
    std::string after;
  } rows[] = {{old + stale + later, 0, fresh + later}, {old + stale, -7, old + stale}, {"", -7, fresh}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.before);
    std::filesystem::remove_all(Path(""));
    BuildTree(Path(""), "./ " + row.before);
    service.result = row.result;
    EXPECT_EQ(service.HandlePackageUpgrade(), row.result == 0 ? 0 : -1);
    EXPECT_EQ(ListTree(home.folder / ".Lumivo"), row.after);
  }
}

TEST_F(ServiceTest, OnlyTheOneProcessOfThePidFileIsSignalled) {
  const auto sent = [this](const std::string& text) {
    WriteFile(Path("ui.pid"), text);
    signals_sent.clear();
    service.StopService();
    return signals_sent;
  };
  const Signals one = {{1234, SIGTERM}};
  EXPECT_EQ(sent("pid=1234"), one);
  EXPECT_EQ(sent("pid = \"1234\" # the client\r\n"), one);
  for (const std::string& value : std::vector<std::string>{"0", "-1", "4294967295", "4294968530",
                                                           "99999999999999999999", "abc", std::to_string(getpid())}) {
    EXPECT_EQ(sent("pid=" + value + "\n"), Signals()) << value;
    EXPECT_TRUE(home.Logged("names no process to stop: '" + value + "'\n")) << value;
  }
  EXPECT_TRUE(home.Logged("[NOTE] mac/mac-service("));
  for (const char* text : {"", "pid=\"\"\n", "pid=1 2\n"}) EXPECT_EQ(sent(text), Signals()) << text;
  EXPECT_FALSE(home.Logged("to stop: ''"));
  EXPECT_TRUE(home.Logged("Failed to read pid file '"));
}

TEST_F(ServiceTest, CopiesTreesAndReportsWhatItCannotCopy) {
  BuildTree(Path("from"), "a/b/ a/b/f=data g=");
  EXPECT_EQ(service.FSCopyPath(Path("from"), Path("to")), 0);
  EXPECT_EQ(ListTree(Path("to")), "a/ a/b/ a/b/f=data g=");
  EXPECT_EQ(service.FSCopyPath(Path("none"), Path("to2")), -1);
  EXPECT_TRUE(home.Logged("FSCopyPath: source path '" + Path("none") + "' does not exist\n"));
  EXPECT_EQ(service.FSCopyPath(Path("from/g"), Path("no/such/folder")), -1);
  BuildTree(Path("from"), "a/dangling>nowhere");
  EXPECT_EQ(service.FSCopyPath(Path("from"), Path("to3")), -1);
  EXPECT_TRUE(home.Logged("FSCopyPath: failed to copy from '" + Path("from/a/dangling")));
}

}  // namespace
