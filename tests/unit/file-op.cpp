#include "file/file-op.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include "log.h"
#include "support/temp-dir.h"
#include "support/tree.h"

namespace {

namespace fs = std::filesystem;

// Each test runs in its own folder, "~" in the rows. What becomes of failing calls is another
// program's matter.
struct FileOp : ::testing::Test {
  FileOp() {
    WriteFile(logs_ / "levels", "file_op_debug=7\n");
    EXPECT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, logs_ / "log", logs_ / "levels", 50));
    log_.open(logs_ / "log");
    fs::current_path(dir_.path);
  }
  ~FileOp() override { Logger::Destroy(); }

  // Calls `function` with both texts of each row, "a b= result LEVEL: line LEVEL: line > b": what
  // it returns and logs, less where `GetFileInfo` tells a path, and at the end what became of b.
  // "-" is an empty text.
  template <typename Function>
  void Check(Function function, std::string rows) {
    for (size_t at; (at = rows.find('~')) != rows.npos;) rows.replace(at, 1, dir_.path);
    std::istringstream stream(rows);
    for (std::string row; std::getline(stream >> std::ws, row, ';');) {
      std::string first, second, line;
      std::istringstream(row.substr(0, row.find("= "))) >> first >> second;
      ustring a(first == "-" ? "" : first), b(second);
      std::string result = std::to_string(function(a, b));
      for (log_.clear(); std::getline(log_, line);) {
        if (line.find("path = [") != line.npos) continue;
        result +=
            " " + line.substr(17, line.find("] file-op(") - 17) + line.substr(line.find("): ") + 1);
      }
      EXPECT_EQ(row.substr(row.find("= ") + 2), result + (b == second ? "" : " > " + b).c_str())
          << row;
    }
  }

  const TempDir logs_, dir_;
  std::ifstream log_;
  _FILE_INFO_tag info_;
};

TEST_F(FileOp, InfoAndEntriesTellTypeSizeTimeAndSpelling) {
  BuildTree(
      ".", "real real/f=four real/s real/l>f way>real gone>nowhere \u00e9=e e\u0301d e\u0301d/f=x");
  ASSERT_TRUE(mkfifo("fifo", 0600) == 0 && chmod("real/f", 0640) == 0);
  ASSERT_TRUE(FSUTime("real/f", 1, 2000000000) == 0 && FSUTime("real/l", 3, 4) == 0)
      << "a link has its own times";
  const auto info = [this](auto& a, auto& b) {
    return GetFileInfo(a, info_) != 0 ? -1 : (b = info_.path, info_.type);
  };
  Check(info,
        "real/f= 1 > ~/real/f;way/= 2 > ~/real;way= 3 > ~/way;gone= 3 > ~/gone;fifo= 6 > "
        "~/fifo;/dev= 2 > /dev;"
        "/dev/null= 5 > /dev/null;/= 2 > /;.= 2 > ~;real/..= 2 > ~;e\u0301d/f= 1 > "
        "~/\u00e9d/f;way/f= 1 > ~/real/f");
  EXPECT_TRUE(info_.size == 4 && info_.mtime == 2000000000 && info_.mode == 0100640 &&
              info_.name == "f");
  Check([](auto& a, auto& b) { return IsFileExist(a, b == "exact"); },
        "~/e\u0301= 1;~/e\u0301 exact= 1;~/way exact= 1;~/way/f= 1;~/way/f exact= 0;-= 0;none= "
        "0;real/f/x= 0");
  _FILE_INFO_tag other = info_;
  EXPECT_TRUE(GetFileInfo("real/f/x", other) == -1 && FSStat("", other, false) == -1 &&
              other == info_);
  EXPECT_TRUE(FSStat("none", other, false) == 0 && !other.exist && other.size == 4)
      << "only `exist` is set";
  EXPECT_TRUE(GetFileInfo("none", other) == 0 && other.size == 0 && other.path == "none" &&
              other != info_);

  const auto read = [](ustring& path, ustring& found) {
    DIR_HANDLE handle;
    DIR_ENTRY entry;
    EXPECT_EQ(0, FSOpenDir(FSParentPath(path), found == "info", handle));
    while (FSReadDir(handle, entry) == 1 && entry.name != FSBaseName(path)) continue;
    FSCloseDir(handle);
    return found = std::to_string(entry.size) + "@" + std::to_string(entry.mtime), entry.type;
  };
  Check(
      read,
      R"(~/real/f info= 1 > 4@2000000000;~/real/f= 1 > 0@0;~/real/l info= 3 > 1@4;~/real/s= 2 > 0@0;
        ~/real/..= 2 > 0@0;~/way/f info= 1 > 0@0)");  // the last one is not spelled as the file
                                                      // system does
}

TEST_F(FileOp, FoldersAreMadeOrWhatIsInTheWayIsReported) {
  BuildTree(".", "d f=x way>d tofile>f");
  umask(027);
  const auto along = [](ustring& a, ustring& b) {
    char* stop = nullptr;
    const int result =
        FSMKDirP(a, &stop, b[0] == '+', static_cast<uint16_t>(std::stoul(b.c_str(), nullptr, 8)));
    return b = std::to_string(a.c_str() + a.length() - stop), result;
  };
  Check(along, R"(a//m/ 777= 0 > 1;way/n 700= 0 > 0;way/n +777= 0 > 0;tofile/r +755= 0 > 0;
        f/p/q 777= -1 INFO: FSMKDirP: path: f is symbolic link pointed to folder > 2;~/a/b/c 177777= 0 > 0;
        f 777= -1 INFO: FSMKDirP: path: f is existing file or symbolic link pointed to file > 0)");
  const auto mode = [](const char* path) {
    return static_cast<unsigned>(fs::status(path).permissions());
  };
  EXPECT_TRUE(mode("a/b") == 0750 && mode("a/m") == 0777 && mode("d/n") == 0700 &&
              mode("tofile/r") == 0755);
  Check([](auto& a, auto& b) { return FSMKDir(a, b == "parents"); },
        R"(-= -1;d= 0;d/x/y= -2;d/1/2 parents= 0;
        f/x= -1 ERROR: FSMKDir: Failed to to file info 'f/x';
        way= -1 ERROR: FSMKDir: Create a folder but local file system is not directory 'way' (3))");
  Check(FSMKDirFromRoot,
        R"(d d//m= 0 DEBUG: FSMKDirFromRoot: create / DEBUG: FSMKDirFromRoot: create //m;
        no no/x/y= -1 DEBUG: FSMKDirFromRoot: create /x;a ab= -1 ERROR: root 'a' is not a parent folder of target 'ab';
        ab a= -1 ERROR: Giving a root 'ab' whose length is larger then target's 'a'.)");
  EXPECT_EQ("a/ a/b/ a/b/c/ a/m/ d/ d/1/ d/1/2/ d/m/ d/n/ f=x tofile/ tofile/r/ way>d",
            ListTree("."));
  EXPECT_EQ(EEXIST, FSMKDirP("f", nullptr, false, 0777) == -1 ? errno : 0);
}

TEST_F(FileOp, CopyAndRenameMoveWithinAndAcrossFileSystems) {
  BuildTree(".", "f=abc to=longer-than-some d d/f=x same>f way>d old=o");
  const auto copy = [](auto& a, auto& b) { return FSCopy(a, b, b[0] == '/'); };
  Check(copy, R"(f to= 0;no to= -1 ERROR: CopyFile: open(no): No such file or directory (2);
        f d= -1 ERROR: CopyFile: open(d): Is a directory (21);d new= -1 ERROR: CopyFile: read: Is a directory (21);
        f same= -1 ERROR: CopyFile: open(same): Invalid argument (22);f /dev/null= 0)");
  const auto move = [](auto& a, auto& b) {
    return FSRename(a, b, a.c_str()[0] == '/');
  };  // absolute ones exactly
  Check(move, "- x= -1;d= -1;~/way/f x= -2;d d/in= -3;way/f old= 0;way m= 0;d " +
                  std::string(5000, 'x') + "= -100");
  EXPECT_EQ("d/ m>d new= old=x same>f to=abc", ListTree("."));

  const TempDir there(fs::exists("/dev/shm") ? "/dev/shm" : dir_.path);
  if (rename("old", (there / "old").c_str()) == 0) GTEST_SKIP() << "only one file system here";
  const std::string back = "back>" + dir_ / "a", over = "over>" + there.path;
  BuildTree(".", "t t/a=1 t/e t/s t/s/b=2 t/s/c= l l/f=x l/link>f " + over + " over/" + back);
  Check(move, R"(~/t over/t= 0;over/t/a a= 0;m over/way= 0;l over/l= -3;
        over/t/e a= -3 ERROR: FSMKDir: Create a folder but local file system is not directory 'a' (1);
        a over/back= -3 ERROR: CopyFile: open(over/back): Invalid argument (22))");
  EXPECT_EQ(back + " l/ l/f=x t/ t/e/ t/s/ t/s/b=2 t/s/c=", ListTree(there.path));
  EXPECT_EQ("a=1 d/ l/ l/link>f m>d new= old=x " + over + " same>f to=abc", ListTree("."));
}

TEST_F(FileOp, RemoveTakesTheTreeFollowsNoLinkAndStopsAtWhatItCannotOpen) {
  BuildTree(".",
            "out out/keep=k way>out way2>out f=x t t/gone>no t/s t/s/up>../../out t/e\u0301 "
            "t/e\u0301/\xff=x");
  std::string deep = "t";
  for (int depth = 0; depth < 25; ++depth)
    BuildTree(".", (deep += "/n") + "/a/sub " + deep + "/z/sub");
  const auto lowest = static_cast<rlim_t>(dup(0));  // the first descriptor that is free
  close(static_cast<int>(lowest));
  const auto remove = [lowest](ustring& path, ustring& descriptors) {
    const rlimit few = {lowest + std::stoul(descriptors.c_str()), 1024};
    return setrlimit(RLIMIT_NOFILE, &few) != 0 ? -9 : FSRemove(path, false);
  };
  Check(remove, R"(t/ 20= 0;way 0= 0;way2/ 0= 0;f 0= 0;no 0= 0;- 0= -1;out/keep/x 0= -1;
        out 0= 0 ERROR: FSOpenDir: Failed to open directory 'out'. Too many open files;no 500= 0)");
  EXPECT_EQ("out/ out/keep=k", ListTree("."));
  const std::string log = ReadFile(logs_ / "log");
  for (const std::string name : {"t/s", "t/s/up", "t/gone", "t/\u00e9"}) {
    EXPECT_NE(log.npos, log.find("): Input file path = [" + name + "].\n")) << log;
    EXPECT_NE(log.npos, log.find("): FSRefMakePath outTargetPath path = [" + dir_ / name + "].\n"))
        << log;
  }
}

TEST_F(FileOp, InfoKeepsANameThatIsNotWellFormed) {
  const std::string path = dir_ / "\xff";
  WriteFile(path, "");
  EXPECT_EQ(GetFileInfo(path, info_), 0);
  EXPECT_EQ(info_.path, path);
  EXPECT_EQ(info_.name, "\xff");
}

TEST_F(FileOp, FoldersMadeAtTheSameTimeLeaveTheUmaskAsItWas) {
  BuildTree(".", "d");
  umask(027);
  const auto makeFolders = [] {
    for (int round = 0; round < 20000; ++round) FSMKDirP("d", nullptr, false, 0777);
  };
  std::thread other(makeFolders);
  makeFolders();
  other.join();
  EXPECT_EQ(umask(027), mode_t{027});
}

constexpr int kNoChroot = 77;

// Removes `path` in a process whose root is `root`, and ends it with the result, less its sign.
[[noreturn]] void RemoveWithinRoot(const std::string& root, const char* path) {
  const bool mayChroot = geteuid() == 0 || unshare(CLONE_NEWUSER) == 0;
  if (!mayChroot || chroot(root.c_str()) != 0 || chdir("/") != 0) _exit(kNoChroot);
  // Never go on in a root that is not the test's own.
  if (access("/d/f", F_OK) != 0 || access("/etc", F_OK) == 0) _exit(kNoChroot);
  _exit(-FSRemove(path, false));
}

TEST_F(FileOp, RemoveRefusesTheRootByEveryName) {
  BuildTree(".", "d d/f=x all>/");
  struct Row {
    const char* path;
    int result;
  };
  const Row rows[] = {
      {"/", 3},     {"//", 3},    {"/.", 3},  {"/./", 3},   {".", 3},
      {"/d/..", 3}, {"d/../", 3}, {"/..", 3}, {"all/.", 3}, {"all/", 0},  // a link to it can go
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.path);
    const pid_t child = fork();
    if (child == 0) RemoveWithinRoot(dir_.path, row.path);
    int status = 0;
    waitpid(child, &status, 0);
    if (WEXITSTATUS(status) == kNoChroot) GTEST_SKIP() << "this user may not change the root";
    EXPECT_EQ(WEXITSTATUS(status), row.result);
    EXPECT_EQ(ReadFile("d/f"), "x");
  }
  EXPECT_EQ(ListTree("."), "d/ d/f=x");
}

TEST_F(FileOp, SmallHelpersActOnThePathItselfOrSayWhyNot) {
  const std::string text(1023, 'l');
  BuildTree(".", "d d/f=x way>d way2>d/f long>" + text + " more>l" + text);
  Check([](auto& a, auto& b) { return b = FSParentPath(a) + "," + FSBaseName(a), 0; },
        "/a/b= 0 > /a,b;/a/b/= 0 > /a/b,;a= 0 > /,a;/a= 0 > /,a;/= 0 > /,");
  Check(FSIsParentFolder, "/a /a= 1;/a /a/b= 1;/a /ab= 0;/a/b /a= 0");
  Check([](auto& a, auto& b) { return b = a, FSGetRealPath(b); },
        R"(no/x= -1 DEBUG:  org path [no/x] > no/x;
        way/../way2= 0 DEBUG:  org path [way/../way2] DEBUG:  get full path [~/d/f] > ~/d/f)");
  Check(FSCreateSymbolicLink, R"(nowhere made= 0;
        t d= -1 ERROR: FSCreateSymbolicLink: Failed to create symbolic link 't' -> 'd' (code: 17, msg: File exists))");
  Check([](auto& a, auto&) { return FSChown(a, geteuid(), getegid()); }, R"(made= 0;
        no= -1 ERROR: FSChown: Failed to chown 'no' (code: 2, msg: No such file or directory))");
  Check(FSReadSymbolicLink, "long= 0 > " + text + R"(;
        more= -1 ERROR: FSReadSymbolicLink: Failed to read symbolic link 'more' (code: 36, msg: File name too long))");
  Check([](auto& a, auto&) { return isFileLocked(a, X_OK) - hasFilePermission(a, X_OK); },
        "d/f= 1;no= -1");
  Check([](auto& a, auto& b) { return b == "fat" ? IsMSDOS(a) : isMountPoint(a); },
        R"(/dev= 0;/dev fat= 0;
        no= 0 ERROR: isMountPoint: Failed to get file system info 'no'. No such file or directory;
        no fat= 0 ERROR: IsSupportLargeFile: Failed to get file system info 'no'. No such file or directory)");
  Check(FSMktemp, "no= -1 ERROR: mkstemp(no/XXXXXX): No such file or directory");
  EXPECT_TRUE(FSMktemp("d", info_.path) == 0 && GetFileInfo(info_.path, info_) == 0 &&
              info_.mode == 0100644);
  EXPECT_EQ(-1, FSMktemp("d" + std::string(4088, '/') + "XXXXXX/too-long", info_.path))
      << "nothing in another folder";
}

}  // namespace
