#pragma once

#include "ustring.h"

/// Waits until everything that was written so far to the volume that holds `path` is on the disk:
/// contents, names and modes, of every file and by every program. What is written after it returns
/// cannot reach the disk sooner.
///
/// Where the system or the file system does not know how to do that, nothing happens and the result
/// is 0. A disk that keeps what it was given in a cache of its own, and says otherwise, cannot be
/// detected, and a Linux older than 5.8 does not report all errors of its disks. A link at the end
/// of the path is followed. Any thread; it takes as long as the disk does, including data written
/// by other programs.
///
/// @return 0, or -1 with `errno` set: `path` cannot be opened, or the disk reports an error, so
/// that some of what was written may be lost
int WriteBarrier(const ustring& path);
