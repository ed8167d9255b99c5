#include "file/file-op.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include "log.h"
#include "support/temp-dir.h"
#include "support/tree.h"

namespace {

namespace fs = std::filesystem;

// Each test runs in its own folder, "~" in the rows.
struct FileOp : ::testing::Test {
  FileOp() {
    WriteFile(logs_ / "levels", "file_op_debug=7\n");
    EXPECT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, logs_ / "log", logs_ / "levels", 50));
    log_.open(logs_ / "log");
    fs::current_path(dir_.path);
    descriptors_ = OpenDescriptors();
  }
  ~FileOp() override {
    EXPECT_EQ(descriptors_, OpenDescriptors()) << "a descriptor stayed open";
    Logger::Destroy();
  }
  static rlim_t OpenDescriptors() { return static_cast<rlim_t>(std::distance(fs::directory_iterator("/dev/fd"), {})); }

  // The lines since the last call, " LEVEL: text"; without those in which `GetFileInfo` tells a path.
  std::string Logged() {
    std::string text, line;
    for (log_.clear(); std::getline(log_, line);) {
      if (line.find("path = [") != line.npos) continue;
      text += " " + line.substr(17, line.find("] file-op(") - 17) + line.substr(line.find("): ") + 1);
    }
    return text;
  }
  // Calls `function` with both texts of each row, "a b= result log > b"; its end tells what became of b. "-" is empty.
  template <typename Function>
  void Check(Function function, std::string rows) {
    for (size_t at; (at = rows.find('~')) != rows.npos;) rows.replace(at, 1, dir_.path);
    std::istringstream stream(rows);
    for (std::string row; std::getline(stream >> std::ws, row, ';');) {
      std::string first, second;
      std::istringstream(row.substr(0, row.find("= "))) >> first >> second;
      ustring a(first == "-" ? "" : first), b(second);
      const std::string result = std::to_string(function(a, b));
      EXPECT_EQ(row.substr(row.find("= ") + 2), result + Logged() + (b == second ? "" : " > " + b).c_str()) << row;
    }
  }

  const TempDir logs_, dir_;
  std::ifstream log_;
  rlim_t descriptors_ = 0;
  _FILE_INFO_tag info_;
};

TEST_F(FileOp, InfoAndEntriesTellTypeSizeTimeAndSpelling) {
  BuildTree(".", "real real/f=four real/s real/l>f way>real gone>nowhere \u00e9=e e\u0301d e\u0301d/f=x");
  ASSERT_TRUE(mkfifo("fifo", 0600) == 0 && FSUTime("real/f", 1, 2000000000) == 0 && chmod("real/f", 0640) == 0);
  const auto info = [this](auto& a, auto& b) { return GetFileInfo(a, info_) != 0 ? -1 : (b = info_.path, info_.type); };
  Check(info,
        "real/f= 1 > ~/real/f;real= 2 > ~/real;way/= 2 > ~/real;way= 3 > ~/way;gone= 3 > ~/gone;fifo= 6 > ~/fifo;"
        "/dev/null= 5 > /dev/null;/= 2 > /;.= 2 > ~;real/..= 2 > ~;e\u0301d/f= 1 > ~/\u00e9d/f;way/f= 1 > ~/real/f");
  EXPECT_TRUE(info_.size == 4 && info_.mtime == 2000000000 && info_.mode == 0100640 && info_.name == "f");
  Check([](auto& a, auto& b) { return IsFileExist(a, b == "exact"); },
        "~/e\u0301= 1;~/e\u0301 exact= 1;~/way exact= 1;~/way/f= 1;~/way/f exact= 0;-= 0;none= 0;real/f/x= 0");
  _FILE_INFO_tag other = info_;
  EXPECT_TRUE(GetFileInfo("real/f/x", other) == -1 && FSStat("", other, false) == -1 && other == info_);
  EXPECT_TRUE(FSStat("none", other, false) == 0 && !other.exist && other.size == 4) << "only `exist` is set";
  EXPECT_TRUE(GetFileInfo("none", other) == 0 && other.size == 0 && other.path == "none" && other != info_);

  const auto read = [](ustring& folder, ustring& entries) {
    DIR_HANDLE handle;
    if (FSOpenDir(folder, entries == "1", handle) != 0) return -1;
    std::multiset<std::string> names;
    for (DIR_ENTRY entry; FSReadDir(handle, entry) == 1;) {
      const std::string more = "," + std::to_string(entry.size) + "@" + std::to_string(entry.mtime);
      names.insert(entry.name.c_str() + std::to_string(entry.type) + (entry.type == 1 ? more : ""));
    }
    FSCloseDir(handle);
    for (const std::string& name : names) entries += " " + name;
    return 0;
  };
  Check(read, R"(~/real 1= 0 > 1 ..2 .2 f1,4@2000000000 l3 s2;~/real 0= 0 > 0 ..2 .2 f1,0@0 l3 s2;
        ~/way 1= 0 > 1 ..2 .2 f1,0@0 l3 s2)");  // not the file system's own spelling
}

TEST_F(FileOp, FoldersAreMadeOrWhatIsInTheWayIsReported) {
  BuildTree(".", "d f=x way>d tofile>f");
  umask(027);
  const auto along = [](ustring& a, ustring& b) {
    char* stop = nullptr;
    const int result = FSMKDirP(a, &stop, b[0] == '+', static_cast<uint16_t>(std::stoul(b.c_str(), nullptr, 8)));
    return b = std::to_string(a.c_str() + a.length() - stop), result;
  };
  Check(along, R"(a//m/ 777= 0 > 1;way/n 700= 0 > 0;way/n +777= 0 > 0;tofile/r +755= 0 > 0;
        f/p/q 777= -1 INFO: FSMKDirP: path: f is symbolic link pointed to folder > 2;~/a/b/c 177777= 0 > 0;
        f 777= -1 INFO: FSMKDirP: path: f is existing file or symbolic link pointed to file > 0)");
  const auto mode = [](const char* path) { return static_cast<unsigned>(fs::status(path).permissions()); };
  EXPECT_TRUE(mode("a/b") == 0750 && mode("a/m") == 0777 && mode("d/n") == 0700 && mode("tofile/r") == 0755);
  Check([](auto& a, auto& b) { return FSMKDir(a, b == "parents"); }, R"(-= -1;d= 0;d/x/y= -2;d/1/2 parents= 0;
        f/x= -1 ERROR: FSMKDir: Failed to to file info 'f/x';
        way= -1 ERROR: FSMKDir: Create a folder but local file system is not directory 'way' (3))");
  Check(FSMKDirFromRoot, R"(d d//m= 0 DEBUG: FSMKDirFromRoot: create / DEBUG: FSMKDirFromRoot: create //m;
        no no/x/y= -1 DEBUG: FSMKDirFromRoot: create /x;a ab= -1 ERROR: root 'a' is not a parent folder of target 'ab';
        ab a= -1 ERROR: Giving a root 'ab' whose length is larger then target's 'a'.)");
  EXPECT_EQ("a/ a/b/ a/b/c/ a/m/ d/ d/1/ d/1/2/ d/m/ d/n/ f=x tofile/ tofile/r/ way>d", ListTree("."));
  EXPECT_EQ(EEXIST, FSMKDirP("f", nullptr, false, 0777) == -1 ? errno : 0);
}

TEST_F(FileOp, CopyMovesEveryByteOrSaysWhyNot) {
  BuildTree(".", "f=abc to=longer-than-some e= d same>f");
  const auto copy = [](auto& a, auto& b) { return FSCopy(a, b, b != "to"); };
  Check(copy, R"(f to= 0;e made= 0;no to= -1 ERROR: CopyFile: open(no): No such file or directory (2);
        f d= -1 ERROR: CopyFile: open(d): Is a directory (21);d new= -1 ERROR: CopyFile: read: Is a directory (21);
        f same= -1 ERROR: CopyFile: open(same): Invalid argument (22))");
  Check(copy, fs::exists("/dev/full") ? "f /dev/full= -2 ERROR: CopyFile: write: No space left on device (28)" : "");
  EXPECT_EQ("d/ f=abc made= new= same>f to=abc", ListTree("."));
  Check(copy, "f /dev/null= 0;f to= -1 ERROR: CopyFile: open(f): No such file or directory (2)");

  const TempDir fast(fs::exists("/dev/shm") ? "/dev/shm" : dir_.path);
  std::ofstream(fast / "big").seekp(33554439) << "behind a whole block";
  EXPECT_EQ(0, FSCopy(fast / "big", fast / "to", false));
  EXPECT_EQ(0, system(("cmp " + fast / "big" + " " + fast / "to").c_str()));
}

TEST_F(FileOp, RenameMovesWithinAndAcrossFileSystems) {
  BuildTree(".", "d d/f=x way>d old=o");
  const auto move = [](auto& a, auto& b) { return FSRename(a, b, a.c_str()[0] == '/'); };  // absolute ones exactly
  Check(move, "- x= -1;d= -1;~/way/f x= -2;d d/in= -3;way/f old= 0;way m= 0;d " + std::string(5000, 'x') + "= -100");
  EXPECT_EQ("d/ m>d old=x", ListTree("."));

  const TempDir there(fs::exists("/dev/shm") ? "/dev/shm" : dir_.path);
  if (rename("old", (there / "old").c_str()) == 0) GTEST_SKIP() << "only one file system here";
  const std::string back = "back>" + dir_ / "a";
  BuildTree(".", "t t/a=1 t/e t/s t/s/b=2 t/s/c= l l/f=x l/link>f over>" + there.path + " over/" + back);
  Check(move, R"(~/t over/t= 0;over/t/a a= 0;m over/way= 0;l over/l= -3;
        over/t/e a= -3 ERROR: FSMKDir: Create a folder but local file system is not directory 'a' (1);
        a over/back= -3 ERROR: CopyFile: open(over/back): Invalid argument (22))");
  EXPECT_EQ(back + " l/ l/f=x t/ t/e/ t/s/ t/s/b=2 t/s/c=", ListTree(there.path));
  EXPECT_EQ("a=1 d/ l/ l/link>f m>d old=x over>" + there.path, ListTree("."));
}

TEST_F(FileOp, RemoveTakesTheTreeFollowsNoLinkAndStopsAtWhatItMayNotTouch) {
  const bool root = geteuid() == 0;  // to whom permissions mean nothing
  ASSERT_EQ(0, root ? chown(".", 65534, 65534) + seteuid(65534) : 0);
  BuildTree(".", "out out/keep=k way>out way2>out f=x t t/f=x t/s t/s/up>../../out t/gone>no t/o t/o/f=x");
  BuildTree(".", "t/e\u0301 t/e\u0301/\xff t/e\u0301/\xff/f=x own own/e shut shut/f=x u u/no u/no/f=x fix fix/f=x");
  fs::permissions("own/e", fs::perms::owner_read);  // enough for a folder with nothing in it
  for (const char* name : {"fix", "shut", "u/no"}) fs::permissions(name, fs::perms(name[0] == 'f' ? 0500 : 0));
  fs::current_path("t");
  for (int depth = 0; depth < 25; ++depth) {  // to a path too long for the system
    const std::string name(200, 'n');
    BuildTree(".", "a/sub z/sub " + name);
    fs::current_path(name);
  }
  fs::current_path(dir_.path);
  const rlimit few = {descriptors_ + 19, descriptors_ + 19};  // one is the count's own
  ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &few));
  Check([](auto& a, auto&) { return FSRemove(a, false); }, R"(t/= 0;way= 0;way2/= 0;f= 0;no= 0;-= -1;out/keep/x= -1;
        fix/f= -3;fix= -3;shut/f= -1;shut= 0 ERROR: FSOpenDir: Failed to open directory 'shut'. Permission denied;
        u= -3 ERROR: FSOpenDir: Failed to open directory 'u/no'. Permission denied;own= 0)");
  for (const char* name : {"fix", "shut", "u/no"}) fs::permissions(name, fs::perms::owner_all);
  ASSERT_EQ(0, root ? seteuid(0) : 0);
  EXPECT_EQ("fix/ fix/f=x out/ out/keep=k shut/ shut/f=x u/ u/no/ u/no/f=x", ListTree("."));
  const std::string log = ReadFile(logs_ / "log");
  for (const std::string name : {"t/f", "t/s", "t/s/up", "t/gone", "t/o", "t/o/f"}) {
    EXPECT_NE(log.npos, log.find("): Input file path = [" + name + "].\n")) << log;
    EXPECT_NE(log.npos, log.find("): FSRefMakePath outTargetPath path = [" + dir_ / name + "].\n")) << log;
  }
}

TEST_F(FileOp, SmallHelpersActOnThePathItselfOrSayWhyNot) {
  const std::string text(1023, 'l');
  BuildTree(".", "d d/f=x way>d way2>d/f long>" + text + " longer>l" + text);
  EXPECT_TRUE(FSUTime("d/f", 1, 2) == 0 && FSUTime("way2", 3, 4) == 0 && FSUTime("no", 1, 2) == -1);
  EXPECT_TRUE(GetFileInfo("d/f", info_) == 0 && info_.mtime == 2) << "a link's own times are set";
  Check([](auto& a, auto& b) { return b = FSParentPath(a) + "," + FSBaseName(a), 0; },
        "/a/b= 0 > /a,b;/a/b/= 0 > /a/b,;a= 0 > /,a;/a= 0 > /,a;/= 0 > /,");
  Check(FSIsParentFolder, "/a /a= 1;/a /a/b= 1;/a /ab= 0;/a/b /a= 0");
  Check([](auto& a, auto& b) { return b = a, FSGetRealPath(b); }, R"(no/x= -1 DEBUG:  org path [no/x] > no/x;
        way/../way2= 0 DEBUG:  org path [way/../way2] DEBUG:  get full path [~/d/f] > ~/d/f)");
  Check(FSCreateSymbolicLink, R"(nowhere made= 0;
        t d= -1 ERROR: FSCreateSymbolicLink: Failed to create symbolic link 't' -> 'd' (code: 17, msg: File exists))");
  Check([](auto& a, auto&) { return FSChown(a, geteuid(), getegid()); }, R"(made= 0;
        no= -1 ERROR: FSChown: Failed to chown 'no' (code: 2, msg: No such file or directory))");
  Check(FSReadSymbolicLink, "long= 0 > " + text + R"(;
        d= -1 ERROR: FSReadSymbolicLink: Failed to read symbolic link 'd' (code: 22, msg: Invalid argument))");
  Check(FSMktemp, "no= -1 ERROR: mkstemp(no/XXXXXX): No such file or directory");
  EXPECT_TRUE(FSMktemp("d", info_.path) == 0 && GetFileInfo(info_.path, info_) == 0 && info_.mode == 0100644);
  Check([](auto& a, auto&) { return isFileLocked(a, X_OK) - hasFilePermission(a, X_OK); }, "d/f= 1;no= -1");
  EXPECT_EQ(-2, FSReadSymbolicLink("longer", info_.path) + FSMktemp(std::string(5000, '/'), info_.path));
  EXPECT_FALSE(isMountPoint("/dev") || IsMSDOS("/dev") || isMountPoint("no") || IsMSDOS("no"));
  EXPECT_NE(std::string::npos, Logged().find("ERROR: isMountPoint: Failed to get file system info 'no'. No such file"));
}

}  // namespace
