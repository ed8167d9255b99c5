#pragma once

#include "ustring.h"

enum class LastComponent {
  kKeepLink,    ///< a link at the end of the path stays what it is
  kFollowLink,  ///< a link at the end of the path is resolved too
};

/// Resolves `path` to the absolute path that the file system itself uses for it, all links on the
/// way replaced.
///
/// A relative path starts at the current folder. A path that ends in "/", "." or ".." names a
/// folder: a link in front of that ending is always followed. `path` must exist; it is taken as
/// given, not normalised. Any thread.
///
/// @param resolved  set on success only: at most 4095 bytes, without a "/" at its end (but for "/"
/// itself)
/// @return 0, or the host's own number of the failure: an OSStatus on macOS, an errno value
/// elsewhere
int ResolvePath(const ustring& path, LastComponent last, ustring& resolved);
