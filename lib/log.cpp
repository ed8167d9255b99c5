#include <syslog.h>  // before log.h, which replaces some of its constants

#include "log.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <memory>
#include <new>
#include <sstream>
#include <string>

#include "owners.h"

namespace {

constexpr int64_t kRotationSize = 1048576;
constexpr size_t kRotatedNameSize = 1024;
constexpr int kLineSize = 8192;

// Callers still test errno after logging it.
class ErrnoKeeper {
 public:
  ErrnoKeeper() : saved_(errno) {}
  ~ErrnoKeeper() { errno = saved_; }
  ErrnoKeeper(const ErrnoKeeper&) = delete;
  ErrnoKeeper& operator=(const ErrnoKeeper&) = delete;

 private:
  const int saved_;
};

class Locked {
 public:
  Locked() { Logger::Lock(); }
  ~Locked() { Logger::Unlock(); }
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;
};

// fopen has no portable way to ask for close-on-exec.
FILE* OpenStream(const ustring& path, int flags, const char* mode) {
  Descriptor fd(open(path.c_str(), flags | O_CLOEXEC, 0666));
  FILE* stream = fd.valid() ? fdopen(fd.get(), mode) : nullptr;
  if (stream != nullptr) {
    fd.Release();  // the stream closes it
  }
  return stream;
}

FILE* OpenForAppending(const ustring& path) {
  return OpenStream(path, O_WRONLY | O_CREAT | O_APPEND, "a");
}

bool IsFileType(Logger::Type type) {
  return type != Logger::TYPE_SYSLOG && type != Logger::TYPE_STDOUT && type != Logger::TYPE_STDERR;
}

int WriteTime(FILE* stream) {
  // Once is enough: localtime() would check the time zone file again for every line.
  static const bool zone_known = (tzset(), true);
  const time_t now = time(nullptr);
  struct tm local = {};
  char text[512] = "";
  if (zone_known && localtime_r(&now, &local) != nullptr) {
    strftime(text, sizeof text, "%b %d %H:%M:%S ", &local);
  }
  return fprintf(stream, "%s", text);
}

bool FormRotatedName(char (&name)[kRotatedNameSize], const ustring& path, int index) {
  const int length = snprintf(name, sizeof name, "%s_%d", path.c_str(), index);
  return length >= 0 && static_cast<size_t>(length) < sizeof name;
}

enum class Line { kEntry, kNothing, kMalformed };

// Not <cctype>: the locale must not decide what a key may contain.
bool IsBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsKeyChar(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
         c == '-' || c == '.';
}

bool EndsValue(char c, char terminator) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7f || c == terminator;
}

const char* SkipBlanks(const char* at) {
  while (IsBlank(*at)) {
    ++at;
  }
  return at;
}

Line ParseLine(const char* at, std::string* key, std::string* value) {
  const char* const key_begin = at = SkipBlanks(at);
  while (IsKeyChar(*at)) {
    ++at;
  }
  if (*at == '\0' || *at == '#') {
    return Line::kNothing;
  }
  key->assign(key_begin, at);
  at = SkipBlanks(at);
  if (*at != '=') {
    return Line::kMalformed;
  }
  at = SkipBlanks(at + 1);
  if (*at == '\0') {
    return Line::kMalformed;
  }
  const bool quoted = *at == '"' || *at == '\'';
  const char terminator = quoted ? *at++ : ' ';
  const char* const value_begin = at;
  while (!EndsValue(*at, terminator)) {
    ++at;
  }
  value->assign(value_begin, at);
  if (quoted && *at++ != terminator) {
    return Line::kMalformed;
  }
  at = SkipBlanks(at);
  return *at == '\0' || *at == '#' ? Line::kEntry : Line::kMalformed;
}

// Without O_NONBLOCK, opening a pipe of this name would block until somebody writes to it.
FileStream OpenRegularFile(const ustring& path) {
  FileStream file(OpenStream(path, O_RDONLY | O_NONBLOCK, "r"));
  struct stat info = {};
  if (file != nullptr && (fstat(fileno(file.get()), &info) != 0 || !S_ISREG(info.st_mode))) {
    file.reset();
  }
  return file;
}

}  // namespace

Logger::Type Logger::log_type = Logger::TYPE_STDOUT;
FILE* Logger::log_fp = stderr;
ustring Logger::log_path;
int Logger::rotate_cnt = 50;
std::map<ustring, int> Logger::log_level;
bool Logger::log_initialized = true;
std::atomic<pthread_mutex_t*> Logger::log_lock{nullptr};
int32_t* Logger::log_size = nullptr;
uint64_t* Logger::log_rotated_count_shared = nullptr;
uint64_t Logger::log_rotated_count_private = 0;

int Logger::Initialize(Type type, const ustring& path, const ustring& config, int rotations) {
  const int32_t previous_size = log_size != nullptr ? *log_size : -1;
  DestroySharedData();
  DestroyLock();
  InitializeLock();
  log_rotated_count_private = 0;
  if (InitializeSharedData() != 0) {
    return -1;
  }
  *log_size = previous_size;
  tzset();

  log_level["default_component"] = LEVEL_WARNING;
  if (!config.empty()) {
    Config levels;
    levels.read(config);
    for (const auto& entry : levels) {
      log_level[entry.first] = levels.get_int(entry.first);
    }
  }

  if (IsFileType(type)) {
    FILE* stream = path.empty() ? nullptr : OpenForAppending(path);
    if (stream == nullptr) {
      return -1;
    }
    log_fp = stream;
    log_path = path;
    rotate_cnt = rotations;
    *log_size = 0;
  } else {
    log_fp = type == TYPE_STDERR ? stderr : type == TYPE_STDOUT ? stdout : nullptr;
    log_path.clear();
    *log_size = -1;
  }
  log_type = type;
  log_initialized = true;
  return 0;
}

void Logger::LogMsg(Level level, const ustring& component, const char* format, ...) {
  va_list args;
  va_start(args, format);
  LogMsg2(level, component, format, args);
  va_end(args);
}

void Logger::LogMsg2(Level level, const ustring& component, const char* format, va_list args) {
  if (!log_initialized) {
    return;
  }
  const ErrnoKeeper keeper;
  InitializeLock();
  const Locked locked;
  if (log_lock == nullptr || InitializeSharedData() != 0) {
    return;
  }
  // Only under the lock: during a rotation there is no stream for a moment, and a line that is
  // logged then must wait, not get lost.
  if (log_type != TYPE_SYSLOG && log_fp == nullptr) {
    return;
  }
  FollowRotation();
  if (IsWanted(level, component)) {
    Account(Write(format, args));
  }
}

int Logger::Rotate() {
  char from[kRotatedNameSize];
  char to[kRotatedNameSize];
  // Truncated names would all be the same, and could even be the log file's own. The last index has
  // the most digits.
  if (log_path.empty() || !FormRotatedName(to, log_path, rotate_cnt - 1)) {
    return -1;
  }
  if (InitializeSharedData() != 0) {
    return -1;
  }
  for (int i = rotate_cnt - 2; i >= 0; --i) {
    FormRotatedName(from, log_path, i);
    FormRotatedName(to, log_path, i + 1);
    rename(from, to);
  }
  FormRotatedName(to, log_path, rotate_cnt - 1);
  remove(to);

  CloseLogFile();
  FormRotatedName(to, log_path, 0);
  if (rename(log_path.c_str(), to) != 0) {
    return -1;
  }
  log_fp = OpenForAppending(log_path);
  if (log_fp == nullptr) {
    return -1;
  }
  ++*log_rotated_count_shared;
  ++log_rotated_count_private;
  return 0;
}

void Logger::ReloadLogFile() {
  if (!IsFileType(log_type)) {
    return;
  }
  CloseLogFile();
  log_fp = OpenForAppending(log_path);
  if (log_fp != nullptr && log_size != nullptr) {
    *log_size = 0;
  }
}

void Logger::Destroy() {
  log_initialized = false;
  if (IsFileType(log_type)) {
    CloseLogFile();
    log_path.clear();
  }
  DestroySharedData();
  DestroyLock();
}

void Logger::InitializeLock() {
  if (log_lock != nullptr) {
    return;
  }
  auto mutex = std::unique_ptr<pthread_mutex_t>(new (std::nothrow) pthread_mutex_t);
  if (mutex == nullptr || pthread_mutex_init(mutex.get(), nullptr) != 0) {
    return;
  }
  pthread_mutex_t* none = nullptr;
  if (log_lock.compare_exchange_strong(none, mutex.get())) {
    (void)mutex.release();
  } else {
    pthread_mutex_destroy(mutex.get());  // another thread was faster
  }
}

void Logger::DestroyLock() {
  pthread_mutex_t* mutex = log_lock.exchange(nullptr);
  if (mutex != nullptr) {
    pthread_mutex_destroy(mutex);
    delete mutex;
  }
}

void Logger::Lock() {
  pthread_mutex_t* mutex = log_lock;
  if (mutex != nullptr) {
    pthread_mutex_lock(mutex);
  }
}

void Logger::Unlock() {
  pthread_mutex_t* mutex = log_lock;
  if (mutex != nullptr) {
    pthread_mutex_unlock(mutex);
  }
}

int Logger::InitializeSharedData() {
  if (log_size != nullptr && log_rotated_count_shared != nullptr) {
    return 0;
  }
  DestroySharedData();
  log_size = new (std::nothrow) int32_t(IsFileType(log_type) ? 0 : -1);
  log_rotated_count_shared = new (std::nothrow) uint64_t(0);
  if (log_size == nullptr || log_rotated_count_shared == nullptr) {
    DestroySharedData();
    return -1;
  }
  return 0;
}

void Logger::DestroySharedData() {
  delete log_size;
  log_size = nullptr;
  delete log_rotated_count_shared;
  log_rotated_count_shared = nullptr;
}

void Logger::InitializeFileLock() {}

void Logger::DestroyFileLock() {}

void Logger::CloseLogFile() {
  if (log_fp != nullptr) {
    fclose(log_fp);
    log_fp = nullptr;
  }
}

// Another writer has rotated, so our stream still writes to what is now an old file.
void Logger::FollowRotation() {
  if (log_rotated_count_private != *log_rotated_count_shared) {
    ReloadLogFile();
    log_rotated_count_private = *log_rotated_count_shared;
  }
}

bool Logger::IsWanted(Level level, const ustring& component) {
  const auto configured = log_level.find(component);
  return level <= (configured != log_level.end() ? configured->second : LEVEL_WARNING);
}

// Returns the bytes that count towards rotation; negative when writing failed.
int64_t Logger::Write(const char* format, va_list args) {
  switch (log_type) {
    case TYPE_SYSLOG:
      vsyslog(LOG_ERR, format, args);
      return 0;
    case TYPE_STDOUT:
    case TYPE_STDERR:
    case TYPE_FILE: {
      if (log_fp == nullptr) {
        return 0;
      }
      int64_t bytes = WriteTime(log_fp);
      bytes += vfprintf(log_fp, format, args);
      fflush(log_fp);
      return bytes;
    }
  }
  vfprintf(stderr, format, args);
  return 0;
}

void Logger::Account(int64_t bytes) {
  if (log_type != TYPE_FILE || *log_size < 0 || bytes < 0) {
    return;
  }
  const int64_t total = *log_size + bytes;
  if (total <= kRotationSize) {
    *log_size = static_cast<int32_t>(total);
    return;
  }
  Rotate();
  *log_size = 0;
}

void LogMSG_c(int level, char* component, const char* format, va_list args) {
  Logger::LogMsg2(static_cast<Logger::Level>(level), ustring(component), format, args);
}

int Config::read(const ustring& path) {
  const FileStream file = path.empty() ? nullptr : OpenRegularFile(path);
  if (file == nullptr) {
    return -1;
  }
  char line[kLineSize];
  std::string key;
  std::string value;
  while (fgets(line, sizeof line, file.get()) != nullptr) {
    switch (ParseLine(line, &key, &value)) {
      case Line::kEntry:
        (*this)[ustring(key)] = value;
        break;
      case Line::kNothing:
        break;
      case Line::kMalformed:
        clear();
        return -1;
    }
  }
  return ferror(file.get()) != 0 ? -1 : 0;
}

int Config::get_int(const ustring& key) {
  int number = 0;
  std::istringstream((*this)[key].c_str()) >> number;
  return number;
}
