// Paths go to the system byte for byte as given; only existence tests and reported paths use the
// composed form. Every errno is saved before anything else is called.

#include "file/file-op.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "fs-type.h"
#include "owners.h"
#include "path-resolve.h"
#include "tmp_name_gen.h"

#define LOG_UNIT "file-op"
#include "log.h"

namespace {

const ustring kComponent = "file_op_debug";

constexpr int kFailed = -3;
constexpr int kDiskFull = -2;
constexpr int kPathTooLong = -100;

constexpr int kEntryInfo = 1;  // bit of DIR_HANDLE::flags
constexpr unsigned short kModeByUmask = 0xFFFF;
constexpr int kCopyBlock = 32 * 1024 * 1024;
// Writing a whole block at once took up to twice the CPU time on a virtual machine that was short
// of memory.
constexpr size_t kWriteSlice = 128 * 1024;
constexpr size_t kTemplateSize = 4096;
constexpr size_t kLinkTextSize = 1024;

// Folders that a removal keeps open at a time. A process may be limited to 256 descriptors.
constexpr size_t kOpenFolders = 16;

struct HandleCloser {
  void operator()(DIR_HANDLE* handle) const { FSCloseDir(*handle); }
};
using HandleGuard = std::unique_ptr<DIR_HANDLE, HandleCloser>;

// The umask belongs to the process. Only one thread changes it at a time; otherwise two could
// restore each other's 0.
class NoUmask {
 public:
  NoUmask() : turn_(Turns()), previous_(umask(0)) {}
  NoUmask(const NoUmask&) = delete;
  NoUmask& operator=(const NoUmask&) = delete;
  ~NoUmask() { umask(previous_); }

 private:
  static std::mutex& Turns() {
    static std::mutex turns;
    return turns;
  }

  const std::lock_guard<std::mutex> turn_;
  const mode_t previous_;
};

template <typename Call>
auto RetryInterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) {
    result = call();
  }
  return result;
}

ustring Join(const ustring& folder, const std::string& name) {
  ustring path = folder;
  path += '/';
  path += name;
  return path;
}

// Normalizes a copy, because normalizing fills a cache in its source, and callers may share a path
// between threads.
ustring Composed(const ustring& path) {
  const char* begin = path.c_str();
  const bool ascii =
      std::all_of(begin, begin + path.length(), [](char c) { return (c & 0x80) == 0; });
  return ascii ? path : ustring(path).normalize(ustring::NFC);
}

int TypeOfMode(mode_t mode) {
  switch (mode & S_IFMT) {
    case S_IFSOCK:
      return FILE_TYPE_SOCKET;
    case S_IFLNK:
      return FILE_TYPE_LINK;
    case S_IFREG:
      return FILE_TYPE_REGULAR;
    case S_IFBLK:
    case S_IFCHR:
      return FILE_TYPE_DEVICE;
    case S_IFIFO:
      return FILE_TYPE_FIFO;
    case S_IFDIR:
      return FILE_TYPE_FOLDER;
    default:
      return FILE_TYPE_NONE;
  }
}

int TypeOfEntry(const dirent& entry) {
  switch (entry.d_type) {
    case DT_FIFO:
      return FILE_TYPE_FIFO;
    case DT_CHR:
    case DT_BLK:
      return FILE_TYPE_DEVICE;
    case DT_DIR:
      return FILE_TYPE_FOLDER;
    case DT_REG:
      return FILE_TYPE_REGULAR;
    case DT_LNK:
      return FILE_TYPE_LINK;
    case DT_SOCK:
      return FILE_TYPE_SOCKET;
    default:
      return FILE_TYPE_NONE;
  }
}

void LogInputPath(const ustring& path) {
  LOG_DEBUG(kComponent, "Input file path = [%s].\n", Composed(path).c_str());
}

// Returns the composed form, which is what it logs.
ustring LogResolvedPath(const ustring& resolved) {
  ustring composed = Composed(resolved);
  LOG_DEBUG(kComponent, "FSRefMakePath outTargetPath path = [%s].\n", composed.c_str());
  return composed;
}

void LogOpenDirFailure(const ustring& path, int error) {
  LOG_ERROR(kComponent, "FSOpenDir: Failed to open directory '%s'. %s\n", path.c_str(),
            strerror(error));
}

void FillInfo(const ustring& path, const struct stat& status, _FILE_INFO_tag& info) {
  info.exist = true;
  info.mtime = static_cast<int32_t>(status.st_mtime);
  info.path = path;
  info.name = FSBaseName(path);
  info.size = status.st_size;
  info.uid = status.st_uid;
  info.gid = status.st_gid;
  info.mode = static_cast<uint16_t>(status.st_mode);
  info.dev = static_cast<int32_t>(status.st_dev);
  info.type = TypeOfMode(status.st_mode);
}

// The names in an open folder except "." and "..". All are read before the caller changes the
// folder, because file systems differ in what a stream reports after that. A read that fails ends
// the list.
std::vector<std::string> ReadNames(DIR_HANDLE& handle) {
  std::vector<std::string> names;
  DIR_ENTRY entry;
  while (FSReadDir(handle, entry) > 0) {
    std::string name = entry.name.c_str();
    if (name != "." && name != "..") {
      names.push_back(std::move(name));
    }
  }
  return names;
}

// Removes a folder tree relative to descriptors of its folders. That way paths too long for the
// system are no problem, and a link that replaces a folder meanwhile cannot lead out of the tree. A
// tree can be deeper than a thread's stack and than the limit of descriptors, so there is no
// recursion, and only a few folders are open at a time.
class TreeRemover {
 public:
  // `resolved` is `path` as the file system spells it.
  TreeRemover(const ustring& path, const ustring& resolved) : path_(path), resolved_(resolved) {}

  bool Run() {
    bool good = Remove(AT_FDCWD, path_.c_str());
    while (good && !levels_.empty()) {
      Level& level = levels_.back();
      if (level.next == level.names.size()) {
        good = Leave();
      } else {
        const std::string name = std::move(level.names[level.next++]);
        good = Remove(dirfd(level.dir.get()), name);
      }
    }
    return good;
  }

 private:
  struct Level {
    std::string name;  // in the folder above
    DirStream dir;     // closed while the walk is more than kOpenFolders folders below
    dev_t dev;
    ino_t ino;
    std::vector<std::string> names;
    size_t next;
  };

  static DirStream Open(int folder, const char* name) {
    Descriptor fd(openat(folder, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    DirStream dir(fd.valid() ? fdopendir(fd.get()) : nullptr);
    if (dir != nullptr) {
      fd.Release();  // the stream closes it
    }
    return dir;
  }

  // Removes anything but a folder; a folder is entered, or left alone if that fails.
  bool Remove(int folder, const std::string& name) {
    struct stat status;
    if (fstatat(folder, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
      return errno == ENOENT;
    }
    const int type = TypeOfMode(status.st_mode);
    if (type == FILE_TYPE_NONE) {
      return false;
    }
    const bool isRoot = levels_.empty();
    if (!isRoot) {
      (path_ += '/') += name;
      (resolved_ += '/') += name;
      LogInputPath(path_);
      LogResolvedPath(resolved_);
    }
    if (type == FILE_TYPE_FOLDER && Enter(folder, name)) {
      return true;
    }
    const bool good = type == FILE_TYPE_FOLDER || unlinkat(folder, name.c_str(), 0) == 0;
    if (!isRoot) {
      CutPaths(name);
    }
    return good;
  }

  bool Enter(int folder, const std::string& name) {
    DirStream dir = Open(folder, name.c_str());
    struct stat status;
    if (dir == nullptr || fstat(dirfd(dir.get()), &status) != 0) {
      LogOpenDirFailure(path_, errno);
      return false;
    }
    DIR_HANDLE handle;
    handle.path = path_;
    handle.dir = dir.get();
    std::vector<std::string> names = ReadNames(handle);
    levels_.push_back({name, std::move(dir), status.st_dev, status.st_ino, std::move(names), 0});
    if (levels_.size() > kOpenFolders) {
      levels_[levels_.size() - 1 - kOpenFolders].dir.reset();
    }
    return true;
  }

  // Removes the folder that is now empty. It is closed first, because some file systems keep
  // folders that are open.
  bool Leave() {
    Level done = std::move(levels_.back());
    levels_.pop_back();
    int folder = AT_FDCWD;
    if (!levels_.empty()) {
      CutPaths(done.name);
      Level& parent = levels_.back();
      if (parent.dir == nullptr && !Reopen(parent, dirfd(done.dir.get()))) {
        return false;
      }
      folder = dirfd(parent.dir.get());
    }
    done.dir.reset();
    return unlinkat(folder, done.name.c_str(), AT_REMOVEDIR) == 0;
  }

  bool Reopen(Level& level, int child) {
    level.dir = Open(child, "..");
    if (level.dir == nullptr) {
      LogOpenDirFailure(path_, errno);
      return false;
    }
    struct stat status;
    // If the child was moved meanwhile, its parent is a different folder, which is not ours to
    // empty.
    return fstat(dirfd(level.dir.get()), &status) == 0 && status.st_dev == level.dev &&
           status.st_ino == level.ino;
  }

  void CutPaths(const std::string& name) {
    path_.assign(path_.c_str(), path_.length() - name.length() - 1);
    resolved_.assign(resolved_.c_str(), resolved_.length() - name.length() - 1);
  }

  ustring path_;      // the folder that is being emptied
  ustring resolved_;  // the same, as the file system spells it
  std::vector<Level> levels_;
};

int MakeComponent(const char* prefix, bool last, bool replace, mode_t mode) {
  struct stat status;
  if (stat(prefix, &status) != 0) {
    return mkdir(prefix, mode);
  }
  if (S_ISDIR(status.st_mode)) {
    return 0;
  }
  if (replace) {
    std::remove(prefix);
    return mkdir(prefix, mode);
  }
  if (!last) {
    LOG_INFO(kComponent, "FSMKDirP: path: %s is symbolic link pointed to folder\n", prefix);
    return 0;
  }
  errno = EEXIST;
  LOG_INFO(kComponent, "FSMKDirP: path: %s is existing file or symbolic link pointed to file\n",
           prefix);
  return -1;
}

void LogCopyOpenFailure(const ustring& path, int error) {
  LOG_ERROR(kComponent, "CopyFile: open(%s): %s (%d)\n", path.c_str(), strerror(error), error);
}

int OpenForCopy(const ustring& path, int flags) {
  const int fd = RetryInterrupted([&] { return open(path.c_str(), flags | O_CLOEXEC, 0666); });
  if (fd < 0) {
    LogCopyOpenFailure(path, errno);
  }
  return fd;
}

bool IsSameRegularFile(int fd, const ustring& path) {
  struct stat a;
  struct stat b;
  return fstat(fd, &a) == 0 && S_ISREG(a.st_mode) && stat(path.c_str(), &b) == 0 &&
         a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

int WriteAll(int fd, const char* data, size_t size) {
  while (size > 0) {
    errno = 0;  // a write of 0 bytes leaves it alone, and an earlier error must not be reported
    const ssize_t written =
        RetryInterrupted([&] { return write(fd, data, std::min(size, kWriteSlice)); });
    if (written <= 0) {
      const int error = errno;
      LOG_ERROR(kComponent, "CopyFile: write: %s (%d)\n", strerror(error), error);
      return error == ENOSPC || error == EDQUOT ? kDiskFull : -1;
    }
    data += written;
    size -= static_cast<size_t>(written);
  }
  return 0;
}

// Asks the system, where it can be asked, to start writing to the disk while the next block is
// read, so that there is less to wait for at the end.
void BeginWriting([[maybe_unused]] int fd, [[maybe_unused]] off_t offset,
                  [[maybe_unused]] off_t size) {
#ifdef POSIX_FADV_DONTNEED
  posix_fadvise(fd, offset, size, POSIX_FADV_DONTNEED);
#endif
}

int CopyBytes(int from, int to) {
  const CBuffer buffer(static_cast<char*>(std::malloc(kCopyBlock)));
  if (buffer == nullptr) {
    const int error = errno;
    LOG_ERROR(kComponent, "FSCopy: malloc(%d): %s (%d)\n", kCopyBlock, strerror(error), error);
    return -1;
  }
  for (off_t done = 0;;) {
    const ssize_t count = RetryInterrupted([&] { return read(from, buffer.get(), kCopyBlock); });
    if (count < 0) {
      const int error = errno;
      LOG_ERROR(kComponent, "CopyFile: read: %s (%d)\n", strerror(error), error);
      return -1;
    }
    if (count == 0) {
      return 0;
    }
    if (const int result = WriteAll(to, buffer.get(), static_cast<size_t>(count)); result != 0) {
      return result;
    }
    BeginWriting(to, done, count);
    done += count;
  }
}

// False when bytes may have been lost. It doesn't matter if the destination cannot be flushed at
// all, like a pipe.
bool ForceToDisk(int fd) {
  if (RetryInterrupted([&] { return fsync(fd); }) == 0 || errno == EINVAL || errno == ENOTSUP) {
    return true;
  }
  const int error = errno;
  LOG_ERROR(kComponent, "CopyFile: fsync: %s (%d)\n", strerror(error), error);
  return false;
}

int MoveFolderAcross(const ustring& source, const ustring& destination, bool exact) {
  if (FSMKDir(destination, true) != 0) {
    return kFailed;
  }
  std::vector<std::string> names;
  {
    DIR_HANDLE handle;
    if (FSOpenDir(source, 0, handle) != 0) {
      return kFailed;
    }
    const HandleGuard guard(&handle);
    names = ReadNames(handle);
  }
  for (const std::string& name : names) {
    if (FSRename(Join(source, name), Join(destination, name), exact) != 0) {
      return kFailed;
    }
  }
  return std::remove(source.c_str()) == 0 ? 0 : kFailed;
}

bool IsForbidden(const ustring& path, int accessMode) {
  return access(path.c_str(), accessMode) != 0 && (errno == EACCES || errno == EPERM);
}

}  // namespace

bool _FILE_INFO_tag::operator==(const _FILE_INFO_tag& other) const {
  return exist == other.exist && size == other.size && mtime == other.mtime && type == other.type &&
         path == other.path && name == other.name;
}

int GetFileInfo(const ustring& path, _FILE_INFO_tag& info) {
  struct stat status;
  if (lstat(path.c_str(), &status) != 0) {
    if (errno != ENOENT) {
      return -1;
    }
    _FILE_INFO_tag missing;
    missing.path = path;
    missing.name = FSBaseName(path);
    info = missing;
    return 0;
  }
  FillInfo(path, status, info);
  if (info.type == FILE_TYPE_NONE) {
    return -1;
  }

  LogInputPath(path);
  ustring resolved;
  if (const int error = ResolvePath(path, LastComponent::kKeepLink, resolved); error != 0) {
    LOG_ERROR(kComponent, "FSPathMakeRef: %d\n", error);
    return -1;
  }
  const ustring composed = LogResolvedPath(resolved);
  info.path = composed.empty() ? resolved : composed;  // ill-formed text has no composed form
  info.name = FSBaseName(info.path);
  return 0;
}

bool IsFileExist(const ustring& path, bool exact) {
  const ustring composed = Composed(path);
  _FILE_INFO_tag info;
  if (composed.empty() || GetFileInfo(composed, info) != 0) {
    return false;
  }
  return info.exist && (!exact || info.path == composed);
}

int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact) {
  if (path.empty()) {
    return -1;
  }
  if (!IsFileExist(path, exact)) {
    info.exist = false;
    return 0;
  }
  return GetFileInfo(path, info) == 0 ? 0 : -2;
}

int FSMKDir(const ustring& path, bool parents) {
  if (path.empty()) {
    return -1;
  }
  _FILE_INFO_tag info;
  if (GetFileInfo(path, info) != 0) {
    LOG_ERROR(kComponent, "FSMKDir: Failed to to file info '%s'\n", path.c_str());
    return -1;
  }
  if (info.exist) {
    if (info.type == FILE_TYPE_FOLDER) {
      return 0;
    }
    LOG_ERROR(kComponent,
              "FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n",
              path.c_str(), info.type);
    return -1;
  }
  const int result =
      parents ? FSMKDirP(path, nullptr, false, kModeByUmask) : mkdir(path.c_str(), 0777);
  return result == 0 ? 0 : -2;
}

int FSMKDirP(const ustring& path, char** failedAt, bool replace, unsigned short mode) {
  if (path.empty()) {
    return -1;
  }
  const CBuffer copy(strdup(path.c_str()));
  if (copy == nullptr) {
    return -1;
  }
  std::optional<NoUmask> noUmask;
  mode_t folderMode = 0777;
  if (mode != kModeByUmask) {
    noUmask.emplace();
    folderMode = mode;
  }

  char* end = copy.get();
  if (*end == '/') {
    ++end;
  }
  int result = 0;
  for (;; ++end) {
    end += strcspn(end, "/");
    const bool last = end[0] == '\0' || end[1] == '\0';
    const char cut = std::exchange(*end, '\0');
    result = MakeComponent(copy.get(), last, replace, folderMode);
    *end = cut;
    if (last || result != 0) {
      break;
    }
  }
  if (failedAt != nullptr) {
    *failedAt = const_cast<char*>(path.c_str()) + (end - copy.get());
  }
  return result;
}

int FSMKDirFromRoot(const ustring& root, const ustring& target) {
  if (root.length() > target.length()) {
    LOG_ERROR(kComponent, "Giving a root '%s' whose length is larger then target's '%s'.\n",
              root.c_str(), target.c_str());
    return -1;
  }
  if (!FSIsParentFolder(root, target)) {
    LOG_ERROR(kComponent, "root '%s' is not a parent folder of target '%s'\n", root.c_str(),
              target.c_str());
    return -1;
  }
  const ustring rest = target.substr(root.length());
  ustring::size_type end = 0;
  do {
    end = rest.find('/', end + 1);
    const ustring prefix = rest.substr(0, end);
    LOG_DEBUG(kComponent, "FSMKDirFromRoot: create %s\n", prefix.c_str());
    if (FSMKDir(root + prefix, false) < 0) {
      return -1;
    }
  } while (end != ustring::npos);
  return 0;
}

int FSCopy(const ustring& source, const ustring& destination, bool removeSource) {
  Descriptor from(OpenForCopy(source, O_RDONLY));
  if (!from.valid()) {
    return -1;
  }
  // Opening the destination truncates it, and the source with it if both are the same file.
  if (IsSameRegularFile(from.get(), destination)) {
    LogCopyOpenFailure(destination, EINVAL);
    return -1;
  }
  const Descriptor to(OpenForCopy(destination, O_WRONLY | O_CREAT | O_TRUNC));
  if (!to.valid()) {
    return -1;
  }
  const int result = CopyBytes(from.get(), to.get());
  from.Close();
  // The source is removed only once the copy is safe, so that one of them exists at any time.
  const bool safe = ForceToDisk(to.get());
  if (result != 0 || !removeSource) {
    return result;
  }
  return safe && std::remove(source.c_str()) == 0 ? 0 : -1;
}

int FSRename(const ustring& source, const ustring& destination, bool exact) {
  if (source.empty() || destination.empty()) {
    return -1;
  }
  _FILE_INFO_tag info;
  if (FSStat(source, info, exact) != 0 || !info.exist) {
    return -2;
  }
  if (rename(source.c_str(), destination.c_str()) == 0) {
    return 0;
  }
  if (errno != EXDEV) {
    return errno == ENAMETOOLONG ? kPathTooLong : kFailed;
  }
  switch (info.type) {
    case FILE_TYPE_REGULAR:
      return FSCopy(source, destination, true) == 0 ? 0 : kFailed;
    case FILE_TYPE_FOLDER:
      return MoveFolderAcross(source, destination, exact);
    default:
      return 0;
  }
}

int FSRemove(const ustring& path, [[maybe_unused]] bool flag) {
  _FILE_INFO_tag info;
  if (path.empty() || GetFileInfo(path, info) != 0) {
    return -1;
  }
  if (!info.exist) {
    return 0;
  }
  // With a "/" after it, a link would stand for the folder that it points to.
  ustring target = path;
  target.rtrim("/");
  ustring resolved = info.path;
  if (target != path && ResolvePath(target, LastComponent::kKeepLink, resolved) != 0) {
    return kFailed;
  }
  if (resolved == "/") {
    return kFailed;  // the root cannot be removed, so its content must stay as well
  }
  return TreeRemover(target, resolved).Run() ? 0 : kFailed;
}

int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle) {
  DIR* dir = opendir(path.c_str());
  if (dir == nullptr) {
    LogOpenDirFailure(path, errno);
    return -1;
  }
  handle.dir = dir;
  handle.path = path;
  handle.flags = flags;
  return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry) {
  // readdir_r is deprecated for good reasons, and readdir is just as safe here: threads interfere
  // only if they share a stream, and a handle belongs to one thread.
  errno = 0;
  const dirent* next = readdir(handle.dir);
  if (next == nullptr) {
    const int error = errno;
    if (error == 0) {
      return 0;
    }
    LOG_ERROR(kComponent, "FSOpenDir: Failed to read directory '%s'. %s\n", handle.path.c_str(),
              strerror(error));
    return -1;
  }
  _FILE_INFO_tag info;
  if ((handle.flags & kEntryInfo) != 0) {
    const ustring path = Join(handle.path, next->d_name);
    if (FSStat(path, info, true) != 0) {
      LOG_ERROR(kComponent, "FSOpenDir: Failed to get info for '%s'\n", path.c_str());
      return -1;
    }
  }
  entry.mtime = info.mtime;
  entry.size = info.size;
  entry.name = static_cast<const char*>(next->d_name);
  entry.type = TypeOfEntry(*next);
  return 1;
}

void FSCloseDir(DIR_HANDLE& handle) {
  closedir(handle.dir);
  handle.dir = nullptr;
  handle.path.clear();
}

ustring FSParentPath(const ustring& path) {
  const ustring::size_type slash = path.rfind('/');
  return slash == ustring::npos || slash == 0 ? ustring("/") : path.substr(0, slash);
}

ustring FSBaseName(const ustring& path) {
  const ustring::size_type slash = path.rfind('/');
  return slash == ustring::npos ? path : path.substr(slash + 1);
}

bool FSIsParentFolder(const ustring& parent, const ustring& path) {
  const ustring::size_type length = parent.length();
  return path.length() >= length && path.compare(parent, length) == 0 &&
         (path.length() == length || path[length] == '/');
}

int FSMktemp(const ustring& folder, ustring& out) {
  char path[kTemplateSize];
  const int length = snprintf(path, sizeof path, "%s/XXXXXX", folder.c_str());
  const std::string pattern = path;
  // A truncated pattern would create a file somewhere else.
  errno = ENAMETOOLONG;
  const bool fits = length >= 0 && static_cast<size_t>(length) < sizeof path;
  const Descriptor file(fits ? mkostemp(path, O_CLOEXEC) : -1);
  if (!file.valid()) {
    LOG_ERROR(kComponent, "mkstemp(%s): %s\n", pattern.c_str(), strerror(errno));
    return -1;
  }
  fchmod(file.get(), 0644);
  out = static_cast<const char*>(path);
  return 0;
}

int FSCreateTempPath(const ustring& folder, ustring& out) {
  out = TmpNameGen::getInstance()->getTmpPath(folder);
  return out.empty() ? -1 : 0;
}

int FSUTime(const ustring& path, long accessTime, long modificationTime) {
  const timeval times[2] = {{accessTime, 0}, {modificationTime, 0}};
  return lutimes(path.c_str(), times);
}

bool FSTimeEqual(long a, long b) {
  return a == b;
}

bool isFileLocked(const ustring& path, int accessMode) {
  return IsForbidden(path, accessMode);
}

bool hasFilePermission(const ustring& path, int accessMode) {
  return !IsForbidden(path, accessMode);
}

bool isMountPoint(const ustring& path) {
  ustring type;
  if (GetFileSystemType(path, type) != 0) {
    LOG_ERROR(kComponent, "isMountPoint: Failed to get file system info '%s'. %s\n", path.c_str(),
              strerror(errno));
    return false;
  }
  return type == "nfs" || type == "smbfs" || type == "afpfs";
}

bool IsMSDOS(const ustring& path) {
  ustring type;
  if (GetFileSystemType(path, type) != 0) {
    LOG_ERROR(kComponent, "IsSupportLargeFile: Failed to get file system info '%s'. %s\n",
              path.c_str(), strerror(errno));
    return false;
  }
  if (type != "msdos") {
    return false;
  }
  LOG_WARNING(kComponent, "Detect a MSDOS platform for path '%s'.\n", path.c_str());
  return true;
}

int FSGetRealPath(ustring& path) {
  LOG_DEBUG(kComponent, " org path [%s]\n", path.c_str());
  ustring resolved;
  if (ResolvePath(path, LastComponent::kFollowLink, resolved) != 0) {
    return -1;
  }
  path = resolved;
  LOG_DEBUG(kComponent, " get full path [%s]\n", path.c_str());
  return 0;
}

int FSCreateSymbolicLink(const ustring& target, const ustring& linkPath) {
  if (symlink(target.c_str(), linkPath.c_str()) != 0) {
    const int error = errno;
    LOG_ERROR(
        kComponent,
        "FSCreateSymbolicLink: Failed to create symbolic link '%s' -> '%s' (code: %d, msg: %s)\n",
        target.c_str(), linkPath.c_str(), error, strerror(error));
    return -1;
  }
  return 0;
}

int FSReadSymbolicLink(const ustring& linkPath, ustring& out) {
  char text[kLinkTextSize] = {};
  const ssize_t length = readlink(linkPath.c_str(), text, sizeof text);
  if (length < 0 || static_cast<size_t>(length) == sizeof text) {
    const int error = length < 0 ? errno : ENAMETOOLONG;
    errno = error;
    LOG_ERROR(kComponent,
              "FSReadSymbolicLink: Failed to read symbolic link '%s' (code: %d, msg: %s)\n",
              linkPath.c_str(), error, strerror(error));
    return -1;
  }
  out = static_cast<const char*>(text);
  return 0;
}

int FSChown(const ustring& path, unsigned uid, unsigned gid) {
  if (lchown(path.c_str(), uid, gid) != 0) {
    const int error = errno;
    LOG_ERROR(kComponent, "FSChown: Failed to chown '%s' (code: %d, msg: %s)\n", path.c_str(),
              error, strerror(error));
    return -1;
  }
  return 0;
}
