#pragma once

#include <cstdlib>
#include <string>

#include "owners.h"

/// The absolute path that the system itself uses for `path`: every link followed, the last
/// component's included, and no "." or ".." in it. Any thread.
///
/// @return empty, with `errno` set, when `path` leads nowhere or cannot be looked up
inline std::string RealPath(const std::string& path) {
  const CBuffer resolved(realpath(path.c_str(), nullptr));
  return resolved != nullptr ? resolved.get() : std::string();
}
