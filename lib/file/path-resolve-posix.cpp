#include <cerrno>
#include <string>

#include "file/real-path.h"
#include "path-resolve.h"

namespace {

constexpr size_t kBufferSize = 4096;

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

  std::string result = RealPath(folder);
  if (result.empty()) {
    return errno;
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
