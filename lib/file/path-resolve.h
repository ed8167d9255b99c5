#pragma once

#include "ustring.h"

enum class LastComponent {
  kKeepLink,    ///< a link at the end of the path is not followed
  kFollowLink,  ///< a link at the end of the path is resolved as well
};

/// Resolves `path` to the absolute path as the file system spells it, with all links on the way
/// replaced.
///
/// A relative path starts at the current folder. A path that ends in "/", "." or ".." names a
/// folder: a link before that ending is always followed. `path` must exist; it is used as given,
/// not normalized. Any thread.
///
/// @param resolved  set on success only: at most 4095 bytes, without a "/" at the end (except "/"
///                  itself)
/// @return 0, or the host's own error number: an OSStatus on macOS, an errno value elsewhere
int ResolvePath(const ustring& path, LastComponent last, ustring& resolved);
