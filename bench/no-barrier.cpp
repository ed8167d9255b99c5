// For LD_PRELOAD: the system does not know syncfs(), so that an extraction forces nothing to the
// disk. A benchmark without the write barrier runs the very program that it measures with it.

#include <cerrno>

extern "C" int syncfs(int /*fd*/) {
  errno = ENOSYS;
  return -1;
}
