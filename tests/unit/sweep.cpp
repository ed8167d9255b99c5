// Every call of an operation into the system fails. Each run is this program again, under the
// library that does it.

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <utility>

#include "file/file-op.h"
#include "log.h"
#include "support/temp-dir.h"
#include "support/tree.h"

namespace {

namespace fs = std::filesystem;

// Its results, without their sign; the calls that may fail and leave it 0; what lies "here|there"
// before and after.
const struct Operation {
  std::string name, results, spared, before, after;
} kOperations[] = {
    {"FSMKDirP", "01", " stat ", "here/d here/d/f=x", "d/ d/f/|"},
    {"FSCopy", "012", " fstat stat fsync close close-w ", "here/f=1st", "f=1st|f=1st"},
    {"FSRename", "023", " fstat stat close close-w readdir ", "here/t here/t/f=1st", "|t/ t/f=1st"},
    {"FSRename", "023", " fstat stat close close-w ", "here/t=1st", "|t=1st"},
    {"FSRemove", "013", " open fdopendir fstat readdir close ",
     "here/t here/t/s here/t/s/g=x here/t/l>../../out", "|"},
    {"FSRemove", "013", "", "here/t=x", "|"},
    {"FSReadDir", "01", " lstat realpath ", "here/f=1st", "f=1st|"},
    {"Rotate", "01", " open fstat close rename remove ", "here/c=a=7 here/log=1st",
     "c=a=7 log= log_0=1st|"},
};
// How calls fail; what is interrupted for ever is tried for ever.
const std::pair<const char*, int> kFaults[] = {
    {"once", EINTR}, {"once", EIO},      {"once", EACCES},   {"once", ENOSPC},   {"once", EDQUOT},
    {"always", EIO}, {"always", EACCES}, {"always", ENOSPC}, {"always", EDQUOT}, {"short", 0},
};

// One run, in which the call of that number meets the fault. False when there are fewer calls.
bool Try(const Operation& operation, const std::string& mode, int error, int number) {
  const auto& [name, results, spared, before, after] = operation;
  const fs::path memory = fs::exists("/dev/shm") ? "/dev/shm" : "/tmp";
  const TempDir there(memory),
      scratch(name == "FSRename" ? fs::temp_directory_path() : memory);  // across devices
  BuildTree(scratch.path, "out out/kept=k here " + before);
  std::ostringstream command;
  command << "cd " << scratch.path
          << "; FAULT_FUNCTION=all FAULT_PATH=/lumivo-test- FAULT_COUNT_FILE=calls FAULT_MODE="
          << mode << " FAULT_ERRNO=" << error << " FAULT_NTH=" << number
          << " LD_PRELOAD='" LUMIVO_FAULT_PRELOAD << "' /proc/$PPID/exe " << name << " $PWD/here "
          << there.path << " 2>log; exit $?";
  const int result = WEXITSTATUS(
      system(command.str().c_str()));  // the shell's, so that there is one after a crash
  std::istringstream calls(ReadFile(scratch / "calls"));
  std::string call;
  for (int i = 0; i < number; ++i) std::getline(calls, call);
  call = call.substr(0, call.find(' '));
  const bool isLogged = ReadFile(scratch / "log").find("[ERROR]") != std::string::npos;
  const std::string tree = ListTree(scratch / "here") + "|" + ListTree(there.path);
  SCOPED_TRACE(testing::Message() << command.str() << ": " << call << " " << result << " " << tree);
  EXPECT_NE(results.npos, results.find(std::to_string(result)));
  EXPECT_EQ("kept=k", ListTree(scratch / "out"));
  EXPECT_TRUE(result != 0 || tree == after || (name == "FSRemove" && isLogged)) << "not done";
  EXPECT_TRUE(after.find("1st") == after.npos || tree.find("1st") != tree.npos) << "data are lost";

  const auto is = [&call](const std::string& list) {
    return list.find(" " + call + " ") != list.npos;
  };
  const bool isOfCopy = is(" open open-w read write fsync ");
  const bool isRetried = isOfCopy && error == EINTR && (name == "FSCopy" || name == "FSRename");
  if ((call.empty() && number > 1) || mode == "short" || isRetried) {
    EXPECT_TRUE(result == 0 && !isLogged) << "there was no fault";
    return !call.empty();
  }
  EXPECT_TRUE(result != 0 || is(spared)) << "not reported";
  const bool isFull = call == "write" && (error == ENOSPC || error == EDQUOT);
  EXPECT_TRUE(result == 0 || name == "FSRename" || (result == 2) == isFull) << "wrongly reported";
  const bool hasLine = isOfCopy || is(" realpath opendir fdopendir readdir ") ||
                       (name == "FSReadDir" && result != 0);
  EXPECT_TRUE(isLogged || name == "Rotate" || !hasLine) << "not logged";
  return !call.empty();
}

TEST(Sweep, EveryFaultIsReportedAndLosesNothing) {
  for (const Operation& operation : kOperations) {
    for (const auto& [mode, error] : kFaults) {
      for (int number = 1; Try(operation, mode, error, number); ++number) continue;
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc < 4) return RUN_ALL_TESTS();
  const std::string name = argv[1], here = argv[2], there = argv[3];
  const auto descriptors = [] {
    return std::distance(fs::directory_iterator("/proc/self/fd"), {});
  };
  const auto before = descriptors();
  DIR_HANDLE handle;
  int result = name == "FSReadDir" ? FSOpenDir(here, 1, handle) : 0;
  for (DIR_ENTRY entry; handle.dir != nullptr && (result = FSReadDir(handle, entry)) > 0;) continue;
  if (handle.dir != nullptr) FSCloseDir(handle);
  if (name == "FSMKDirP") result = FSMKDirP(here + "/d/f", nullptr, true, 0777);
  if (name == "FSCopy") result = FSCopy(here + "/f", there + "/f", false);
  if (name == "FSRename") result = FSRename(here + "/t", there + "/t", true);
  if (name == "FSRemove") result = FSRemove(here + "/t", false);
  if (name == "Rotate")
    result = Logger::Initialize(Logger::TYPE_FILE, here + "/log", here + "/c", 2);
  if (name == "Rotate" && result == 0) result = Logger::Rotate();
  Logger::Destroy();
  return descriptors() > before ? 9 : -result;
}
