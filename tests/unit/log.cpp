#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <vector>

#include "support/temp-dir.h"

#define LOG_UNIT "unit"
#include "log.h"

namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<size_t>;

constexpr size_t kLimit = 1048576;
constexpr size_t kStamp = 16;  // "Nov 16 20:41:07 "
const ustring kComponent("some_debug");

// The entries as "key=value;", or "malformed".
std::string ReadConfig(const std::string& path) {
  Config config;
  config["~"] = "kept";
  std::string entries = config.read(path) == 0 ? "" : "malformed;";
  for (const auto& entry : config) {
    entries = entries + entry.first.c_str() + "=" + entry.second.c_str() + ";";
  }
  return entries;
}

TEST(Config, TakesWellFormedLinesAndForgetsAllAtAMalformedOne) {
  const std::string piece(8189, 'x');
  const std::pair<std::string, std::string> good[] = {
      {"pid=1234", "pid=1234;"},
      {"a = b\r\nc=d\n", "a=b;c=d;"},
      {" \t\v\fK.y-z_9 \t=\tx\t#c\na=1\na=2\n", "K.y-z_9=x;a=2;"},
      {"a=b#c\nd=e #f\ng= #h\n", "a=b#c;d=e;g=#h;"},
      {"a=\"b c\" # d\ne='f\"g'#\nh=\"\"\ni=j'k\"l\n", "a=b c;e=f\"g;h=;i=j'k\"l;"},
      {"=b\n# x y\n\n \t\n  # z\na#b=c\nkey", "=b;"},
      {"a=\xC3\xA9\x80\xFF\n", "a=\xC3\xA9\x80\xFF;"},
      {std::string("a=b\0c d\n\0 e f\ng\0=h\ni=j\n", 23), "a=b;i=j;"},
      {"a=" + piece + "b=c\n", "a=" + piece + ";b=c;"},
      {"a=" + piece + "xb=c\n", "a=" + piece + ";xb=c;"},
  };
  const char* const malformed[] = {"a=1\nb=2\na b\n", "key\n",    "key ",        "a=",           "a= \n",
                                   "a=b c\n",         "a=\"b\n",  "a=\"",        "a=\"b\tc\"\n", "a='b'c\n",
                                   "a=b\x7F\n",       "a=\x01\n", "[section]\n", "\xC3\xA9=1\n"};
  const TempDir dir;
  for (const auto& row : good) {
    WriteFile(dir / "file", row.first);
    EXPECT_EQ(ReadConfig(dir / "file"), row.second + "~=kept;") << row.first;
  }
  for (const char* text : malformed) {
    WriteFile(dir / "file", text);
    EXPECT_EQ(ReadConfig(dir / "file"), "malformed;") << text;
  }
}

TEST(Config, RefusesAtOnceWhatIsNoReadableFile) {
  const TempDir dir;
  ASSERT_EQ(mkfifo((dir / "pipe").c_str(), 0600), 0);
  std::vector<std::string> paths = {"", dir / "missing", dir.path, dir / "pipe"};
#ifdef __linux__
  paths.push_back("/proc/self/mem");  // opens, but its first byte cannot be read
#endif
  for (const std::string& path : paths) {
    EXPECT_EQ(ReadConfig(path), "malformed;~=kept;") << path;
  }
}

TEST(Config, ReadsTheLeadingNumber) {
  Config config;
  for (const auto& row : std::map<std::string, int>{
           {"  42abc", 42}, {"-7", -7}, {"abc", 0}, {"", 0}, {"010", 10}, {"2147483648", INT_MAX}}) {
    config["key"] = row.first;
    EXPECT_EQ(config.get_int("key"), row.second) << row.first;
  }
  EXPECT_EQ(config.get_int("missing"), 0);
}

class LoggerTest : public testing::Test {
 protected:
  ~LoggerTest() override { Logger::Destroy(); }

  void Open(int rotations, const char* config = "") {
    WriteFile(dir / "levels", config);
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, log, dir / "levels", rotations), 0);
  }

  // Writes a line that takes `size` bytes of the file.
  static void Fill(size_t size) {
    Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "%s\n", std::string(size - kStamp - 1, 'f').c_str());
  }

  // The sizes of PATH_2, PATH_1, PATH_0 and PATH, those that exist.
  Bytes Sizes() const {
    Bytes sizes;
    for (const char* end : {"_2", "_1", "_0", ""}) {
      if (fs::exists(log + end)) {
        sizes.push_back(fs::file_size(log + end));
      }
    }
    return sizes;
  }

  const TempDir dir;
  const std::string log = dir / "launcher.log";
};

TEST_F(LoggerTest, WritesWhatTheComponentsLevelLetsThrough) {
  const auto levels = [this](const char* component) {
    fs::resize_file(log, 0);
    for (int level = 3; level <= 7; ++level) {
      Logger::LogMsg(static_cast<Logger::Level>(level), component, "%d\n", level);
    }
    const std::string text = ReadFile(log);
    std::string written;
    for (size_t at = kStamp; at < text.size(); at += kStamp + 2) {
      written += text[at];
    }
    return written;
  };
  Open(50, "chatty=7\nsilent=2\ndefault_component=6\n");
  EXPECT_EQ(levels("unknown"), "34");
  EXPECT_EQ(levels("default_component"), "3456");
  EXPECT_EQ(levels("silent"), "");
  Open(50, "silent=7\nmalformed line\n");
  EXPECT_EQ(levels("chatty"), "34567");
  EXPECT_EQ(levels("default_component"), "34");
  EXPECT_EQ(levels("silent"), "");

  fs::resize_file(log, 0);
  LOG_WARNING(kComponent, "plain\n");
  EXPECT_EQ(ReadFile(log).substr(kStamp), "[WARNING] unit(" + std::to_string(__LINE__ - 1) + "): plain\n");
}

TEST_F(LoggerTest, StampsEveryOutputWithTheLocalTime) {
  const auto stamp = [] {
    const time_t shifted = time(nullptr) + 19800;
    char text[64];
    return std::string(text, strftime(text, sizeof text, "%b %d %H:%M:%S ", gmtime(&shifted)));
  };
  setenv("TZ", "ABC-5:30", 1);
  for (const auto type : {Logger::TYPE_SYSLOG, Logger::TYPE_STDOUT, Logger::TYPE_STDERR, Logger::TYPE_FILE}) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    ASSERT_EQ(Logger::Initialize(type, log, "", 50), 0);
    const std::string before = stamp();
    Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "no end");
    Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "|%d\n", 2);
    const std::string outputs[] = {"", testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr(),
                                   ReadFile(log)};
    const std::string text = outputs[type - 1];
    EXPECT_EQ(outputs[1] + outputs[2] + outputs[3], text) << "something went elsewhere";
    if (type != Logger::TYPE_SYSLOG) {
      EXPECT_EQ(text.substr(kStamp, 6) + text.substr(2 * kStamp + 6), "no end|2\n");
      EXPECT_TRUE(text.substr(0, kStamp) == before || text.substr(0, kStamp) == stamp()) << text << before;
    }
  }
  unsetenv("TZ");
}

TEST(Logger, WritesWarningsToStandardErrorBeforeInitialize) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // a new process, where nothing was initialised
  const auto log_and_exit = [] {
    LOG_NOTE(kComponent, "dropped\n");
    LOG_WARNING(kComponent, "written\n");
    exit(0);
  };
  EXPECT_EXIT(log_and_exit(), testing::ExitedWithCode(0),
              "^[A-Z][a-z]{2} [0-9]{2} [0-9:]{8} .WARNING. unit.[0-9]+.: written\n$");
}

TEST_F(LoggerTest, RotatesAfterTheLineThatCrossesTheLimit) {
  WriteFile(log, "bytes from before do not count\n");
  Open(3);
  Fill(kLimit - 100);
  Fill(100);
  EXPECT_EQ(Sizes(), (Bytes{31 + kLimit}));
  Fill(50);
  EXPECT_EQ(Sizes(), (Bytes{31 + kLimit + 50, 0}));
  Fill(kLimit);
  Fill(20);
  EXPECT_EQ(Sizes(), (Bytes{31 + kLimit + 50, kLimit + 20, 0}));

  fs::remove(log);
  Logger::DestroySharedData();  // now the count of rotations differs, as it does when another writer has rotated
  Fill(100);
  EXPECT_EQ(Sizes(), (Bytes{31 + kLimit + 50, kLimit + 20, 100}));
}

TEST_F(LoggerTest, KeepsOneOldFileLessThanItsDepth) {
  // Of old files with 10, 11 and 12 bytes and a log of 5: the sizes of the oldest file to the log.
  const Bytes rows[] = {{12, 11, 5, 0}, {12, 11, 5, 0}, {12, 5, 0}, {10, 5, 0}, {11, 10, 5, 0}};
  for (int depth = 0; depth < 5; ++depth) {
    for (size_t i = 0; i < 3; ++i) {
      WriteFile(log + "_" + std::to_string(i), std::string(10 + i, 'o'));
    }
    WriteFile(log, "12345");
    Open(depth);
    EXPECT_EQ(Logger::Rotate(), 0);
    EXPECT_EQ(Sizes(), rows[depth]) << depth;
    EXPECT_FALSE(fs::exists(log + "_3"));
  }
}

TEST_F(LoggerTest, DropsLinesFromAFailedRotationToTheReload) {
  Open(1);
  fs::create_directories(log + "_0/in the way");
  errno = ENOTTY;
  Fill(kLimit + 1);
  Fill(100);
  EXPECT_EQ(errno, ENOTTY);
  EXPECT_EQ(fs::file_size(log), kLimit + 1);
  Logger::ReloadLogFile();
  Fill(100);
  Logger::ReloadLogFile();  // counts from 0 again
  fs::remove_all(log + "_0");
  Fill(kLimit);
  EXPECT_EQ(Sizes(), (Bytes{2 * kLimit + 101}));
  Fill(20);
  EXPECT_EQ(Sizes(), (Bytes{2 * kLimit + 121, 0}));
}

TEST_F(LoggerTest, GoesOnInOneFileWhenRotatedNamesWouldBeCut) {
  const std::string folder = dir / std::string(250, 'a') + "/" + std::string(250, 'b') + "/" + std::string(250, 'c');
  const std::string path = folder + "/" + std::string(1023 - folder.size() - 1, 'd');
  fs::create_directories(folder);
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, path, "", 3), 0);
  Fill(kLimit + 1);
  Fill(100);
  EXPECT_EQ(fs::file_size(path), kLimit + 101);
}

TEST_F(LoggerTest, KeepsItsOutputWhenInitializeFails) {
  testing::internal::CaptureStderr();
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", "", 50), 0);
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, dir / "no/such/folder", "", 50), -1);
  EXPECT_EQ(Logger::Rotate(), -1);
  Fill(kLimit + 1);
  Fill(100);
  Logger::Destroy();
  Fill(100);
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, "", "", 50), -1);
  Fill(100);
  EXPECT_EQ(testing::internal::GetCapturedStderr().size(), kLimit + 101);  // silent from Destroy on

  Open(3);
  Fill(kLimit);
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, "", "", 1), -1);
  Fill(100);
  EXPECT_EQ(Sizes(), (Bytes{kLimit + 100, 0}));  // its byte count went on
}

TEST_F(LoggerTest, LeavesNoStreamToStartedPrograms) {
  Open(50);
  for (const auto& step : {+[] {}, +[] { Logger::Rotate(); }, &Logger::ReloadLogFile}) {
    step();
    struct stat file = {};
    ASSERT_EQ(stat(log.c_str(), &file), 0);
    int found = 0;
    for (int fd = 3; fd < 256; ++fd) {
      struct stat info = {};
      if (fstat(fd, &info) == 0 && info.st_ino == file.st_ino) {
        ++found;
        EXPECT_NE(fcntl(fd, F_GETFD) & FD_CLOEXEC, 0);
      }
    }
    EXPECT_EQ(found, 1);
  }
}

TEST_F(LoggerTest, LosesAndTearsNoLineOfManyThreads) {
  constexpr int kThreads = 8;
  constexpr int kLines = 3000;
  const std::string tail(300, 'x');
  Open(50);
  Logger::DestroySharedData();
  Logger::DestroyLock();  // the first lines make both anew, at once
  std::vector<std::thread> threads;
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([thread, &tail] {
      for (int line = 0; line < kLines; ++line) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "%d %d %s\n", thread, line, tail.c_str());
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_TRUE(fs::exists(log + "_5"));
  int next[kThreads] = {};
  for (int i = 49; i >= -1; --i) {
    std::ifstream file(i < 0 ? log : log + "_" + std::to_string(i));
    for (std::string line; std::getline(file, line);) {
      const int thread = line.size() > kStamp ? line[kStamp] - '0' : -1;
      ASSERT_TRUE(thread >= 0 && thread < kThreads) << line;
      ASSERT_EQ(line.substr(kStamp), std::to_string(thread) + " " + std::to_string(next[thread]++) + " " + tail);
    }
  }
  EXPECT_EQ(std::vector<int>(next, next + kThreads), std::vector<int>(kThreads, kLines));
}

}  // namespace
