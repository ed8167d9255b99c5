#include "own-time-zone.h"

#include <cstdlib>

namespace {

// putenv makes this very array part of the environment, so its address tells it from any other.
char own_entry[] = "TZ=:/etc/localtime";

}  // namespace

void SetOwnTimeZone() {
  if (getenv("TZ") == nullptr) putenv(own_entry);
}

bool IsOwnTimeZone(const char* entry) {
  return entry == own_entry;
}
