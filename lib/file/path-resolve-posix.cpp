#include <cerrno>
#include <climits>
#include <cstdlib>
#include <string>

#include "path-resolve.h"

namespace {

constexpr size_t kBufferSize = 4096;

int RealPath(const std::string& path, std::string& resolved) {
  char buffer[PATH_MAX];
  if (realpath(path.c_str(), buffer) == nullptr) {
    return errno;
  }
  resolved = buffer;
  return 0;
}

}  // namespace

int ResolvePath(const ustring& path, LastComponent last, ustring& resolved) {
  std::string folder = path.c_str();
  std::string leaf;
  if (last == LastComponent::kKeepLink) {
    const size_t slash = folder.find_last_of('/');
    leaf = slash == std::string::npos ? folder : folder.substr(slash + 1);
    if (leaf == "." || leaf == "..") {
      leaf.clear();
    }
    if (!leaf.empty()) {
      folder = slash == std::string::npos ? "." : folder.substr(0, slash + 1);
    }
  }

  std::string result;
  if (const int error = RealPath(folder, result); error != 0) {
    return error;
  }
  if (!leaf.empty()) {
    result += (result == "/" ? "" : "/") + leaf;
  }
  if (result.size() >= kBufferSize) {
    return ENAMETOOLONG;
  }
  resolved = result;
  return 0;
}
