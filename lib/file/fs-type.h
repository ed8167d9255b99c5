#pragma once

#include "ustring.h"

/// The type of the file system that holds `path`, by the name that macOS uses: "nfs", "smbfs",
/// "afpfs", "msdos".
///
/// On other hosts the name is empty for every other type. A link at the end of the path is
/// followed. Any thread.
///
/// @param name  set on success only
/// @return 0, or -1 with `errno` set
int GetFileSystemType(const ustring& path, ustring& name);
