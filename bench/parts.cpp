// What happens inside a process, by pairs: "NAME/ours" is the launcher's code, "NAME/theirs" what
// people would use instead. Log files go below the folder LUMIVO_BENCH_FOLDER.

#include <benchmark/benchmark.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "log.h"
#include "ustring.h"

namespace {

constexpr int kRotations = 50;
constexpr size_t kRotationSize = 1048576;
constexpr unsigned kPathsToSort = 1000;

constexpr char kFolder[] = "/home/somebody/.Lumivo/Lumivo.app/Contents/Resources/help/en";
constexpr char kName[] = "getting-started.html";
constexpr char kPath[] =
    "/home/somebody/.Lumivo/Lumivo.app/Contents/Resources/help/en/getting-started.html";
constexpr char kOtherPath[] =
    "/home/somebody/.Lumivo/Lumivo.app/Contents/Resources/help/en/getting-stuck.html";

std::string LogPath(const char* name) {
  const char* folder = getenv("LUMIVO_BENCH_FOLDER");
  return std::string(folder != nullptr ? folder : "/tmp") + "/" + name;
}

void LogLine(benchmark::State& state) {
  const ustring component = "default_component";
  if (Logger::Initialize(Logger::TYPE_FILE, LogPath("ours.log"), "", kRotations) != 0) {
    state.SkipWithError("no log");
    return;
  }
  for (auto _ : state) {
    Logger::LogMsg(Logger::LEVEL_ERROR, component, "[ERROR] file-op(%d): %s: '%s'\n", 416, "fsync",
                   kPath);
  }
  Logger::Destroy();
}
BENCHMARK(LogLine)->Name("one log line/ours");

void SpdlogLine(benchmark::State& state) {
  spdlog::logger logger("", std::make_shared<spdlog::sinks::rotating_file_sink_mt>(
                                LogPath("peer.log"), kRotationSize, kRotations));
  logger.set_pattern("%b %d %H:%M:%S %v");
  logger.flush_on(spdlog::level::trace);
  for (auto _ : state) {
    logger.error("[ERROR] file-op({}): {}: '{}'", 416, "fsync", kPath);
  }
}
BENCHMARK(SpdlogLine)->Name("one log line/theirs");

template <class String>
void Build(benchmark::State& state) {
  for (auto _ : state) {
    const String path(kPath);
    benchmark::DoNotOptimize(path.c_str());
  }
}

template <class String>
void Join(benchmark::State& state) {
  const String folder(kFolder);
  const String name(kName);
  for (auto _ : state) {
    // NOLINTNEXTLINE(performance-inefficient-string-concatenation): that is what is measured
    const String path = folder + "/" + name;
    benchmark::DoNotOptimize(path.c_str());
  }
}

template <class String>
void Find(benchmark::State& state) {
  const String path(kPath);
  for (auto _ : state) {
    benchmark::DoNotOptimize(path.find("/Contents/"));
    benchmark::DoNotOptimize(path.rfind('/'));
  }
}

template <class String>
void Compare(benchmark::State& state) {
  const String path(kPath);
  const String other(kOtherPath);
  const String name(kName);
  for (auto _ : state) {
    benchmark::DoNotOptimize(path.compare(other));
    benchmark::DoNotOptimize(path == other);
    benchmark::DoNotOptimize(name == ".");
  }
}

template <class String>
void Order(benchmark::State& state) {
  std::vector<String> paths;
  for (unsigned i = 0; i < kPathsToSort; ++i) {
    // A prime multiplier shuffles the numbers, and each still comes up once.
    const unsigned number = i * 7919 % kPathsToSort;
    paths.push_back(String(kFolder) + "/" + std::to_string(number).c_str());
  }
  std::vector<const String*> order(paths.size());
  for (auto _ : state) {
    std::transform(paths.begin(), paths.end(), order.begin(),
                   [](const String& path) { return &path; });
    std::sort(order.begin(), order.end(), [](const String* a, const String* b) { return *a < *b; });
    benchmark::DoNotOptimize(order.data());
  }
}

// What the launcher does with its own string for each entry of a folder that it empties.
template <class String>
void AddAndCut(benchmark::State& state) {
  const std::string name(kName);
  String path(kFolder);
  for (auto _ : state) {
    (path += '/') += name;
    benchmark::DoNotOptimize(path.c_str());
    path.assign(path.c_str(), path.length() - name.length() - 1);
  }
}

#define PAIR(function, name)                                 \
  BENCHMARK_TEMPLATE(function, ustring)->Name(name "/ours"); \
  BENCHMARK_TEMPLATE(function, std::string)->Name(name "/theirs")

PAIR(Build, "build a path");
PAIR(Join, "folder + \"/\" + name");
PAIR(Find, "find and rfind");
PAIR(Compare, "compare two paths");
PAIR(Order, "per entry: order (1,000 sorted)");
PAIR(AddAndCut, "per entry: append a name, cut it off");

}  // namespace

BENCHMARK_MAIN();
