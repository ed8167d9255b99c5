#include <unistd.h>

#include <cerrno>

#include "write-barrier.h"

int WriteBarrier(const ustring& path) {
  if (sync_volume_np(path.c_str(), SYNC_VOLUME_FULLSYNC | SYNC_VOLUME_WAIT) == 0) return 0;
  // File systems that know nothing of it answer in different ways.
  const bool isUnknown = errno == ENOTTY || errno == EINVAL || errno == ENOTSUP ||
                         errno == EOPNOTSUPP || errno == ENOSYS;
  return isUnknown ? 0 : -1;
}
