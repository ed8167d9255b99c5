#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "owners.h"
#include "write-barrier.h"

// Kernels before 5.8 write everything too, but keep an error of the disk to themselves.
int WriteBarrier(const ustring& path) {
  const Descriptor fd(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!fd.valid()) return -1;
  if (syncfs(fd.get()) == 0) return 0;
  const bool isUnknown = errno == ENOSYS || errno == EINVAL || errno == EOPNOTSUPP;
  return isUnknown ? 0 : -1;
}
