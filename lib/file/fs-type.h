#pragma once

#include "ustring.h"

/// The name of the type of the file system that `path` lies on, as macOS spells it: "nfs", "smbfs",
/// "afpfs", "msdos".
///
/// Off macOS the name is empty for every other type. A link at the end of the path is followed. Any
/// thread.
///
/// @param name  set on success only
/// @return 0, or -1 with `errno` set
int GetFileSystemType(const ustring& path, ustring& name);
