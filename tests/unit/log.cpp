#include "log.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <ctime>
#include <future>

#include "support/tree.h"

#define LOG_UNIT "unit"
#include "log.h"  // again: a file may have included it before it named itself

namespace {

using Sizes = std::pair<size_t, size_t>;

constexpr size_t kLimit = 1048576;
constexpr size_t kStamp = 16;  // "Nov 16 20:41:07 "

TEST(Config, TakesWellFormedLinesAndForgetsAllAtAMalformedOne) {
  const TempDir dir;
  const std::string file = dir / "file", piece(8189, 'x'),
                    nuls("j=b\0c d\n\0 e f\ng\0=h\nk=j\n", 23);
  WriteFile(
      file,
      nuls + "l=" + piece +
          "m=n\na = b\r\n \t\v\fK.y-z_9 \t=\tx\t#c\nb=1\nb=2\n=b\n# x y\n\n \t\n  # z\nx#b=c\n"
          "c=b#c\nd=e #f\ne= #h\nf=\"b c\" # d\ng='f\"g'#\nh=\"\"\ni=j'k\"l\xC3\xA9\x80\xFF\nkey");
  Config config;
  config["~"] = "kept";
  EXPECT_EQ(config.read(file), 0);
  ASSERT_EQ(mkfifo((dir / "pipe").c_str(), 0600), 0);
  // Where there is a file of the last name, it opens and then cannot be read.
  EXPECT_EQ(config.read(dir / "no") + config.read(dir.path) + config.read(dir / "pipe") +
                config.read("/proc/self/mem"),
            -4);
  EXPECT_EQ(testing::PrintToString(config),
            "{ (, b), (K.y-z_9, x), (a, b), (b, 2), (c, b#c), (d, e), (e, #h), (f, b c), (g, "
            "f\"g), (h, ), "
            "(i, j'k\"l\xC3\xA9\x80\xFF), (j, b), (k, j), (l, " +
                piece + "), (m, n), (~, kept) }");
  for (const char* text :
       {"a=1\nb=2\na b\n", "key\n", "key ", "a=", "a= \n", "a=b c\n", "a=\"b\n", "a=\"",
        "a=\"b\tc\"\n", "a='b'c\n", "a=b\x7F\n", "a=\x01\n", "[section]\n", "\xC3\xA9=1\n"}) {
    config["~"] = "kept";
    WriteFile(file, text);
    EXPECT_TRUE(config.read(file) == -1 && config.empty()) << text;
  }
}

class LoggerTest : public testing::Test {
 protected:
  ~LoggerTest() override { Logger::Destroy(); }

  void Open(int rotations) {
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, log, dir / "levels", rotations), 0);
  }

  // Writes lines of so many bytes. Returns the sizes of PATH_0 and PATH, 0 where there is no such
  // file.
  Sizes Fill(const std::vector<size_t>& lines) {
    for (const size_t line : lines) {
      errno = ENOTTY;
      Logger::LogMsg(Logger::LEVEL_ERROR, "some_debug", "%s\n",
                     std::string(line - kStamp - 1, 'f').c_str());
      EXPECT_EQ(errno, ENOTTY);
    }
    return {ReadFile(log + "_0").size(), ReadFile(log).size()};
  }

  const TempDir dir;
  std::string log = dir / "log";
};

TEST_F(LoggerTest, WritesWhatTheComponentsLevelLetsThrough) {
  // How many of the five levels each component wrote.
  const auto written = [this](const char* config) {
    WriteFile(dir / "levels", config);
    Open(50);
    std::string counts;
    for (const ustring component :
         {"unknown", "default_component", "chatty", "silent", "hex", "minus", "many"}) {
      WriteFile(log, "");
      for (int level = 3; level < 8; ++level)
        Logger::LogMsg(Logger::Level(level), component, "%d", level);
      counts += std::to_string(ReadFile(log).size() / (kStamp + 1));
    }
    return counts;
  };
  EXPECT_EQ(
      written(
          "chatty=\"  5abc\"\nsilent=x\nhex=0x7\nminus=-7\ndefault_component=6\nmany=2147483648"),
      "2430005");
  EXPECT_EQ(written("silent=7\nmalformed line\n"), "2230005");
}

TEST_F(LoggerTest, StampsEveryOutputWithTheLocalTime) {
  setenv("TZ", "ABC-5:30", 1);
  for (const unsigned type : {1U, 2U, 3U, 4U}) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    ASSERT_EQ(Logger::Initialize(static_cast<Logger::Type>(type), log, "", 50), 0);
    Logger::LogMsg(Logger::LEVEL_ERROR, "some_debug", "no end %d", 2);
    const std::string out = testing::internal::GetCapturedStdout(),
                      err = testing::internal::GetCapturedStderr();
    std::set<std::string> possible;  // in this second, or the one before
    for (const time_t shifted : {time(nullptr) + 19799, time(nullptr) + 19800}) {
      char text[64] = "";
      if (type != Logger::TYPE_SYSLOG)
        strftime(text, sizeof text, "%b %d %H:%M:%S no end 2", gmtime(&shifted));
      possible.insert(std::string("###").insert(type % 4, text));
    }
    EXPECT_EQ(possible.count(ReadFile(log) + "##" + out + "#" + err), 1U) << type << out << err;
  }
}

TEST(Logger, WritesWarningsToStandardErrorBeforeInitialize) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // a new process, where nothing was initialised
  EXPECT_EXIT(
      (LOG_NOTE("some_debug", "dropped\n"), LOG_WARNING("some_debug", "written\n"), exit(0)),
      testing::ExitedWithCode(0), "^.{16}.WARNING. unit.[0-9]+.: written\n$");
}

TEST_F(LoggerTest, RotatesOrDropsLinesAfterTheOneThatCrossesTheLimit) {
  WriteFile(log, "x");  // does not count
  Open(1);
  EXPECT_EQ(Fill({kLimit - 100, 100}), Sizes(0, 1 + kLimit));
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, "", "", 9), -1);  // changes nothing
  EXPECT_EQ(Fill({50}), Sizes(kLimit + 51, 0));
  Fill({kLimit});
  Logger::ReloadLogFile();  // counts from 0 again
  EXPECT_EQ(Fill({kLimit - 16}), Sizes(kLimit + 51, 2 * kLimit - 16));
  EXPECT_EQ(Fill({17}), Sizes(2 * kLimit + 1, 0));
  std::filesystem::remove(log);
  Logger::DestroySharedData();  // now the count of rotations differs, as it does when another
                                // writer has rotated
  EXPECT_EQ(Fill({100}), Sizes(2 * kLimit + 1, 100));
  std::filesystem::remove(log);  // cannot be renamed then
  EXPECT_EQ(Fill({kLimit, 100}), Sizes(0, 0));
}

TEST_F(LoggerTest, RotatesWithoutTheSharedData) {
  Open(50);
  Logger::DestroySharedData();
  EXPECT_EQ(Logger::Rotate(), 0);
  EXPECT_EQ(ListTree(dir.path), "log= log_0=");
}

void LogThroughPlainPointer(char* component, const char* format, ...)
    __attribute__((format(printf, 2, 3)));

void LogThroughPlainPointer(char* component, const char* format, ...) {
  va_list args;
  va_start(args, format);
  if constexpr (std::is_same_v<va_list, char*>) {
    LogMSG_c(Logger::LEVEL_ERROR, component, format, args);
  } else {
    LogMSG_c(Logger::LEVEL_ERROR, component, format, reinterpret_cast<char*>(&args));
  }
  va_end(args);
}

TEST_F(LoggerTest, TakesAStartedListAsAPlainPointer) {
  Open(50);
  char component[] = "some_debug";
  LogThroughPlainPointer(component, "%d %s\n", 1, "two");
  EXPECT_EQ(ReadFile(log).substr(kStamp), "1 two\n");
}

TEST_F(LoggerTest, KeepsOneOldFileLessThanItsDepth) {
  const char* const left[] = {" log_1=b log_2=c", " log_1=b log_2=c", " log_2=c", " log_1=a"};
  for (int depth = 0; depth < 4; ++depth) {
    BuildTree(dir.path, "log=d log_0=a log_1=b log_2=c");
    Open(depth);
    EXPECT_EQ(Logger::Rotate(), 0);
    EXPECT_EQ(ListTree(dir.path), std::string("log= log_0=d") + left[depth]);
  }
}

TEST_F(LoggerTest, GoesOnAsBeforeWhereItCannotOpenOrRotate) {
  testing::internal::CaptureStderr();
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", "", 50), 0);
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, dir / "no/folder", "", 1), -1);
  EXPECT_EQ(Logger::Rotate(), -1);
  Fill({kLimit + 1, 100});
  Logger::Destroy();
  Fill({100});
  EXPECT_EQ(testing::internal::GetCapturedStderr().size(), kLimit + 101);  // silent from Destroy on
  log = dir / std::string(1019 - dir.path.size(), '/') +
        "log";  // the rotated names would be cut, all to this one
  Open(3);
  EXPECT_EQ(Fill({kLimit + 1, 100}), Sizes(0, kLimit + 101));
}

TEST_F(LoggerTest, LosesAndTearsNoLineOfManyThreads) {
  const std::string tail(300, 'x');
  Open(50);
  Logger::DestroySharedData();
  Logger::DestroyLock();  // the first lines make both anew, at once
  std::vector<std::future<void>> threads;
  for (char thread = 'a'; thread < 'i'; ++thread) {
    threads.push_back(std::async(std::launch::async, [thread, &tail] {
      for (int line = 0; line < 3000; ++line) {
        Logger::LogMsg(Logger::LEVEL_ERROR, "some_debug", "%c %d %s\n", thread, line, tail.c_str());
      }
    }));
  }
  threads.clear();  // waits for them
  std::map<char, int> lines;
  for (const char* end : {"_6", "_5", "_4", "_3", "_2", "_1", "_0", ""}) {
    std::ifstream file(log + end);
    ASSERT_TRUE(file) << end;
    for (std::string line; std::getline(file, line);) {
      line.erase(0, kStamp);
      ASSERT_EQ(line, line.substr(0, 1) + " " + std::to_string(lines[line[0]]++) + " " + tail);
    }
  }
  EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                          [](const auto& thread) { return thread.second == 3000; }),
            8);
}

}  // namespace
