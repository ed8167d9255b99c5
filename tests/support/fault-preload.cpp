// Makes chosen calls into the C library fail, so that a test sees how a program copes. Linux only,
// for LD_PRELOAD.
//
//   FAULT_FUNCTION    which calls to count: names separated by commas ("rename,unlinkat"),
//                     "changes" for every call that changes the file system, or "all". An open
//                     under any of its names is "open", or "open-w" when it may write or create;
//                     closing what was open for writing is "close-w"
//   FAULT_PATH        count only calls with this text in their path; the path of a descriptor is
//                     the one that it was opened by
//   FAULT_NTH         which of them meets the fault, from 1; without it nothing fails
//   FAULT_MODE        once    that call fails (the default)
//                     always  it and all that follow fail
//                     kill    the process is killed instead of the call; of a read or write, half
//                             is done first
//   FAULT_ERRNO       a number; default EIO
//   FAULT_COUNT_FILE  gets a line for every counted call: its name and path. It survives a kill
//
// Calls are counted per process, over all its threads. Programs that it starts are not affected:
// the variables, LD_PRELOAD among them, are taken out of the environment. Calls that the C library
// makes internally (stdio's, say) are not seen.

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::string Take(const char* name) {
  const char* value = getenv(name);
  std::string text = value != nullptr ? value : "";
  unsetenv(name);
  return text;
}

// Never destroyed: files are closed until the very end.
struct Plan {
  std::string functions = "," + Take("FAULT_FUNCTION") + ",";
  std::string path = Take("FAULT_PATH");
  long nth = atol(Take("FAULT_NTH").c_str());
  std::string mode = Take("FAULT_MODE");
  int error = atoi(Take("FAULT_ERRNO").c_str());
  std::string list = Take("FAULT_COUNT_FILE");
  std::string preload = Take("LD_PRELOAD");
  std::atomic<long> count{0};
};
Plan* g_plan = new Plan;  // null before that, for whatever starts earlier

std::string PathOf(int fd) {
  char text[4096] = {};
  return readlink(("/proc/self/fd/" + std::to_string(fd)).c_str(), text, sizeof(text) - 1) > 0
             ? text
             : "";
}

std::string PathOf(int folder, const std::string& path) {
  return folder == AT_FDCWD || path.compare(0, 1, "/") == 0 ? path : PathOf(folder) + "/" + path;
}

bool IsWriting(int flags) {
  return (flags & O_PATH) == 0 && ((flags & O_ACCMODE) != O_RDONLY || (flags & O_CREAT) != 0);
}

enum class Fate { kGoesOn, kGoesOnAndIsLast, kFails };

bool IsCounted(const std::string& name, const std::string& path, bool changes) {
  if (g_plan == nullptr || path.find(g_plan->path) == std::string::npos) return false;
  const std::string& functions = g_plan->functions;
  if (functions == ",all," || (changes && functions == ",changes,")) return true;
  return functions.find("," + name + ",") != std::string::npos;
}

// Counts the call if it is looked for, and decides its fate. The `size` of a read or write may be
// cut short.
Fate Decide(const std::string& name, const std::string& path, bool changes,
            size_t* size = nullptr) {
  if (!IsCounted(name, path, changes)) return Fate::kGoesOn;
  const long count = ++g_plan->count;
  const int before = errno;
  if (FILE* list = fopen(g_plan->list.c_str(), "ae")) {
    fprintf(list, "%s %s\n", name.c_str(), path.c_str());
    fclose(list);
  }
  errno = before;
  const std::string& mode = g_plan->mode;
  if (g_plan->nth < 1 || count < g_plan->nth) return Fate::kGoesOn;
  if (count > g_plan->nth && mode != "always") return Fate::kGoesOn;
  if (mode == "kill") {
    if (size == nullptr) raise(SIGKILL);
    *size = (*size + 1) / 2;
    return Fate::kGoesOnAndIsLast;
  }
  errno = g_plan->error != 0 ? g_plan->error : EIO;
  return Fate::kFails;
}

template <typename Function>
Function Next(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// Under names of their own, so that the system's declarations with their attributes do not get in
// the way.
// NOLINTBEGIN(bugprone-macro-parentheses): parameter lists
#define FAULT(type, failure, symbol, name, takes, passes, path, changes, size) \
  extern "C" type symbol##_fault takes __asm__(#symbol);                       \
  type symbol##_fault takes {                                                  \
    static const auto next = Next<type(*) takes>(#symbol);                     \
    const Fate fate = Decide(name, path, changes, size);                       \
    const auto result = fate == Fate::kFails ? failure : next passes;          \
    if (fate == Fate::kGoesOnAndIsLast) raise(SIGKILL);                        \
    return result;                                                             \
  }
// NOLINTEND(bugprone-macro-parentheses)
#define TRANSFER(symbol, takes, passes, changes) \
  FAULT(ssize_t, -1, symbol, #symbol, takes, passes, PathOf(fd), changes, &size)
#define CHANGE(symbol, takes, passes, path) \
  FAULT(int, -1, symbol, #symbol, takes, passes, path, true, nullptr)
#define LOOK(symbol, takes, passes, path) \
  FAULT(int, -1, symbol, #symbol, takes, passes, path, false, nullptr)
#define FIND(symbol, takes, passes, path) \
  FAULT(void*, nullptr, symbol, #symbol, takes, passes, path, false, nullptr)
#define OPEN(symbol, takes, passes, path)                                           \
  FAULT(int, -1, symbol, IsWriting(flags) ? "open-w" : "open", takes, passes, path, \
        IsWriting(flags), nullptr)

using Text = const char*;

// The mode is an optional argument, passed like any other.
OPEN(open, (Text path, int flags, mode_t mode), (path, flags, mode), path)
OPEN(open64, (Text path, int flags, mode_t mode), (path, flags, mode), path)
OPEN(openat, (int folder, Text path, int flags, mode_t mode), (folder, path, flags, mode),
     PathOf(folder, path))
OPEN(__open_2, (Text path, int flags), (path, flags), path)

CHANGE(mkdir, (Text path, mode_t mode), (path, mode), path)
CHANGE(rename, (Text from, Text to), (from, to), std::string(from) + " " + to)
CHANGE(unlink, (Text path), (path), path)
CHANGE(unlinkat, (int folder, Text path, int flags), (folder, path, flags), PathOf(folder, path))
CHANGE(rmdir, (Text path), (path), path)
CHANGE(symlink, (Text text, Text path), (text, path), path)
CHANGE(linkat, (int from, Text path, int to, Text name, int flags), (from, path, to, name, flags),
       PathOf(to, name))
CHANGE(chmod, (Text path, mode_t mode), (path, mode), path)
CHANGE(lchmod, (Text path, mode_t mode), (path, mode), path)
CHANGE(fsync, (int fd), (fd), PathOf(fd))
CHANGE(syncfs, (int fd), (fd), PathOf(fd))
CHANGE(ftruncate, (int fd, off_t size), (fd, size), PathOf(fd))

LOOK(access, (Text path, int mode), (path, mode), path)
LOOK(stat, (Text path, struct stat* info), (path, info), path)
LOOK(lstat, (Text path, struct stat* info), (path, info), path)
LOOK(fstat, (int fd, struct stat* info), (fd, info), PathOf(fd))
LOOK(fstatat, (int dir, Text path, struct stat* info, int flags), (dir, path, info, flags),
     PathOf(dir, path))
FIND(realpath, (Text path, char* text), (path, text), path)
FIND(fdopendir, (int fd), (fd), PathOf(fd))
FIND(readdir, (DIR * stream), (stream), PathOf(dirfd(stream)))

TRANSFER(read, (int fd, void* buffer, size_t size), (fd, buffer, size), false)
TRANSFER(write, (int fd, const void* buffer, size_t size), (fd, buffer, size), true)

extern "C" int close_fault(int fd) __asm__("close");
int close_fault(int fd) {
  static const auto next = Next<int (*)(int)>("close");
  const int flags = fcntl(fd, F_GETFL);
  const bool writing = flags >= 0 && IsWriting(flags);
  if (Decide(writing ? "close-w" : "close", PathOf(fd), writing) != Fate::kFails) return next(fd);
  const int error = errno;
  next(fd);  // a close that fails closes all the same
  errno = error;
  return -1;
}
