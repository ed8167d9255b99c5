/// The process-wide log (`Logger`) and the reader of `key=value` files (`Config`).
///
/// A source file that logs names itself and then uses the LOG_… macros at the end of this header:
///
///     #define LOG_UNIT "extractor"
///     #include "log.h"
///     …
///     LOG_ERROR(kComponent, "cannot open '%s': %s (%d)\n", path.c_str(), strerror(errno), errno);
///
/// LOG_UNIT is looked up where a macro is used, so the name may also follow the include. The macros
/// replace the constants of the same names in <syslog.h>, which must not be included after this
/// header.

#pragma once

#include <pthread.h>

#include <atomic>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>
#include <type_traits>

#include "ustring.h"

/// Writes the lines of all threads to one place, one after the other, filtered by a level per
/// component.
///
/// Usable from the start: before `Initialize` it writes to standard error whatever is a WARNING or
/// worse. `Initialize`, `ReloadLogFile` and `Destroy` belong to start-up and shutdown, while only
/// one thread runs; `LogMsg`, `LogMsg2` and `LogMSG_c` may be called by any thread at any time
/// between them.
class Logger {
 public:
  enum Type : int {
    TYPE_SYSLOG = 1,  ///< the system log, every line with priority 3 and without timestamp
    TYPE_STDOUT = 2,  ///< standard output
    TYPE_STDERR = 3,  ///< standard error
    TYPE_FILE = 4     ///< a file, rotated after 1 MiB
  };

  /// Syslog's priorities: the smaller the number, the more severe. The tag in a line is part of the
  /// caller's format.
  enum Level : int {
    LEVEL_ERROR = 3,
    LEVEL_WARNING = 4,
    LEVEL_NOTE = 5,
    LEVEL_INFO = 6,
    LEVEL_DEBUG = 7
  };

  Logger() = delete;

  /// Chooses where lines go, and reads the levels.
  ///
  /// Levels are added to those already known (none is forgotten), only "default_component" is set
  /// back to 4 first. An earlier log file stays open. The new one is appended to, and is closed in
  /// programs that this process starts. On failure lines keep going where they went before, into
  /// the same file with the same byte count; levels that were read stay.
  ///
  /// @param path       the log file; matters for the file type only
  /// @param config     a file of lines `component=level`, or empty; one that cannot be read
  /// configures nothing
  /// @param rotations  N of `Rotate`, 0 or more; matters for the file type only
  /// @return 0, or -1 when memory is exhausted, or for the file type when `path` is empty or cannot
  /// be opened
  static int Initialize(Type type, const ustring& path, const ustring& config, int rotations);

  /// Writes one line, "%b %d %H:%M:%S " before it (local time, of the zone that `Initialize`
  /// found), and flushes it. Nothing is added behind the text: the format brings its own line end.
  /// A line above its component's level (4 where none is configured) is dropped, and so is every
  /// line while the log file is not open. `errno` is left as it was.
  ///
  /// The line that brings the log file above 1048576 bytes (counted since it was opened) still goes
  /// into it; `Rotate` follows, whose failure is not reported. Threads that log meanwhile wait.
  ///
  /// @param component  keep it in a constant `ustring`: made from a literal it would be allocated
  /// for every line
  static void LogMsg(Level level, const ustring& component, const char* format, ...)
      __attribute__((format(printf, 3, 4)));

  /// `LogMsg` with a started argument list, which is used up.
  static void LogMsg2(Level level, const ustring& component, const char* format, va_list args)
      __attribute__((format(printf, 3, 0)));

  /// Renames the log file PATH to PATH_0, the older PATH_i to PATH_(i+1), removes the oldest and
  /// opens a new PATH: of N rotations N-1 old files stay (one for smaller N). Older files that are
  /// missing or cannot be renamed are skipped. The caller holds the lock. Not atomic: a failure
  /// leaves older files shifted.
  ///
  /// @return 0; -1 when the log file cannot be renamed or opened anew, and then lines are dropped
  ///     until `ReloadLogFile` or `Initialize` opens it; -1 with nothing changed when there is no
  ///     log file, when its rotated names would reach 1024 bytes or when memory is exhausted
  static int Rotate();

  /// Closes the log file and opens it again by its path, with a byte count of 0. When that fails
  /// lines are dropped until it is called again. Does nothing for the other types.
  static void ReloadLogFile();

  /// Closes the log file and frees everything but the levels. Lines are dropped until the next
  /// `Initialize`.
  static void Destroy();

  /// The one lock. Creating an existing one, or destroying, locking or unlocking a missing one,
  /// does nothing. It can be created by several threads at once; when memory is exhausted there is
  /// none. Not recursive.
  static void InitializeLock();
  static void DestroyLock();
  static void Lock();
  static void Unlock();

  /// The byte count of the log file and the count of rotations. When one of them is missing both
  /// are made anew: no bytes (-1 where lines do not go to a file) and no rotations.
  /// @return 0, or -1 with neither of them when memory is exhausted
  static int InitializeSharedData();
  static void DestroySharedData();

  /// Nothing: the log has one writing process.
  static void InitializeFileLock();
  static void DestroyFileLock();

 private:
  static void CloseLogFile();
  static void FollowRotation();
  static bool IsWanted(Level level, const ustring& component);
  static int64_t Write(const char* format, va_list args) __attribute__((format(printf, 1, 0)));
  static void Account(int64_t bytes);

  static Type log_type;
  static FILE* log_fp;  // owned for the file type only; null when there is no stream
  static ustring log_path;
  static int rotate_cnt;
  static std::map<ustring, int> log_level;
  static bool log_initialized;
  static std::atomic<pthread_mutex_t*>
      log_lock;  // atomic: two threads may log the very first lines
  static int32_t* log_size;
  static uint64_t* log_rotated_count_shared;
  static uint64_t log_rotated_count_private;
};

/// `Logger::LogMsg2` for callers that have no `ustring`.
void LogMSG_c(int level, char* component, const char* format, va_list args)
    __attribute__((format(printf, 3, 0)));

/// The same for callers that pass the started list as a `char*`. On some hosts a `va_list` is one,
/// and the function above takes it; on all others `args` is the address of the list.
template <typename List, typename = std::enable_if_t<std::is_same_v<List, char*> &&
                                                     !std::is_same_v<va_list, char*>>>
__attribute__((format(printf, 3, 0))) void LogMSG_c(int level, char* component, const char* format,
                                                    List args) {
  LogMSG_c(level, component, format, *reinterpret_cast<va_list*>(args));
}

/// The entries of a text file of lines `key=value`.
///
///     # a comment
///     key = value     # blanks around both; a comment needs a blank before it
///     key="a value"   # or in single quotes: with blanks, or empty
///
/// Keys are ASCII letters, digits, `_`, `-` and `.`, and may be empty. Values hold any byte but
/// control characters; in quotes also not the quote itself. An unquoted value ends at a blank. Of
/// lines with the same key the last one counts.
class Config : public std::map<ustring, ustring> {
 public:
  /// Adds the entries of a file. A line of more than 8191 bytes is read as several lines of that
  /// length; a NUL byte ends the line for the reader.
  ///
  /// @return 0; -1 when `path` is empty, cannot be opened or is not a regular file (a pipe or a
  /// folder is not waited
  ///         for), all with the entries unchanged; -1 with no entries at all, not even those of
  ///         before, when a line is malformed; -1 with the entries that came before it when reading
  ///         fails
  int read(const ustring& path);

  /// The leading decimal number of a value, blanks before it and any text behind it ignored; 0 when
  /// there is none, and the nearest int when it fits none. A missing key is added with an empty
  /// value.
  int get_int(const ustring& key);
};

#undef LOG_WARNING
#undef LOG_INFO
#undef LOG_DEBUG

#define LOG_LINE_(level, tag, component, format, ...) \
  Logger::LogMsg(level, component, tag " " LOG_UNIT "(%d): " format, __LINE__, ##__VA_ARGS__)

/// One line of the unit LOG_UNIT, "[TAG] unit(line): " before it. `format` is a string literal and
/// ends in "\n".
#define LOG_ERROR(component, format, ...) \
  LOG_LINE_(Logger::LEVEL_ERROR, "[ERROR]", component, format, ##__VA_ARGS__)
#define LOG_WARNING(component, format, ...) \
  LOG_LINE_(Logger::LEVEL_WARNING, "[WARNING]", component, format, ##__VA_ARGS__)
#define LOG_NOTE(component, format, ...) \
  LOG_LINE_(Logger::LEVEL_NOTE, "[NOTE]", component, format, ##__VA_ARGS__)
#define LOG_INFO(component, format, ...) \
  LOG_LINE_(Logger::LEVEL_INFO, "[INFO]", component, format, ##__VA_ARGS__)
#define LOG_DEBUG(component, format, ...) \
  LOG_LINE_(Logger::LEVEL_DEBUG, "[DEBUG]", component, format, ##__VA_ARGS__)
