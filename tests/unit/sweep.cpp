// Every system call of an operation fails in turn. Each run is a process of its own: this program
// again, under the library that makes the call fail.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>

#include "file/file-op.h"
#include "support/temp-dir.h"
#include "support/tree.h"

namespace {

namespace fs = std::filesystem;

using Calls = std::set<std::string>;

int Copy(const std::string& here, const std::string& there) {
  return FSCopy(here + "/t", there + "/t", false);
}

int Move(const std::string& here, const std::string& there) {
  return FSRename(here + "/t", there + "/t", true);
}

int Remove(const std::string& here, const std::string&) {
  return FSRemove(here + "/t", false);
}

struct Operation {
  const char* name;
  int (*run)(const std::string& here, const std::string& there);
  std::set<int> results;
  Calls harmless;  // calls whose failure may leave the result 0
  Tree before;     // in the folder `here`; the folder `there` is empty
  Tree hereAfter;
  Tree thereAfter;
  const char* failing = "all";  // the calls that fail
};

const Tree kFile = {{"t", "file: data"}};
const Tree kFolder = {{"t", "folder"}, {"t/f", "file: data"}};
const Tree kLinks = {{"t/s/g", "file: x"}, {"t/l", "link: ../../outside"}};
const Tree kDeep = {{"t/1/2/3/4/5/6/7/8/9/10/11/12/13/14/15/16/17/18/f", "file: x"}};
const Calls kOfCopy = {"fstat", "stat", "fsync", "close", "close-w"};
const Calls kOfMove = {"fstat", "stat", "close", "close-w", "readdir"};
const Calls kOfRemove = {"open", "fdopendir", "fstat", "readdir", "close"};

const Operation kOperations[] = {
    {"copy", Copy, {0, -1, -2}, kOfCopy, kFile, kFile, kFile},
    {"move a folder", Move, {0, -2, -3}, kOfMove, kFolder, {}, kFolder},
    {"move a file", Move, {0, -2, -3}, kOfMove, kFile, {}, kFile},
    {"remove a folder", Remove, {0, -1, -3}, kOfRemove, kLinks, {}, {}},
    {"remove a deep folder", Remove, {0, -1, -3}, kOfRemove, kDeep, {}, {}, "open"},
    {"remove a file", Remove, {0, -1, -3}, {}, kFile, {}, {}},
};

struct Fault {
  const char* mode;
  int error;
};

// What is interrupted for ever is tried for ever, so EINTR comes only once.
const Fault kFaults[] = {
    {"once", EINTR}, {"once", EIO},      {"once", EACCES},   {"once", ENOSPC},   {"once", EDQUOT},
    {"always", EIO}, {"always", EACCES}, {"always", ENOSPC}, {"always", EDQUOT}, {"short", 0},
};

constexpr int kDescriptorsLeak = 100;

// The child's side of a run. Its exit code is the result, less its sign.
int RunOperation(const Operation& operation, const std::string& here, const std::string& there) {
  const auto countDescriptors = [] {
    return std::distance(fs::directory_iterator("/proc/self/fd"), {});
  };
  const auto before = countDescriptors();
  const int result = operation.run(here, there);
  return countDescriptors() > before ? kDescriptorsLeak : -result;
}

// What a run left behind.
struct Outcome {
  int result;
  std::string call;  // the one that met the fault; empty when there were fewer
  bool hasLogged;
  Tree here;
  Tree there;
  Tree outside;
};

Outcome RunUnderFault(const Operation& operation, const Fault& fault, int number) {
  const fs::path memory = fs::exists("/dev/shm") ? "/dev/shm" : "/tmp";
  const bool crossesDevices = operation.run == Move;
  const TempDir scratch(crossesDevices ? fs::temp_directory_path() : memory);
  const TempDir there(memory);
  MakeTree(scratch.path, {{"here", "folder"}, {"outside", "folder"}, {"outside/kept", "file: k"}});
  MakeTree(scratch / "here", operation.before);

  const pid_t child = fork();
  if (child == 0) {
    setenv("LD_PRELOAD", LUMIVO_FAULT_PRELOAD, 1);
    setenv("FAULT_FUNCTION", operation.failing, 1);
    setenv("FAULT_PATH", "/lumivo-test-", 1);
    setenv("FAULT_COUNT_FILE", (scratch / "calls").c_str(), 1);
    setenv("FAULT_MODE", fault.mode, 1);
    setenv("FAULT_ERRNO", std::to_string(fault.error).c_str(), 1);
    setenv("FAULT_NTH", std::to_string(number).c_str(), 1);
    if (freopen((scratch / "log").c_str(), "w", stderr) != nullptr) {
      execl("/proc/self/exe", "sweep", operation.name, (scratch / "here").c_str(),
            there.path.c_str(), nullptr);
    }
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);

  Outcome outcome;
  outcome.result = WIFEXITED(status) ? -WEXITSTATUS(status) : WTERMSIG(status);
  std::istringstream calls(ReadFile(scratch / "calls"));
  for (int i = 0; i < number; ++i) {
    std::string line;
    std::getline(calls, line);
    outcome.call = line.substr(0, line.find(' '));
  }
  outcome.hasLogged = ReadFile(scratch / "log").find("[ERROR]") != std::string::npos;
  outcome.here = TreeOf(scratch / "here");
  outcome.there = TreeOf(there.path);
  outcome.outside = TreeOf(scratch / "outside");
  return outcome;
}

bool HoldsData(const Tree& tree) {
  return std::any_of(tree.begin(), tree.end(),
                     [](const auto& entry) { return entry.second == "file: data"; });
}

void CheckWhatIsLeft(const Operation& operation, const Outcome& outcome) {
  EXPECT_EQ(operation.results.count(outcome.result), 1U);
  EXPECT_EQ(outcome.outside, (Tree{{"kept", "file: k"}}));
  const bool mayStay = operation.run == Remove && outcome.hasLogged;
  if (outcome.result == 0 && !mayStay) {
    EXPECT_EQ(outcome.here, operation.hereAfter);
    EXPECT_EQ(outcome.there, operation.thereAfter);
  }
  if (HoldsData(operation.hereAfter) || HoldsData(operation.thereAfter)) {
    EXPECT_TRUE(HoldsData(outcome.here) || HoldsData(outcome.there)) << "data are lost";
  }
}

void CheckReport(const Operation& operation, const Fault& fault, const Outcome& outcome) {
  static const Calls copying = {"open", "open-w", "read", "write", "fsync"};
  static const Calls folders = {"realpath", "opendir", "fdopendir", "readdir"};
  const bool isOfCopying = copying.count(outcome.call) != 0;
  const bool copies = operation.run == Copy || operation.run == Move;
  const bool isRetried = copies && isOfCopying && fault.error == EINTR;
  if (outcome.call.empty() || fault.mode == std::string("short") || isRetried) {
    EXPECT_EQ(outcome.result, 0) << "nothing had failed";
    EXPECT_FALSE(outcome.hasLogged) << "nothing had failed";
    return;
  }
  if (operation.harmless.count(outcome.call) == 0) {
    EXPECT_NE(outcome.result, 0);
  }
  if (operation.run == Copy) {
    const bool isFull = outcome.call == "write" && (fault.error == ENOSPC || fault.error == EDQUOT);
    EXPECT_EQ(outcome.result == -2, isFull);
  }
  if (isOfCopying || folders.count(outcome.call) != 0) {
    EXPECT_TRUE(outcome.hasLogged);
  }
}

TEST(Sweep, EveryFaultIsReportedAndLosesNothing) {
  for (const Operation& operation : kOperations) {
    for (const Fault& fault : kFaults) {
      std::string call;
      int number = 0;
      do {
        const Outcome outcome = RunUnderFault(operation, fault, ++number);
        call = outcome.call;
        SCOPED_TRACE(testing::Message() << operation.name << ": call " << number << ", " << call
                                        << ", " << fault.mode << " " << strerror(fault.error));
        CheckWhatIsLeft(operation, outcome);
        CheckReport(operation, fault, outcome);
      } while (!call.empty());
      EXPECT_GT(number, 1) << "no call met a fault: is the library loaded?";
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc == 4) {
    for (const Operation& operation : kOperations) {
      if (operation.name == std::string(argv[1])) return RunOperation(operation, argv[2], argv[3]);
    }
  }
  return RUN_ALL_TESTS();
}
