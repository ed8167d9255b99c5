#include "file/file-op.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include "log.h"
#include "owners.h"
#include "support/temp-dir.h"
#include "support/tree.h"

namespace {

namespace fs = std::filesystem;

// Each test runs in a folder of its own. Failing system calls are covered by the sweep.
struct FileOp : testing::Test {
  FileOp() {
    WriteFile(logs_ / "levels", "file_op_debug=7\n");
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, logs_ / "log", logs_ / "levels", 50), 0);
    log_.open(logs_ / "log");
    fs::current_path(dir_.path);
  }
  ~FileOp() override {
    Logger::Destroy();
    umask(umask_);
  }

  // The lines logged since the last call, "[LEVEL] text". The two lines in which GetFileInfo traces
  // every path are left out.
  std::string NewLines() {
    std::string lines;
    log_.clear();
    for (std::string line; std::getline(log_, line);) {
      if (line.find(" path = [") != std::string::npos) continue;
      const size_t level = line.find('[');
      const size_t unit = line.find(" file-op(");
      lines += line.substr(level, unit - level) + line.substr(line.find("):") + 2) + "\n";
    }
    return lines;
  }

  // An operation on one or two paths: what it returns and logs.
  struct Row {
    std::string path;
    std::string other;
    int result;
    std::string logged = "";
  };

  template <typename Operation>
  void Check(Operation operation, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      SCOPED_TRACE(row.path + ", " + row.other);
      EXPECT_EQ(operation(row.path, row.other), row.result);
      EXPECT_EQ(NewLines(), row.logged);
    }
  }

  const TempDir logs_;
  const TempDir dir_;
  const mode_t umask_ = umask(027);
  std::ifstream log_;
};

unsigned ModeOf(const std::string& path) {
  return static_cast<unsigned>(fs::status(path).permissions());
}

// The entry of `path` in its folder.
DIR_ENTRY EntryOf(const ustring& path, int flags) {
  DIR_HANDLE handle;
  DIR_ENTRY entry;
  EXPECT_EQ(FSOpenDir(FSParentPath(path), flags, handle), 0);
  while (FSReadDir(handle, entry) == 1 && entry.name != FSBaseName(path)) continue;
  EXPECT_EQ(entry.name, FSBaseName(path));
  FSCloseDir(handle);
  EXPECT_EQ(handle.path, "");
  EXPECT_EQ(handle.dir, nullptr);
  return entry;
}

TEST_F(FileOp, InfoAndEntriesTellTypeSizeTimeAndSpelling) {
  MakeTree(".", {{"real/f", "file: four"},
                 {"way", "link: real"},
                 {"e\u0301/f", "file: "},
                 {"\u00e9/f", "file: "}});
  ASSERT_EQ(mkfifo("fifo", 0600), 0);
  ASSERT_EQ(mknod("socket", S_IFSOCK | 0600, 0), 0);
  ASSERT_EQ(chmod("real/f", 0640), 0);
  ASSERT_EQ(FSUTime("real/f", 1, 2000000000), 0);
  ASSERT_EQ(FSUTime("way", 3, 4), 0) << "a link has its own times";
  struct Info {
    const char* path;
    int type;
    std::string spelling;
  };
  const Info rows[] = {
      {"way", FILE_TYPE_LINK, dir_ / "way"},
      {"way/", FILE_TYPE_FOLDER, dir_ / "real"},
      {"fifo", FILE_TYPE_FIFO, dir_ / "fifo"},
      {"socket", FILE_TYPE_SOCKET, dir_ / "socket"},
      {"/dev/null", FILE_TYPE_DEVICE, "/dev/null"},
      {".", FILE_TYPE_FOLDER, dir_.path},
      {"real/..", FILE_TYPE_FOLDER, dir_.path},
      {"e\u0301/f", FILE_TYPE_REGULAR, dir_ / "\u00e9/f"},
      {"way/f", FILE_TYPE_REGULAR, dir_ / "real/f"},
  };
  _FILE_INFO_tag info;
  for (const Info& row : rows) {
    SCOPED_TRACE(row.path);
    EXPECT_EQ(GetFileInfo(row.path, info), 0);
    EXPECT_TRUE(info.exist);
    EXPECT_EQ(info.type, row.type);
    EXPECT_EQ(info.path, row.spelling);
    EXPECT_EQ(info.name, FSBaseName(row.spelling));
    const DIR_ENTRY entry = EntryOf(row.spelling, 1);
    EXPECT_EQ(entry.type, row.type);
    EXPECT_EQ(entry.size, info.size);
    EXPECT_EQ(entry.mtime, info.mtime);
  }
  EXPECT_EQ(info.size, 4);
  EXPECT_EQ(info.mtime, 2000000000);
  EXPECT_EQ(info.mode, 0100640U);
  EXPECT_EQ(EntryOf("way/f", 1).size, 0) << "not the file system's own spelling";
  EXPECT_EQ(EntryOf(dir_ / "real/f", 0).size, 0);
  EXPECT_EQ(EntryOf(dir_ / "real/f", 0).mtime, 0);
  EXPECT_EQ(GetFileInfo("/", info), 0);
  EXPECT_EQ(info.path, "/");
}

TEST_F(FileOp, InfoKeepsANameThatIsNotWellFormed) {
  WriteFile("\xff", "");
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo("\xff", info), 0);
  EXPECT_EQ(info.path, dir_ / "\xff");
  EXPECT_EQ(info.name, "\xff");
}

TEST_F(FileOp, InfoOfNothingSaysSoOrStaysAsItWas) {
  WriteFile("f", "four");
  _FILE_INFO_tag info;
  ASSERT_EQ(GetFileInfo("f", info), 0);
  const _FILE_INFO_tag before = info;
  EXPECT_EQ(GetFileInfo("f/x", info), -1);
  EXPECT_EQ(FSStat("", info, false), -1);
  EXPECT_TRUE(info == before);
  EXPECT_EQ(FSStat("none", info, false), 0);
  EXPECT_FALSE(info.exist);
  EXPECT_EQ(info.size, 4) << "only `exist` is set";
  EXPECT_EQ(GetFileInfo("none", info), 0);
  EXPECT_EQ(info.path, "none");
  EXPECT_EQ(info.size, 0);
}

TEST_F(FileOp, ExistenceIsOfTheComposedPathAndOnRequestOfThatSpellingOnly) {
  MakeTree(".", {{"real/f", "file: "}, {"way", "link: real"}, {"\u00e9", "folder"}});
  EXPECT_TRUE(IsFileExist("e\u0301", false));
  EXPECT_TRUE(IsFileExist("way/f", false));
  EXPECT_FALSE(IsFileExist("", false));
  EXPECT_FALSE(IsFileExist("real/f/x", false));
  EXPECT_TRUE(IsFileExist(dir_ / "e\u0301", true));
  EXPECT_TRUE(IsFileExist(dir_ / "way", true));
  EXPECT_FALSE(IsFileExist(dir_ / "way/f", true));
}

TEST_F(FileOp, MissingFoldersAreMadeAlongThePath) {
  MakeTree(".", {{"d", "folder"}, {"f", "file: x"}, {"way", "link: d"}, {"to-file", "link: f"}});
  constexpr unsigned short kByUmask = 0xFFFF;
  const std::string onTheWay = "[INFO] FSMKDirP: path: f is symbolic link pointed to folder\n";
  const std::string atTheEnd =
      "[INFO] FSMKDirP: path: f is existing file or symbolic link pointed to file\n";
  struct Walk {
    ustring path;
    bool replace;
    unsigned short mode;
    int result;
    std::string rest;  // of the path, from the place where the walk stopped
    std::string logged;
  };
  const Walk rows[] = {
      {"a//m/", false, 0777, 0, "/", ""},
      {"way/n", false, 0700, 0, "", ""},
      {"way/n", true, 0777, 0, "", ""},
      {"to-file/r", true, 0755, 0, "", ""},
      {"f/p/q", false, 0777, -1, "/q", onTheWay},
      {"f", false, 0777, -1, "", atTheEnd},
      {dir_ / "a/b/c", false, kByUmask, 0, "", ""},
  };
  for (const Walk& row : rows) {
    SCOPED_TRACE(row.path);
    char* stop = nullptr;
    EXPECT_EQ(FSMKDirP(row.path, &stop, row.replace, row.mode), row.result);
    EXPECT_EQ(stop, row.path.c_str() + row.path.length() - row.rest.length());
    EXPECT_EQ(NewLines(), row.logged);
  }
  EXPECT_EQ(ModeOf("a/m"), 0777U);
  EXPECT_EQ(ModeOf("d/n"), 0700U);
  EXPECT_EQ(ModeOf("to-file/r"), 0755U);
  EXPECT_EQ(ModeOf("a/b"), 0750U);
  EXPECT_EQ(umask(027), mode_t{027});
  errno = 0;
  EXPECT_EQ(FSMKDirP("f", nullptr, false, 0777), -1);
  EXPECT_EQ(errno, EEXIST);
  EXPECT_EQ(FSMKDirP("", nullptr, false, 0777), -1);
}

TEST_F(FileOp, FoldersMadeAtTheSameTimeLeaveTheUmaskAsItWas) {
  const auto makeFolder = [] {
    for (int round = 0; round < 20000; ++round) FSMKDirP("d", nullptr, false, 0777);
  };
  std::thread other(makeFolder);
  makeFolder();
  other.join();
  EXPECT_EQ(umask(027), mode_t{027});
}

TEST_F(FileOp, FoldersAreMadeOrWhatIsInTheWayIsReported) {
  MakeTree(".", {{"d", "folder"}, {"f", "file: x"}, {"way", "link: d"}});
  Check([](const ustring& path, const ustring&) { return FSMKDir(path, false); },
        {{"", "", -1},
         {"d", "", 0},
         {"d/x/y", "", -2},
         {"f/x", "", -1, "[ERROR] FSMKDir: Failed to to file info 'f/x'\n"},
         {"way", "", -1,
          "[ERROR] FSMKDir: Create a folder but local file system is not directory 'way' (3)\n"}});
  EXPECT_EQ(FSMKDir("d/1/2", true), 0);
  Check(
      FSMKDirFromRoot,
      {{"d", "d/m/n", 0,
        "[DEBUG] FSMKDirFromRoot: create /m\n[DEBUG] FSMKDirFromRoot: create /m/n\n"},
       {"no", "no/x/y", -1, "[DEBUG] FSMKDirFromRoot: create /x\n"},
       {"a", "ab", -1, "[ERROR] root 'a' is not a parent folder of target 'ab'\n"},
       {"ab", "a", -1, "[ERROR] Giving a root 'ab' whose length is larger then target's 'a'.\n"}});
  EXPECT_TRUE(fs::is_directory("d/1/2"));
  EXPECT_TRUE(fs::is_directory("d/m/n"));
}

TEST_F(FileOp, CopyOverwritesWhatIsThereButNotItsOwnSource) {
  const Tree before = {{"d", "folder"}, {"f", "file: abc"}, {"same", "link: f"}};
  MakeTree(".", before);
  WriteFile("to", "longer than some");
  Check([](const ustring& from, const ustring& to) { return FSCopy(from, to, false); },
        {{"f", "to", 0},
         {"f", "/dev/null", 0},
         {"no", "x", -1, "[ERROR] CopyFile: open(no): No such file or directory (2)\n"},
         {"f", "d", -1, "[ERROR] CopyFile: open(d): Is a directory (21)\n"},
         {"d", "new", -1, "[ERROR] CopyFile: read: Is a directory (21)\n"},
         {"f", "same", -1, "[ERROR] CopyFile: open(same): Invalid argument (22)\n"}});
  Tree after = before;
  after["to"] = "file: abc";
  after["new"] = "file: ";
  EXPECT_EQ(TreeOf("."), after);
}

TEST_F(FileOp, CopyOpensNothingThatAStartedProgramInherits) {
  ASSERT_EQ(mkfifo("pipe", 0600), 0);
  auto copy = std::async(std::launch::async, [] { return FSCopy("pipe", "to", false); });
  const Descriptor writer(open("pipe", O_WRONLY | O_CLOEXEC));  // waits for the copy to open it
  const std::chrono::milliseconds moment(1);
  while (!fs::exists("to") && copy.wait_for(moment) == std::future_status::timeout) continue;
  EXPECT_EQ(CountInherited(dir_ / "pipe"), 0);
  EXPECT_EQ(CountInherited(dir_ / "to"), 0);
}

TEST_F(FileOp, RenameMovesWithinAFileSystem) {
  MakeTree(".", {{"d/f", "file: x"}, {"old", "file: o"}, {"way", "link: d"}});
  EXPECT_EQ(FSRename(dir_ / "way/f", "x", true), -2) << "spelled in another way";
  Check([](const ustring& from, const ustring& to) { return FSRename(from, to, false); },
        {{"", "x", -1},
         {"d", "", -1},
         {"no", "x", -2},
         {"d", "d/in", -3},
         {"d", std::string(5000, 'x'), -100},
         {"way/f", "old", 0},
         {"way", "moved", 0}});
  EXPECT_EQ(TreeOf("."), (Tree{{"d", "folder"}, {"old", "file: x"}, {"moved", "link: d"}}));
}

TEST_F(FileOp, RenameAcrossFileSystemsMovesAllButLinks) {
  const TempDir there(fs::exists("/dev/shm") ? "/dev/shm" : dir_.path);
  WriteFile("probe", "");
  if (rename("probe", (there / "probe").c_str()) == 0) GTEST_SKIP() << "only one file system here";
  fs::remove("probe");
  const Tree links = {{"l", "folder"}, {"l/link", "link: f"}, {"m", "link: l"}};
  MakeTree(".", links);
  MakeTree(".", {{"t/a", "file: 1"}, {"t/empty", "folder"}, {"t/sub/b", "file: 2"}});
  MakeTree(there.path, {{"back", "link: " + dir_ / "a"}});
  Check([](const ustring& from, const ustring& to) { return FSRename(from, to, false); },
        {{"t", there / "t", 0},
         {there / "t/a", "a", 0},
         {"m", there / "m", 0},   // stays, with success
         {"l", there / "l", -3},  // its link stays, and so does the folder
         {there / "t/empty", "a", -3,
          "[ERROR] FSMKDir: Create a folder but local file system is not directory 'a' (1)\n"},
         {"a", there / "back", -3,
          "[ERROR] CopyFile: open(" + there / "back" + "): Invalid argument (22)\n"}});
  Tree here = links;
  here["a"] = "file: 1";
  EXPECT_EQ(TreeOf("."), here);
  EXPECT_EQ(TreeOf(there.path), (Tree{{"back", "link: " + dir_ / "a"},
                                      {"l", "folder"},
                                      {"t", "folder"},
                                      {"t/empty", "folder"},
                                      {"t/sub", "folder"},
                                      {"t/sub/b", "file: 2"}}));
}

TEST_F(FileOp, RemoveTakesWholeTreesAndFollowsNoLink) {
  const Tree outside = {{"out", "folder"}, {"out/keep", "file: k"}};
  MakeTree(".", outside);
  MakeTree(".", {{"way", "link: out"},
                 {"way2", "link: out"},
                 {"f", "file: x"},
                 {"t/dangling", "link: no"},
                 {"t/sub/up", "link: ../../out"},
                 {"t/e\u0301/\xff", "file: x"}});
  for (const char* path : {"t/", "way", "way2/", "f", "no"}) {
    EXPECT_EQ(FSRemove(path, false), 0) << path;
  }
  EXPECT_EQ(FSRemove("", false), -1);
  EXPECT_EQ(FSRemove("out/keep/x", false), -1);
  EXPECT_EQ(TreeOf("."), outside);
  const std::string log = ReadFile(logs_ / "log");
  for (const std::string name : {"t/sub", "t/sub/up", "t/dangling", "t/\u00e9"}) {
    EXPECT_NE(log.find("): Input file path = [" + name + "].\n"), log.npos) << log;
    EXPECT_NE(log.find("): FSRefMakePath outTargetPath path = [" + dir_ / name + "].\n"), log.npos)
        << log;
  }
}

TEST_F(FileOp, RemoveTakesTreesThatAreDeeperThanDescriptorsAllow) {
  std::string deep = "t";
  for (int depth = 0; depth < 25; ++depth) {
    deep += "/n";
    MakeTree(".", {{deep + "/a/sub", "folder"}, {deep + "/z/sub", "folder"}});
  }
  const int lowest = dup(0);
  close(lowest);
  rlimit before;
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
  const rlimit few = {static_cast<rlim_t>(lowest) + 20, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
  EXPECT_EQ(FSRemove("t", false), 0);
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
  EXPECT_EQ(TreeOf("."), Tree());
}

constexpr int kNoOwnRoot = 77;

// Removes `path` in a process whose root is `root`, and ends it with the result, less its sign.
[[noreturn]] void RemoveWithinRoot(const std::string& root, const char* path) {
  const bool mayChroot = geteuid() == 0 || unshare(CLONE_NEWUSER) == 0;
  if (!mayChroot || chroot(root.c_str()) != 0 || chdir("/") != 0) _exit(kNoOwnRoot);
  // Never go on in a root that is not the test's own.
  if (access("/d/f", F_OK) != 0 || access("/etc", F_OK) == 0) _exit(kNoOwnRoot);
  _exit(-FSRemove(path, false));
}

TEST_F(FileOp, RemoveRefusesTheRootByEveryName) {
  const Tree content = {{"d", "folder"}, {"d/f", "file: x"}};
  MakeTree(".", content);
  MakeTree(".", {{"all", "link: /"}});
  const auto remove = [this](const char* path) {
    const pid_t child = fork();
    if (child == 0) RemoveWithinRoot(dir_.path, path);
    int status = 0;
    waitpid(child, &status, 0);
    return -WEXITSTATUS(status);
  };
  if (remove("/") == -kNoOwnRoot) GTEST_SKIP() << "this user may not change the root";
  for (const char* path : {"/", "//", "/.", "/./", ".", "/d/..", "d/../", "/..", "all/."}) {
    EXPECT_EQ(remove(path), -3) << path;
    EXPECT_EQ(ReadFile("d/f"), "x") << path;
  }
  EXPECT_EQ(remove("all/"), 0) << "the link itself can go";
  EXPECT_EQ(TreeOf("."), content);
}

TEST(FilePaths, AreCutAtTheLastSlash) {
  EXPECT_EQ(FSParentPath("/a/b/"), "/a/b");
  EXPECT_EQ(FSParentPath("/a"), "/");
  EXPECT_EQ(FSParentPath("a"), "/");
  EXPECT_EQ(FSBaseName("/a/b"), "b");
  EXPECT_TRUE(FSIsParentFolder("/a", "/a"));
  EXPECT_TRUE(FSIsParentFolder("/a", "/a/b"));
  EXPECT_FALSE(FSIsParentFolder("/a", "/ab"));
  EXPECT_FALSE(FSIsParentFolder("/a/b", "/a"));
}

TEST_F(FileOp, LinksAreResolvedMadeAndReadOrTheReasonIsLogged) {
  const std::string longest(1023, 'l');
  MakeTree(".", {{"d/f", "file: x"},
                 {"way", "link: d"},
                 {"way2", "link: d/f"},
                 {"longest", "link: " + longest},
                 {"too-long", "link: l" + longest}});
  ustring text = "way/../way2";
  EXPECT_EQ(FSGetRealPath(text), 0);
  EXPECT_EQ(text, dir_ / "d/f");
  EXPECT_EQ(NewLines(),
            "[DEBUG]  org path [way/../way2]\n[DEBUG]  get full path [" + dir_ / "d/f" + "]\n");
  text = "no/x";
  EXPECT_EQ(FSGetRealPath(text), -1);
  EXPECT_EQ(text, "no/x");
  EXPECT_EQ(NewLines(), "[DEBUG]  org path [no/x]\n");

  EXPECT_EQ(FSReadSymbolicLink("longest", text), 0);
  EXPECT_EQ(text, longest);
  EXPECT_EQ(FSReadSymbolicLink("too-long", text), -1);
  EXPECT_EQ(errno, ENAMETOOLONG);
  EXPECT_EQ(text, longest);
  EXPECT_EQ(NewLines(),
            "[ERROR] FSReadSymbolicLink: Failed to read symbolic link 'too-long' "
            "(code: 36, msg: File name too long)\n");
  Check(FSCreateSymbolicLink,
        {{"nowhere", "made", 0},
         {"t", "d", -1,
          "[ERROR] FSCreateSymbolicLink: Failed to create symbolic link 't' -> 'd' "
          "(code: 17, msg: File exists)\n"}});
  EXPECT_EQ(FSChown("made", geteuid(), getegid()), 0) << "the link itself";
  EXPECT_EQ(FSChown("no", geteuid(), getegid()), -1);
  EXPECT_EQ(NewLines(),
            "[ERROR] FSChown: Failed to chown 'no' (code: 2, msg: No such file or directory)\n");
}

TEST_F(FileOp, OnlyForbiddenAccessLocksAFile) {
  WriteFile("f", "");
  EXPECT_TRUE(isFileLocked("f", X_OK));
  EXPECT_FALSE(hasFilePermission("f", X_OK));
  EXPECT_FALSE(isFileLocked("no", X_OK));
  EXPECT_TRUE(hasFilePermission("no", X_OK));
}

TEST_F(FileOp, FileSystemsAreToldOrTheReasonIsLogged) {
  EXPECT_FALSE(isMountPoint("/dev"));
  EXPECT_FALSE(IsMSDOS("/dev"));
  EXPECT_EQ(NewLines(), "");
  EXPECT_FALSE(isMountPoint("no"));
  EXPECT_FALSE(IsMSDOS("no"));
  const std::string what = "Failed to get file system info 'no'. No such file or directory\n";
  EXPECT_EQ(NewLines(), "[ERROR] isMountPoint: " + what + "[ERROR] IsSupportLargeFile: " + what);
}

TEST_F(FileOp, TemporaryFilesAreNewAndNowhereElse) {
  MakeTree(".", {{"d", "folder"}});
  ustring path;
  EXPECT_EQ(FSMktemp("d", path), 0);
  EXPECT_EQ(FSParentPath(path), "d");
  EXPECT_EQ(ModeOf(path.c_str()), 0644U);
  EXPECT_EQ(FSMktemp("no", path), -1);
  EXPECT_EQ(NewLines(), "[ERROR] mkstemp(no/XXXXXX): No such file or directory\n");
  const std::string tooLong = "d" + std::string(4088, '/') + "XXXXXX/too-long";
  EXPECT_EQ(FSMktemp(tooLong, path), -1) << "cut, it would name a file in `d`";
  EXPECT_EQ(TreeOf("d").size(), 1U);

  EXPECT_EQ(FSCreateTempPath("d", path), 0);
  EXPECT_EQ(path.length(), std::string("d/").size() + 8);
}

}  // namespace
