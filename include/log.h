#pragma once

#include <pthread.h>

#include <atomic>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>
#include <type_traits>

#include "ustring.h"

/// @file
/// The process-wide log (`Logger`) and the reader of `key=value` files (`Config`).
///
/// A source file that logs gives itself a name and then uses the LOG_… macros at the end of this
/// header:
///
///     #define LOG_UNIT "extractor"
///     #include "log.h"
///     …
///     LOG_ERROR(kComponent, "cannot open '%s': %s (%d)\n", path.c_str(), strerror(errno), errno);
///
/// LOG_UNIT is looked up where a macro is used, so it may also be defined after the include. The
/// macros replace the constants of the same names in <syslog.h>; don't include that after this
/// header.

/// Writes the lines of all threads to one destination, one at a time, filtered by a level per
/// component.
///
/// It works before `Initialize`, too: warnings and errors then go to standard error. Call
/// `Initialize`, `ReloadLogFile` and `Destroy` during start-up and shutdown, while only one thread
/// is running. Between them any thread may call `LogMsg`, `LogMsg2` and `LogMSG_c`.
///
/// Several processes may append to the same log file, as two launchers do for a moment when one is
/// started while the other is running. Lines of up to 4096 bytes do not mix. But each process
/// counts only its own bytes, and does not notice that another has rotated: it goes on writing to
/// the renamed file.
///
/// Nothing here throws except `std::bad_alloc` from `ustring` and the map of levels.
class Logger {
 public:
  enum Type : int {
    TYPE_SYSLOG = 1,  ///< the system log: priority 3 for every line, no timestamp of ours
    TYPE_STDOUT = 2,  ///< standard output
    TYPE_STDERR = 3,  ///< standard error
    TYPE_FILE = 4     ///< a file, rotated once this process has written 1 MiB to it
  };

  /// The priorities of syslog: the smaller the number, the more severe. The tag in a line
  /// ("[ERROR]") is part of the caller's format.
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
  /// The levels from `config` are added to those already known; only "default_component" is first
  /// reset to 4. An earlier log file is not closed. The new one is appended to, and programs that
  /// this process starts do not inherit it. After a failure lines go where they went before, with
  /// the byte count unchanged; levels that were read are kept.
  ///
  /// @param path       the log file; used for the file type only
  /// @param config     a file of lines `component=level`, or empty; a file that cannot be read sets
  ///                   no levels
  /// @param rotations  N of `Rotate`, 0 or more; used for the file type only
  /// @return 0; -1 when memory is exhausted, or when the type is a file and `path` is empty or
  ///         cannot be opened
  static int Initialize(Type type, const ustring& path, const ustring& config, int rotations);

  /// Writes one line, preceded by "%b %d %H:%M:%S " (local time in the zone that `Initialize`
  /// found), and flushes it. No line end is added: the format supplies its own. A line above its
  /// component's level (4 if none is configured) is dropped, and so is every line while the log
  /// file is not open. `errno` is preserved.
  ///
  /// The line that takes the log file beyond 1048576 bytes still goes into it; then `Rotate` is
  /// called, and its failure is not reported. Other threads that log meanwhile wait. The bytes are
  /// counted from the moment this process opened the file, so a file that survives several starts
  /// can be larger than that.
  ///
  /// @param component  keep it in a constant `ustring`: a literal would be converted, and
  ///                   allocated, for every line
  static void LogMsg(Level level, const ustring& component, const char* format, ...)
      __attribute__((format(printf, 3, 4)));

  /// `LogMsg` with a started argument list, which cannot be used again afterwards.
  static void LogMsg2(Level level, const ustring& component, const char* format, va_list args)
      __attribute__((format(printf, 3, 0)));

  /// Renames the log file PATH to PATH_0 and each older PATH_i to PATH_(i+1), removes the oldest
  /// and opens a new PATH. With N rotations N-1 old files are kept (one if N is smaller than 2).
  /// Old files that are missing or cannot be renamed are skipped. The caller holds the lock. Not
  /// atomic: a failure leaves the older files shifted.
  ///
  /// @return 0; -1 when the log file cannot be renamed or reopened: lines are then dropped until
  ///         `ReloadLogFile` or `Initialize` opens it; -1 with nothing changed when there is no log
  ///         file, when the rotated names would reach 1024 bytes or when memory is exhausted
  static int Rotate();

  /// Closes the log file and reopens it by its path, with a byte count of 0. If that fails, lines
  /// are dropped until it is called again. Does nothing for the other types.
  static void ReloadLogFile();

  /// Closes the log file and frees everything except the levels. Lines are dropped until the next
  /// `Initialize`.
  static void Destroy();

  /// The one lock, not recursive. Creating it when it exists does nothing, and neither does
  /// destroying, locking or unlocking it when it doesn't. Several threads may create it at once.
  /// When memory is exhausted there is none, and lines are dropped.
  static void InitializeLock();
  static void DestroyLock();
  static void Lock();
  static void Unlock();

  /// The byte count of the log file and the number of rotations. If either is missing, both are
  /// created anew: 0 bytes (-1 where lines don't go to a file) and 0 rotations.
  ///
  /// @return 0; -1, with neither of them, when memory is exhausted
  static int InitializeSharedData();
  static void DestroySharedData();

  /// Do nothing: writers in different processes are not coordinated.
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
  // Atomic: two threads may log the very first lines.
  static std::atomic<pthread_mutex_t*> log_lock;
  static int32_t* log_size;
  static uint64_t* log_rotated_count_shared;
  static uint64_t log_rotated_count_private;
};

/// `Logger::LogMsg2` for callers that have no `ustring`.
void LogMSG_c(int level, char* component, const char* format, va_list args)
    __attribute__((format(printf, 3, 0)));

/// The same for callers that pass the started list as a `char*`. On some hosts a `va_list` is a
/// `char*`, and the function above takes it; on all others `args` is the address of the list.
template <typename List, typename = std::enable_if_t<std::is_same_v<List, char*> &&
                                                     !std::is_same_v<va_list, char*>>>
__attribute__((format(printf, 3, 0))) void LogMSG_c(int level, char* component, const char* format,
                                                    List args) {
  LogMSG_c(level, component, format, *reinterpret_cast<va_list*>(args));
}

/// The entries of a text file with lines `key=value`.
///
///     # a comment
///     key = value     # blanks on both sides are ignored; a comment needs a blank before it
///     key="a value"   # or in single quotes: may contain blanks, or be empty
///
/// A key consists of ASCII letters, digits, `_`, `-` and `.`, and may be empty. A value may contain
/// any byte except control characters; a quoted one also not its quote, and an unquoted one ends at
/// a blank. When a key occurs more than once, the last line counts.
class Config : public std::map<ustring, ustring> {
 public:
  /// Adds the entries of a file. A line longer than 8191 bytes is read as several lines of that
  /// length, and a NUL byte hides the rest of its line.
  ///
  /// @return 0; -1, with the entries unchanged, when `path` is empty, cannot be opened or is not a
  ///         regular file (a pipe is not waited for); -1, with no entries left at all, when a line
  ///         is malformed; -1, with the entries read so far, when reading fails
  int read(const ustring& path);

  /// The decimal number at the start of a value; blanks before it and any text after it are
  /// ignored. 0 if there is none, and the nearest int if it is out of range. A missing key is added
  /// with an empty value.
  int get_int(const ustring& key);
};

#undef LOG_WARNING
#undef LOG_INFO
#undef LOG_DEBUG

#define LOG_LINE_(level, tag, component, format, ...) \
  Logger::LogMsg(level, component, tag " " LOG_UNIT "(%d): " format, __LINE__, ##__VA_ARGS__)

/// Each logs one line, with "[TAG] unit(line): " in front. `format` is a string literal. It
/// should end in "\n": otherwise the next line follows on the same one.
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
