// bench-step count ARCHIVE | extract ARCHIVE FOLDER | copy SOURCE DESTINATION: does one step of an
// upgrade by the launcher's own code, and prints what it cost: seconds of wall clock, seconds of
// processor, KiB of memory at its peak above what was there before, result.

#include <sys/resource.h>
#include <time.h>

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "extractor.h"
#include "file/file-op.h"
#include "own-time-zone.h"

namespace {

double Seconds(clockid_t clock) {
  timespec now = {};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// A field of this process's status, in KiB.
long Memory(const char* field) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    long value = 0;
    if (word == field && status >> value) return value;
  }
  return 0;
}

void ForgetPeak() {
  std::ofstream("/proc/self/clear_refs") << "5";
}

int Run(const std::string& step, const char* source, const char* destination) {
  if (step == "copy") return FSCopy(source, destination, false);
  Extractor extractor;
  extractor.archive = source;
  extractor.destination = destination;
  return step == "count" ? extractor.Count() : extractor.Extract();
}

}  // namespace

int main(int argc, char** argv) {
  const std::string step = argc > 1 ? argv[1] : "";
  if (argc != 4) {
    fprintf(stderr, "usage: bench-step count|extract|copy SOURCE DESTINATION\n");
    return 2;
  }
  SetOwnTimeZone();
  // The extractor reports progress through objects that belong to an application.
  QCoreApplication app(argc, argv);
  ForgetPeak();
  const long memory = Memory("VmRSS:");
  const double wall = Seconds(CLOCK_MONOTONIC);
  const double cpu = Seconds(CLOCK_PROCESS_CPUTIME_ID);
  const int result = Run(step, argv[2], argv[3]);
  printf("%.6f %.6f ", Seconds(CLOCK_MONOTONIC) - wall, Seconds(CLOCK_PROCESS_CPUTIME_ID) - cpu);
  printf("%ld %d\n", Memory("VmHWM:") - memory, result);
  return result < 0 ? 1 : 0;
}
