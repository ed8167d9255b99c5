#include "log.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <ctime>
#include <future>
#include <set>

#include "support/tree.h"

#define LOG_UNIT "unit"
#include "log.h"  // again: a file may have included it before it named itself

static std::string g_system_log;  // what would have reached it

// In place of the system's.
extern "C" __attribute__((format(printf, 2, 0))) void vsyslog(int priority, const char* format,
                                                              va_list args) {
  char text[64];
  vsnprintf(text, sizeof text, format, args);
  g_system_log += std::to_string(priority) + " " + text;
}

namespace {

using Entries = std::map<std::string, std::string>;

constexpr size_t kLimit = 1048576;
constexpr size_t kStamp = 16;  // "Nov 16 20:41:07 "
const ustring kComponent = "some_debug";

Entries EntriesOf(const Config& config) {
  Entries entries;
  for (const auto& [key, value] : config) {
    entries[key.c_str()] = value.c_str();
  }
  return entries;
}

TEST(Config, ReadsLinesOfKeyAndValue) {
  const TempDir dir;
  const std::string longest(8189, 'x');
  struct Row {
    std::string text;
    Entries entries;
  };
  const Row rows[] = {
      {"a = b\r\n", {{"a", "b"}}},
      {" \t\v\fK.y-z_9 \t=\tx\t#c\n", {{"K.y-z_9", "x"}}},
      {"b=1\nb=2\n", {{"b", "2"}}},
      {"=b\n", {{"", "b"}}},
      {"# x y\n\n \t\n  # z\nx#b=c\nkey", {}},
      {"c=b#c\nd=e #f\ne= #h\n", {{"c", "b#c"}, {"d", "e"}, {"e", "#h"}}},
      {"f=\"b c\" # d\ng='f\"g'#\nh=\"\"\n", {{"f", "b c"}, {"g", "f\"g"}, {"h", ""}}},
      {"i=j'k\"l\xC3\xA9\x80\xFF\n", {{"i", "j'k\"l\xC3\xA9\x80\xFF"}}},
      {std::string("j=b\0c d\n\0 e f\ng\0=h\nk=j\n", 23), {{"j", "b"}, {"k", "j"}}},
      {"l=" + longest + "m=n", {{"l", longest}, {"m", "n"}}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    WriteFile(dir / "file", row.text);
    Config config;
    EXPECT_EQ(config.read(dir / "file"), 0);
    EXPECT_EQ(EntriesOf(config), row.entries);
  }
}

TEST(Config, ForgetsEverythingAtAMalformedLine) {
  const TempDir dir;
  const char* const texts[] = {
      "a=1\nb=2\na b\n", "key\n",    "key ",        "a=",           "a= \n",
      "a=b c\n",         "a=\"b\n",  "a=\"",        "a=\"b\tc\"",   "a='b'c",
      "a=b\x7F\n",       "a=\x01\n", "[section]\n", "\xC3\xA9=1\n",
  };
  for (const char* text : texts) {
    Config config;
    config["before"] = "x";
    WriteFile(dir / "file", text);
    EXPECT_EQ(config.read(dir / "file"), -1) << text;
    EXPECT_EQ(EntriesOf(config), Entries()) << text;
  }
}

TEST(Config, KeepsItsEntriesWhenNothingCanBeRead) {
  const TempDir dir;
  std::filesystem::current_path(dir.path);
  ASSERT_EQ(mkfifo("pipe", 0600), 0);
  // The last of them opens, and then cannot be read.
  for (const ustring path : {"", "no", ".", "pipe", "/proc/self/mem"}) {
    Config config;
    config["before"] = "x";
    EXPECT_EQ(config.read(path), -1) << path;
    EXPECT_EQ(EntriesOf(config), (Entries{{"before", "x"}})) << path;
  }
}

struct LoggerTest : testing::Test {
  ~LoggerTest() override { Logger::Destroy(); }

  void Open(int rotations) {
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, log, dir / "levels", rotations), 0);
  }

  // Writes one line of so many bytes.
  static void Write(size_t bytes) {
    const std::string text(bytes - kStamp - 1, 'f');
    errno = ENOTTY;
    Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "%s\n", text.c_str());
    EXPECT_EQ(errno, ENOTTY) << "callers test it after they have logged it";
  }

  size_t CurrentSize() const { return ReadFile(log).size(); }
  size_t RotatedSize() const { return ReadFile(log + "_0").size(); }

  const TempDir dir;
  std::string log = dir / "log";
};

TEST_F(LoggerTest, WritesWhatTheComponentsLevelLetsThrough) {
  // The highest level that is written.
  const auto highest = [this](const ustring& component) {
    WriteFile(log, "");
    for (const auto level : {Logger::LEVEL_ERROR, Logger::LEVEL_WARNING, Logger::LEVEL_NOTE,
                             Logger::LEVEL_INFO, Logger::LEVEL_DEBUG}) {
      Logger::LogMsg(level, component, "%d", level);
    }
    const std::string written = ReadFile(log);
    return written.empty() ? 0 : written.back() - '0';
  };
  WriteFile(dir / "levels",
            "chatty=\"  5abc\"\nsilent=x\nhex=0x7\nminus=-7\nmany=2147483648\n"
            "default_component=6\n");
  Open(50);
  EXPECT_EQ(highest("unknown"), Logger::LEVEL_WARNING);
  EXPECT_EQ(highest("default_component"), Logger::LEVEL_INFO);
  EXPECT_EQ(highest("chatty"), Logger::LEVEL_NOTE);
  EXPECT_EQ(highest("many"), Logger::LEVEL_DEBUG);
  EXPECT_EQ(highest("silent"), 0);
  EXPECT_EQ(highest("hex"), 0);
  EXPECT_EQ(highest("minus"), 0);
}

TEST_F(LoggerTest, StampsEveryOutputButTheSystemLogWithTheLocalTime) {
  setenv("TZ", "ABC-5:30", 1);
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const time_t before = time(nullptr);
  for (const auto type :
       {Logger::TYPE_STDOUT, Logger::TYPE_STDERR, Logger::TYPE_FILE, Logger::TYPE_SYSLOG}) {
    ASSERT_EQ(Logger::Initialize(type, log, "", 50), 0);
    Logger::LogMsg(Logger::LEVEL_WARNING, kComponent, "no end %d", 2);
  }
  LOG_NOTE(kComponent, "below the level");
  std::set<std::string> possible;
  for (time_t shifted = before + 19800; shifted <= time(nullptr) + 19800; ++shifted) {
    char text[64] = "";
    strftime(text, sizeof text, "%b %d %H:%M:%S no end 2", gmtime(&shifted));
    possible.insert(text);
  }
  const std::string out = testing::internal::GetCapturedStdout();
  const std::string err = testing::internal::GetCapturedStderr();
  for (const std::string& text : {out, err, ReadFile(log)}) {
    EXPECT_EQ(possible.count(text), 1U) << text;
  }
  EXPECT_EQ(g_system_log, "3 no end 2") << "one priority for all levels";
}

TEST_F(LoggerTest, RotatesAfterTheLineThatCrossesTheLimit) {
  WriteFile(log, "x");  // what was there before does not count
  Open(1);
  Write(kLimit - 100);
  Write(100);
  EXPECT_EQ(CurrentSize(), 1 + kLimit);
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, "", "", 9), -1) << "changes nothing";
  Write(50);
  EXPECT_EQ(RotatedSize(), kLimit + 51);
  EXPECT_EQ(CurrentSize(), 0U);

  Write(kLimit);
  Logger::ReloadLogFile();  // counts from 0 again
  Write(kLimit);
  EXPECT_EQ(CurrentSize(), 2 * kLimit);
  Write(17);
  EXPECT_EQ(RotatedSize(), 2 * kLimit + 17);
  EXPECT_EQ(CurrentSize(), 0U);
}

TEST_F(LoggerTest, KeepsOneOldFileLessThanItsDepth) {
  MakeTree(dir.path, {{"log", "file: d"}, {"log_0", "file: a"}});
  MakeTree(dir.path, {{"log_1", "file: b"}, {"log_2", "file: c"}});
  Open(3);
  Logger::DestroySharedData();  // it is made anew
  EXPECT_EQ(Logger::Rotate(), 0);
  EXPECT_EQ(TreeOf(dir.path),
            (Tree{{"log", "file: "}, {"log_0", "file: d"}, {"log_1", "file: a"}}));
}

TEST_F(LoggerTest, LosesAndTearsNoLineOfManyThreads) {
  constexpr int kLines = 3000;
  const std::string tail(300, 'x');
  const std::string threads = "abcdefgh";
  Open(50);
  Logger::DestroySharedData();
  Logger::DestroyLock();  // the first lines make both anew, at once
  std::vector<std::future<void>> running;
  for (const char thread : threads) {
    running.push_back(std::async(std::launch::async, [thread, &tail] {
      for (int line = 0; line < kLines; ++line) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "%c %d %s\n", thread, line, tail.c_str());
      }
    }));
  }
  running.clear();  // waits for them
  std::map<char, int> next;
  for (const char* end : {"_6", "_5", "_4", "_3", "_2", "_1", "_0", ""}) {
    std::ifstream file(log + end);
    ASSERT_TRUE(file) << end;
    for (std::string line; std::getline(file, line);) {
      line.erase(0, kStamp);
      const char thread = line[0];
      ASSERT_EQ(line, std::string(1, thread) + " " + std::to_string(next[thread]++) + " " + tail);
    }
  }
  for (const char thread : threads) {
    EXPECT_EQ(next[thread], kLines) << thread;
  }
}

}  // namespace
