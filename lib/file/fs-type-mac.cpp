#include <sys/mount.h>
#include <sys/param.h>

#include "fs-type.h"

int GetFileSystemType(const ustring& path, ustring& name) {
  struct statfs info;
  if (statfs(path.c_str(), &info) != 0) {
    return -1;
  }
  name = static_cast<const char*>(info.f_fstypename);
  return 0;
}
