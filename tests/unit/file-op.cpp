#include "file/file-op.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <future>
#include <string>
#include <vector>

#include "log.h"
#include "support/temp-dir.h"
#include "support/tree.h"

namespace {

namespace fs = std::filesystem;

// Each test runs in a folder of its own.
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
  while (FSReadDir(handle, entry) == 1 && entry.name != FSBaseName(path)) {
    continue;
  }
  EXPECT_EQ(entry.name, FSBaseName(path));
  FSCloseDir(handle);
  EXPECT_EQ(handle.dir, nullptr);
  EXPECT_EQ(handle.path, "");
  return entry;
}

TEST_F(FileOp, InfoAndEntriesTellTypeSizeTimeAndSpelling) {
  MakeTree(".", {{"real/f", "file: four"},
                 {"way", "link: real"},
                 {"e\u0301/f", "file: "},
                 {"\u00e9/f", "file: "},
                 {"\xff", "file: "}});
  ASSERT_EQ(mkfifo("fifo", 0600), 0);
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
  EXPECT_EQ(GetFileInfo("\xff", info), 0);
  EXPECT_EQ(info.path, dir_ / "\xff") << "kept, although it is not well-formed";
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
}

TEST_F(FileOp, ExistenceIsOfTheComposedPathAndOnRequestOfThatSpellingOnly) {
  MakeTree(".", {{"real/f", "file: "}, {"way", "link: real"}, {"\u00e9", "folder"}});
  EXPECT_TRUE(IsFileExist("e\u0301", false));
  EXPECT_TRUE(IsFileExist("way/f", false));
  EXPECT_TRUE(IsFileExist(dir_ / "e\u0301", true));
  EXPECT_TRUE(IsFileExist(dir_ / "way", true));
  EXPECT_FALSE(IsFileExist(dir_ / "way/f", true));
}

TEST_F(FileOp, MissingFoldersAreMadeAlongThePath) {
  MakeTree(".", {{"d", "folder"}, {"f", "file: x"}, {"way", "link: d"}, {"to-file", "link: f"}});
  const ustring blocked = "f/p/q";
  char* stop = nullptr;
  EXPECT_EQ(FSMKDirP(blocked, &stop, false, 0777), -1);
  EXPECT_STREQ(stop, "/q");
  EXPECT_EQ(FSMKDirP("f", nullptr, false, 0777), -1);
  EXPECT_EQ(NewLines(),
            "[INFO] FSMKDirP: path: f is symbolic link pointed to folder\n"
            "[INFO] FSMKDirP: path: f is existing file or symbolic link pointed to file\n");
  EXPECT_EQ(FSMKDirP("to-file/r", nullptr, true, 0755), 0);
  EXPECT_EQ(FSMKDirP("a//m/", nullptr, false, 0777), 0);
  EXPECT_EQ(ModeOf("a/m"), 0777U);
  EXPECT_EQ(FSMKDir(dir_ / "way/b/c", true), 0);
  EXPECT_EQ(ModeOf("d/b"), 0750U) << "less the umask, which is as it was";
}

TEST_F(FileOp, FoldersMadeAtTheSameTimeLeaveTheUmaskAsItWas) {
  const auto makeFolder = [] {
    for (int round = 0; round < 20000; ++round) {
      FSMKDirP("d", nullptr, false, 0777);
    }
  };
  const auto other = std::async(std::launch::async, makeFolder);
  makeFolder();
  other.wait();
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
  EXPECT_EQ(FSMKDirFromRoot("d", "d/m/n"), 0);
  EXPECT_TRUE(fs::is_directory("d/m/n"));
  EXPECT_EQ(FSMKDirFromRoot("d", "da"), -1);
}

TEST_F(FileOp, CopyOverwritesWhatIsThereButNotItsOwnSource) {
  const Tree before = {{"d", "folder"}, {"f", "file: abc"}, {"same", "link: f"}};
  MakeTree(".", before);
  WriteFile("to", "longer than some");
  Check([](const ustring& from, const ustring& to) { return FSCopy(from, to, false); },
        {{"f", "to", 0},
         {"f", "/dev/null", 0},
         {"f", "/dev/full", -2, "[ERROR] CopyFile: write: No space left on device (28)\n"},
         {"no", "x", -1, "[ERROR] CopyFile: open(no): No such file or directory (2)\n"},
         {"f", "d", -1, "[ERROR] CopyFile: open(d): Is a directory (21)\n"},
         {"f", "same", -1, "[ERROR] CopyFile: open(same): Invalid argument (22)\n"}});
  Tree after = before;
  after["to"] = "file: abc";
  EXPECT_EQ(TreeOf("."), after);
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

TEST_F(FileOp, RenameAcrossFileSystemsLeavesWhatItCannotMove) {
  const TempDir there(fs::exists("/dev/shm") ? "/dev/shm" : dir_.path);
  const Tree stays = {{"d", "folder"},
                      {"d/f", "file: x"},
                      {"l", "folder"},
                      {"l/link", "link: f"},
                      {"m", "link: l"}};
  MakeTree(".", stays);
  MakeTree(".", {{"t/s/f", "file: moved"}});
  MakeTree(there.path, {{"d/f/x", "file: in the way"}});
  if (rename("l", (there / "l").c_str()) == 0) GTEST_SKIP() << "only one file system here";
  EXPECT_EQ(FSRename("m", there / "m", false), 0);
  EXPECT_EQ(FSRename("t", there / "t", false), 0);
  EXPECT_EQ(FSRename("l", there / "l", false), -3) << "the folder stays with its link";
  EXPECT_EQ(FSRename("d", there / "d", false), -3) << "and with what could not be copied";
  EXPECT_EQ(TreeOf("."), stays);
  EXPECT_EQ(ReadFile(there / "t/s/f"), "moved");
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
  for (const std::string name : {"t/sub/up", "t/dangling", "t/\u00e9"}) {
    EXPECT_NE(log.find("FSRefMakePath outTargetPath path = [" + dir_ / name + "].\n"), log.npos);
  }
}

TEST_F(FileOp, RemoveTakesTreesThatAreDeeperThanDescriptorsAllow) {
  std::string deep = "t";
  for (int depth = 0; depth < 60; ++depth) {
    deep += "/n";
    MakeTree(".", {{deep + "/a/sub", "folder"}, {deep + "/z/sub", "folder"}});
  }
  rlimit before;
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
  const rlimit few = {50, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
  EXPECT_EQ(FSRemove("t", false), 0);
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
  EXPECT_EQ(TreeOf("."), Tree());
}

// Removes `path` in a process whose root is `root`, and ends it with the result, less its sign.
[[noreturn]] void RemoveWithinRoot(const std::string& root, const char* path) {
  if (chroot(root.c_str()) != 0 || chdir("/") != 0) abort();
  // Never go on in a root that is not the test's own.
  if (access("/d/f", F_OK) != 0 || access("/etc", F_OK) == 0) abort();
  _exit(-FSRemove(path, false));
}

TEST_F(FileOp, RemoveRefusesTheRootByEveryName) {
  if (geteuid() != 0) GTEST_SKIP() << "only the superuser may change the root";
  const Tree content = {{"d", "folder"}, {"d/f", "file: x"}};
  MakeTree(".", content);
  MakeTree(".", {{"all", "link: /"}});
  for (const char* path : {"/", "//", "/.", "/./", ".", "/d/..", "d/../", "/..", "all/."}) {
    EXPECT_EXIT(RemoveWithinRoot(dir_.path, path), testing::ExitedWithCode(3), "") << path;
  }
  EXPECT_EXIT(RemoveWithinRoot(dir_.path, "all/"), testing::ExitedWithCode(0), "") << "a link";
  EXPECT_EQ(TreeOf("."), content);
}

TEST_F(FileOp, LinksAreResolvedMadeAndRead) {
  MakeTree(".", {{"d/f", "file: x"}, {"way", "link: d"}, {"way2", "link: d/f"}});
  ustring text = "way/../way2";
  EXPECT_EQ(FSGetRealPath(text), 0);
  EXPECT_EQ(text, dir_ / "d/f");
  EXPECT_EQ(FSCreateSymbolicLink(std::string(1024, 'l'), "too-long"), 0);
  EXPECT_EQ(FSChown("too-long", geteuid(), getegid()), 0) << "the link itself";
  EXPECT_EQ(FSReadSymbolicLink("too-long", text), -1) << "cut, it would be another target";
}

TEST_F(FileOp, AccessAndFileSystemsAreTold) {
  WriteFile("f", "");
  EXPECT_TRUE(isFileLocked("f", X_OK));
  EXPECT_FALSE(isFileLocked("no", X_OK));
  EXPECT_TRUE(hasFilePermission("no", X_OK));
  EXPECT_FALSE(isMountPoint("f"));
  EXPECT_FALSE(IsMSDOS("f"));
  EXPECT_EQ(NewLines(), "");
}

TEST_F(FileOp, TemporaryFilesAreNewAndNowhereElse) {
  MakeTree(".", {{"d", "folder"}});
  ustring path;
  EXPECT_EQ(FSMktemp("d", path), 0);
  EXPECT_EQ(ModeOf(path.c_str()), 0644U);
  const std::string tooLong = "d" + std::string(4088, '/') + "XXXXXX/too-long";
  EXPECT_EQ(FSMktemp(tooLong, path), -1) << "cut, it would name a file in `d`";
  EXPECT_EQ(TreeOf("d").size(), 1U);
}

}  // namespace
