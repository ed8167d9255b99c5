#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "mac/mac-service.h"
#include "support/test-home.h"
#include "support/tree.h"

static std::string signals_sent;  // a SIGTERM to 1234 is "1234:15 "

// Nothing that a test writes into a pid file may reach a real process.
extern "C" int kill(pid_t pid, int signal) {
  signals_sent += std::to_string(pid) + ":" + std::to_string(signal) + " ";
  errno = ESRCH;
  return -1;
}

namespace {

// The service with a package of one file, or one that fails then.
struct TestService : MacService {
  int ExtractPackage() override {
    BuildTree(userAppPath.c_str(), ". new=");
    return result;
  }
  using MacService::targetVersion;
  int result = 0;
};

class ServiceTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return home.folder / (".Lumivo/" + name); }

  TestHome home;
  TestService service;
};

TEST_F(ServiceTest, OnlyANewerBuildNeedsThePackage) {
  BuildTree(Path("Lumivo.app"),
            "Contents/MacOS Contents/MacOS/lumivo-drive-ui= Contents/Resources");
  // The installed version file, the build of the package, and whether it is needed.
  const std::tuple<std::string, const char*, bool> rows[] = {
      {"[Version]\nbuild_version=3487\n", "999", false},
      {"[Version]\nbuild_version=12abc\n", "12", false},
      {"[Version]\nbuild_version=-5\n", "", true},
      {"[Version]\nmajor_version=9\n[Other]\nbuild_version=9\n", "1", true}};
  for (const auto& [installed, offered, needed] : rows) {
    WriteFile(Path("Lumivo.app/Contents/Resources/INFO"), installed);
    TestService run;
    run.targetVersion.build_version = offered;
    run.PreUpgrade();
    EXPECT_EQ(run.IsNeedUpgrade(), needed) << installed << " -> " << offered;
  }
}

TEST_F(ServiceTest, AReplacementLeavesOneWholeBundleAndNothingOfItsOwn) {
  BuildTree(Path(""), "Lumivo.app/old Lumivo.app_tmp/stale Lumivo.app_tmp1= Lumivo.app_tmp3");
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_EQ(ListTree(home.folder / ".Lumivo"), "Lumivo.app/ Lumivo.app/new= Lumivo.app_tmp3/");
  service.result = -7;
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_EQ(ListTree(home.folder / ".Lumivo"), "Lumivo.app/ Lumivo.app/new= Lumivo.app_tmp3/");
  for (const std::string number : {"", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
    BuildTree(Path("Lumivo.app_tmp" + number), "in/the/way");
  }
  const std::string before = ListTree(home.folder / ".Lumivo");
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_EQ(ListTree(home.folder / ".Lumivo"), before);
  EXPECT_TRUE(home.Logged("' at max retries, exiting\n"));
}

TEST_F(ServiceTest, OnlyTheOneProcessOfThePidFileIsSignalled) {
  const auto sent = [this](const std::string& text) {
    WriteFile(Path("ui.pid"), text);
    signals_sent.clear();
    service.StopService();
    return signals_sent;
  };
  const std::string own = std::to_string(getpid());
  EXPECT_EQ(sent("pid=1234"), "1234:15 ");
  EXPECT_EQ(sent("pid = \"1234\" # the client\r\n"), "1234:15 ");
  for (const std::string value :
       {"0", "-1", "4294967295", "4294968530", "99999999999999999999", "abc", own.c_str()}) {
    EXPECT_EQ(sent("pid=" + value + "\n"), "") << value;
    EXPECT_TRUE(home.Logged("names no process to stop: '" + value + "'\n")) << home.Log();
  }
  for (const char* text : {"", "pid=\"\"\n", "pid=1 2\n"}) EXPECT_EQ(sent(text), "") << text;
}

TEST_F(ServiceTest, CopiesTreesAndReportsWhatItCannotCopy) {
  BuildTree(Path("from"), "a/b a/b/f=data g=");
  EXPECT_EQ(service.FSCopyPath(Path("from"), Path("to")), 0);
  EXPECT_EQ(ListTree(Path("to")), "a/ a/b/ a/b/f=data g=");
  BuildTree(Path("from"), "a/dangling>nowhere");
  for (const char* from : {"none", "from/g", "from"})
    EXPECT_EQ(service.FSCopyPath(Path(from), Path("to/g/x")), -1);
  EXPECT_EQ(service.FSCopyPath(Path("from"), Path("to3")), -1);
}

}  // namespace
