#include <sys/vfs.h>

#include <cstdint>

#include "fs-type.h"

namespace {

// The kernel has no AFP client, hence no number for "afpfs".
struct KnownType {
  uint32_t magic;
  const char* name;
};
constexpr KnownType kKnownTypes[] = {
    {0x6969, "nfs"},       {0x517b, "smbfs"},  // SMB
    {0xff534d42, "smbfs"},                     // CIFS
    {0xfe534d42, "smbfs"},                     // SMB2
    {0x4d44, "msdos"},
};

}  // namespace

int GetFileSystemType(const ustring& path, ustring& name) {
  struct statfs info;
  if (statfs(path.c_str(), &info) != 0) {
    return -1;
  }
  name.clear();
  for (const KnownType& known : kKnownTypes) {
    // The field is a signed long; on 32-bit hosts the larger numbers are negative in it.
    if (static_cast<uint32_t>(info.f_type) == known.magic) {
      name = known.name;
    }
  }
  return 0;
}
