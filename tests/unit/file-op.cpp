#include "file/file-op.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <type_traits>

#include "log.h"
#include "support/temp-dir.h"
#include "support/tree.h"

namespace {

namespace fs = std::filesystem;

// Each test runs in its own folder, "~" in the rows and lines.
struct FileOp : ::testing::Test {
  FileOp() {
    WriteFile(logs_ / "levels", "file_op_debug=7\n");
    EXPECT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, logs_ / "log", logs_ / "levels", 50));
    log_.open(logs_ / "log");
    fs::current_path(dir_.path);
    umask(027);
    descriptors_ = OpenDescriptors();
  }
  ~FileOp() override {
    EXPECT_EQ(descriptors_, OpenDescriptors()) << "a descriptor stayed open";
    EXPECT_EQ(027u, umask(022));
    fs::current_path("/");
    Logger::Destroy();
  }
  static rlim_t OpenDescriptors() { return static_cast<rlim_t>(std::distance(fs::directory_iterator("/dev/fd"), {})); }

  std::string Short(std::string text) const {
    for (size_t at; (at = text.find(dir_.path)) != text.npos;) text.replace(at, dir_.path.size(), "~");
    return text;
  }
  // The lines since the last call, " LEVEL: text"; without the ones of `GetFileInfo` unless asked for.
  std::string Logged(bool all = false) {
    std::string text;
    log_.clear();
    for (std::string line; std::getline(log_, line);) {
      if (!all && line.find("path = [") != line.npos) continue;
      text += " " + line.substr(17, line.find("] file-op(") - 17) + line.substr(line.find("): ") + 1);
    }
    return Short(text);
  }

  // Calls `function(path, path, more...)`, or with one path where it takes one. A row is "path path= result log", and
  // behind it " > " and what the function made of a path.
  template <typename Function, typename... More>
  void Check(Function function, const std::string& rows, More... more) {
    std::istringstream stream(rows);
    for (std::string row; std::getline(stream >> std::ws, row, ';');) {
      const size_t mark = row.find("= ");
      std::istringstream words(row.substr(0, mark));
      std::string first;
      std::string second;
      words >> first >> second;
      const ustring from[] = {first[0] == '~' ? dir_.path + first.substr(1) : first, second};
      ustring a = from[0];
      ustring b = from[1];
      int result = 0;
      if constexpr (std::is_invocable_v<Function, ustring&, ustring&, More...>) {
        result = function(a, b, more...);
      } else {
        result = function(a, more...);
      }
      const std::string did = std::to_string(result) + Logged();
      const bool found = a != from[0] || b != from[1];
      EXPECT_EQ(row.substr(mark + 2), did + (found ? " > " + Short((b != from[1] ? b : a).c_str()) : "")) << row;
    }
  }

  const TempDir logs_;
  const TempDir dir_;
  std::ifstream log_;
  rlim_t descriptors_ = 0;
  _FILE_INFO_tag info_;
};

TEST_F(FileOp, InfoTellsTypeAndSpellingAndEveryField) {
  BuildTree(".", "lost real real/f=four way>real gone>nowhere \u00e9=e e\u0301d e\u0301d/f=x");
  ASSERT_TRUE(mkfifo("fifo", 0600) == 0 && FSUTime("real/f", 1, 2000000000) == 0);
  const auto info = [this](auto& a, auto& b) { return GetFileInfo(a, info_) != 0 ? -1 : (b = info_.path, info_.type); };
  Check(info,
        R"(real/f= 1 > ~/real/f;real= 2 > ~/real;way/= 2 > ~/real;way= 3 > ~/way;gone= 3 > ~/gone;fifo= 6 > ~/fifo;
        /dev/null= 5 > /dev/null;/= 2 > /;.= 2 > ~;real/..= 2 > ~;way/f= 1 > ~/real/f)");
  EXPECT_TRUE(info_.size == 4 && info_.mtime == 2000000000 && info_.mode == 0100640 && info_.name == "f");
  Check(info, "e\u0301d/f= 1 > ~/\u00e9d/f");
  Check(IsFileExist, "~/e\u0301= 1;~/way/f= 1;= 0;none= 0;real/f/x= 0", false);
  Check(IsFileExist, "~/e\u0301= 1;~/way= 1;~/way/f= 0", true);
  _FILE_INFO_tag other = info_;
  EXPECT_TRUE(GetFileInfo("real/f/x", other) == -1 && other == info_) << "a file on the way";
  EXPECT_TRUE(FSStat("none", other, false) == 0 && !other.exist && other.size == 1) << "only `exist` is set";
  EXPECT_TRUE(GetFileInfo("none", other) == 0 && other.size == 0 && other.path == "none" && other != info_);
  EXPECT_EQ(-1, FSStat("", other, false));
  fs::current_path("lost");
  fs::remove(dir_ / "lost");
  Check(info, ".= -1 ERROR: FSPathMakeRef: 2");
}

TEST_F(FileOp, FoldersAreMadeOrWhatIsInTheWayIsReported) {
  BuildTree(".", "d f=x way>d tofile>f");
  const auto along = [](ustring& a, ustring& b) {
    char* stop = nullptr;
    const int result = FSMKDirP(a, &stop, b[0] == '+', static_cast<uint16_t>(std::stoul(b.c_str(), nullptr, 8)));
    b = std::to_string(a.c_str() + a.length() - stop);
    return result;
  };
  Check(along, R"(~/a/b/c 177777= 0 > 0;a//m/ 777= 0 > 1;way/n 700= 0 > 0;way/n +777= 0 > 0;tofile/r +755= 0 > 0;
        f/p/q 777= -1 INFO: FSMKDirP: path: f is symbolic link pointed to folder > 2;
        f 777= -1 INFO: FSMKDirP: path: f is existing file or symbolic link pointed to file > 0)");
  EXPECT_TRUE(FSMKDirP("f", nullptr, false, 0777) == -1 && errno == EEXIST);
  const auto mode = [](const char* path) { return static_cast<unsigned>(fs::status(path).permissions()); };
  EXPECT_TRUE(mode("a/b") == 0750 && mode("a/m") == 0777 && mode("d/n") == 0700 && mode("tofile/r") == 0755);
  Logged();
  Check(FSMKDir, "d= 0;d/x/y= -2", false);
  Check(FSMKDir, R"(= -1;d/1/2= 0;f/x= -1 ERROR: FSMKDir: Failed to to file info 'f/x';
        f= -1 ERROR: FSMKDir: Create a folder but local file system is not directory 'f' (1);
        way= -1 ERROR: FSMKDir: Create a folder but local file system is not directory 'way' (3))",
        true);
  Check(FSMKDirFromRoot, R"(d d//m= 0 DEBUG: FSMKDirFromRoot: create / DEBUG: FSMKDirFromRoot: create //m;
        no no/x/y= -1 DEBUG: FSMKDirFromRoot: create /x;a ab= -1 ERROR: root 'a' is not a parent folder of target 'ab';
        ab a= -1 ERROR: Giving a root 'ab' whose length is larger then target's 'a'.)");
  EXPECT_EQ("a/ a/b/ a/b/c/ a/m/ d/ d/1/ d/1/2/ d/m/ d/n/ f=x tofile/ tofile/r/ way>d", ListTree("."));
}

TEST_F(FileOp, CopyMovesEveryByteOrSaysWhyNot) {
  BuildTree(".", "from=abc to=longer-than-some e= d same>from");
  Check(FSCopy, "from to= 0;e made= 0", false);
  Check(FSCopy, R"(e made= 0;no to= -1 ERROR: CopyFile: open(no): No such file or directory (2);
        from d= -1 ERROR: CopyFile: open(d): Is a directory (21);d new= -1 ERROR: CopyFile: read: Is a directory (21);
        from same= -1 ERROR: CopyFile: open(same): Invalid argument (22))",
        true);
  if (fs::exists("/dev/full")) {
    Check(FSCopy, "from /dev/full= -2 ERROR: CopyFile: write: No space left on device (28)", true);
  }
  EXPECT_EQ("d/ from=abc made= new= same>from to=abc", ListTree("."));
  EXPECT_TRUE(FSCopy("from", "/dev/null", true) == 0 && !fs::exists("from")) << "nothing to force to the disc";

  const TempDir fast(fs::exists("/dev/shm") ? "/dev/shm" : dir_.path);
  WriteFile(fast / "big", "begin");
  fs::resize_file(fast / "big", 32 * 1024 * 1024 + 7);
  std::ofstream(fast / "big", std::ios::app) << "end";
  EXPECT_EQ(0, FSCopy(fast / "big", fast / "to", false));
  std::string tail;
  std::ifstream(fast / "to").seekg(32 * 1024 * 1024 + 7) >> tail;
  EXPECT_EQ("end", tail);
}

TEST_F(FileOp, RenameMovesWithinAndAcrossFileSystems) {
  BuildTree(".", "d d/f=x way>d old=o");
  EXPECT_TRUE(FSRename("", "x", false) == -1 && FSRename("d", "", false) == -1);
  Check(FSRename, "~/way/f x= -2", true);
  Check(FSRename, "none x= -2;d d/in= -3;way/f old= 0;way moved= 0;d " + std::string(5000, 'x') + "= -100", false);
  EXPECT_EQ("d/ moved>d old=x", ListTree("."));

  struct stat here = {};
  struct stat other = {};
  if (stat(".", &here) != 0 || stat("/dev/shm", &other) != 0 || here.st_dev == other.st_dev) {
    GTEST_SKIP() << "only one file system here";
  }
  const TempDir there("/dev/shm");
  BuildTree(".", "t t/a=1 t/s t/s/b=2 t/s/e t/s/e/c= l l/f=x l/link>f over>" + there.path);
  BuildTree("over", "back>" + dir_.path + "/a");
  Check(FSRename, "~/t over/t= 0", true);
  Check(FSRename, R"(over/t/a a= 0;moved over/way= 0;l over/l= -3;
        over/t/s a= -3 ERROR: FSMKDir: Create a folder but local file system is not directory 'a' (1);
        a over/back= -3 ERROR: CopyFile: open(over/back): Invalid argument (22))",
        false);
  EXPECT_EQ("back>~/a l/ l/f=x t/ t/s/ t/s/b=2 t/s/e/ t/s/e/c=", Short(ListTree(there.path)));
  fs::remove("over");
  EXPECT_EQ("a=1 d/ l/ l/link>f moved>d old=x", ListTree("."));
}

TEST_F(FileOp, RemoveTakesTheTreeAndFollowsNoLink) {
  BuildTree(".", "out out/keep=k way>out way2>out f=x t t/f=x t/s t/s/up>../../out t/gone>no");
  BuildTree("t", "e\u0301 e\u0301/\xff e\u0301/\xff/f=x");
  ASSERT_EQ(0, mkfifo("t/fifo", 0600));
  testing::internal::CaptureStderr();  // names that are no text are warned of
  Check(FSRemove, "t/= 0;way= 0;way2/= 0;f= 0;none= 0;= -1;out/keep/x= -1", false);
  testing::internal::GetCapturedStderr();
  EXPECT_EQ("out/ out/keep=k", ListTree("."));
  BuildTree("out", "s1 s1/f= s2 s2/f=");
  EXPECT_EQ(0, FSRemove("out", true));
  const std::string log = Logged(true);
  for (const std::string name : {"out", "out/keep", "out/s1", "out/s1/f", "out/s2", "out/s2/f"}) {
    const std::string pair = "path = [" + name + "]. DEBUG: FSRefMakePath outTargetPath path = [~/" + name + "].";
    EXPECT_NE(log.npos, log.find("DEBUG: Input file " + pair)) << log;
  }
}

TEST_F(FileOp, RemoveGoesDeeperThanPathsAndDescriptorsReach) {
  BuildTree(".", "t");
  fs::current_path("t");
  for (int depth = 0; depth < 200; ++depth) {
    const std::string name(50, 'n');
    BuildTree(".", "a/sub z/sub " + name);
    fs::current_path(name);
  }
  fs::current_path(dir_.path);
  rlimit limit;
  ASSERT_EQ(0, getrlimit(RLIMIT_NOFILE, &limit));
  const rlimit low = {descriptors_ + 19, limit.rlim_max};  // the count holds one that counted
  ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &low));
  EXPECT_EQ(0, FSRemove("t", false));
  ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &limit));
  EXPECT_EQ("", ListTree("."));
}

TEST_F(FileOp, RemoveStopsAtWhatItMayNotTouch) {
  const bool root = geteuid() == 0;  // to whom permissions mean nothing
  ASSERT_EQ(0, root ? chown(".", 65534, 65534) + seteuid(65534) : 0);
  BuildTree(".", "own own/empty shut shut/f=x t t/shut t/shut/f=x fixed fixed/f=x");
  fs::permissions("own/empty", fs::perms::owner_read);  // enough for a folder with nothing in it
  for (const char* name : {"fixed", "shut", "t/shut"}) fs::permissions(name, fs::perms(name[0] == 'f' ? 0500 : 0));
  Check(FSRemove, R"(own= 0;fixed= -3;shut/f= -1;
        shut= 0 ERROR: FSOpenDir: Failed to open directory 'shut'. Permission denied;
        t= -3 ERROR: FSOpenDir: Failed to open directory 't/shut'. Permission denied)",
        false);
  for (const char* name : {"fixed", "shut", "t/shut"}) fs::permissions(name, fs::perms::owner_all);
  ASSERT_EQ(0, root ? seteuid(0) : 0);
  EXPECT_EQ("fixed/ fixed/f=x shut/ shut/f=x t/ t/shut/ t/shut/f=x", ListTree("."));
}

TEST_F(FileOp, ReadingAFolderReportsEachEntryOnce) {
  BuildTree(".", "d d/f=four d/s d/l>f way>d");
  ASSERT_EQ(0, FSUTime("d/f", 5, 77));
  const auto read = [](ustring& a, ustring& b, int flags) {
    DIR_HANDLE handle;
    if (FSOpenDir(a, flags, handle) != 0) return -1;
    std::multiset<std::string> entries;
    for (DIR_ENTRY entry; FSReadDir(handle, entry) == 1;) {
      const std::string size = std::to_string(entry.size) + "@" + std::to_string(entry.mtime);
      entries.insert(entry.name.c_str() + std::to_string(entry.type) + (entry.type == 1 ? "," + size : ""));
    }
    FSCloseDir(handle);
    for (const std::string& text : entries) b += text + " ";
    return handle.path.empty() && handle.dir == nullptr ? 0 : 1;
  };
  Check(read, "~/d= 0 > ..2 .2 f1,4@77 l3 s2 ;~/way= 0 > ..2 .2 f1,0@0 l3 s2 ", 1);  // by a link: not its own spelling
  Check(read, R"(~/d= 0 > ..2 .2 f1,0@0 l3 s2 ;
        no= -1 ERROR: FSOpenDir: Failed to open directory 'no'. No such file or directory)",
        0);
}

TEST_F(FileOp, SmallHelpersActOnThePathItselfOrSayWhyNot) {
  const std::string text(1023, 'l');
  BuildTree(".", "d d/f=x way>d way2>d/f long>" + text + " longer>l" + text);
  EXPECT_TRUE(FSUTime("d/f", 1, 2) == 0 && FSUTime("way2", 3, 4) == 0 && FSUTime("no", 1, 2) == -1);
  EXPECT_TRUE(GetFileInfo("d/f", info_) == 0 && info_.mtime == 2) << "a link's own times are set";
  Check([](auto& a, auto& b) { return b = FSParentPath(a) + "," + FSBaseName(a), 0; },
        "/a/b= 0 > /a,b;/a/b/= 0 > /a/b,;a= 0 > /,a;/a= 0 > /,a;/= 0 > /,");
  Check(FSIsParentFolder, "/a /a= 1;/a /a/b= 1;/a /ab= 0;/a/b /a= 0");
  Check(FSGetRealPath, R"(no/x= -1 DEBUG:  org path [no/x];
        way/../way2= 0 DEBUG:  org path [way/../way2] DEBUG:  get full path [~/d/f] > ~/d/f)");
  const std::string missing = "(code: 2, msg: No such file or directory)";
  Check(FSCreateSymbolicLink,
        "nowhere made= 0;" +
            ("t no/x= -1 ERROR: FSCreateSymbolicLink: Failed to create symbolic link 't' -> 'no/x' " + missing));
  Check(FSChown, "made= 0;no= -1 ERROR: FSChown: Failed to chown 'no' " + missing, geteuid(), getegid());
  Check(FSReadSymbolicLink, "made= 0 > nowhere;long= 0 > " + text +
                                ";no= -1 ERROR: FSReadSymbolicLink: Failed to read symbolic link 'no' " + missing);
  EXPECT_TRUE(FSReadSymbolicLink("longer", info_.path) == -1 && errno == ENAMETOOLONG);
  Logged();
  const std::string slashes(5000, '/');
  Check(FSMktemp, "no= -1 ERROR: mkstemp(no/XXXXXX): No such file or directory;" + slashes + "= -1 ERROR: mkstemp(" +
                      slashes.substr(905) + "): File name too long");
  EXPECT_TRUE(FSMktemp("d", info_.path) == 0 && GetFileInfo(info_.path, info_) == 0 && info_.mode == 0100644);
  EXPECT_TRUE(FSCreateTempPath("d", info_.path) == 0 && FSIsParentFolder("d", info_.path));
  EXPECT_FALSE(fs::exists(info_.path.c_str()));
  Check(isFileLocked, "d/f= 1;no= 0", X_OK);
  Check(hasFilePermission, "d/f= 0;no= 1", X_OK);
  const std::string noInfo = ": Failed to get file system info 'no'. No such file or directory";
  Check(isMountPoint, "/dev= 0;no= 0 ERROR: isMountPoint" + noInfo);
  Check(IsMSDOS, "/dev= 0;no= 0 ERROR: IsSupportLargeFile" + noInfo);
}

}  // namespace
