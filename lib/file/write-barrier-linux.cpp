#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "write-barrier.h"

// Kernels before 5.8 write everything too, but keep an error of the disk to themselves.
int WriteBarrier(const ustring& path) {
  const int fd = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (fd < 0) return -1;
  const int result = syncfs(fd);
  const int error = errno;
  close(fd);
  if (result == 0 || error == ENOSYS || error == EINVAL || error == EOPNOTSUPP) return 0;
  errno = error;
  return -1;
}
