#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>

/// A fresh folder of one test, removed with everything in it when the object goes. `path` is
/// absolute and free of links, so that it can be compared with what the file system reports.
struct TempDir {
  /// Makes the folder below `parent`, by default the system's temporary folder; throws when that
  /// fails.
  explicit TempDir(const std::filesystem::path& parent = std::filesystem::temp_directory_path())
      : path((std::filesystem::canonical(parent) / "lumivo-test-XXXXXX").string()) {
    if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("no temporary folder: " + path);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }

  /// The path of `name` below the folder.
  std::string operator/(const std::string& name) const { return path + "/" + name; }

  std::string path;
};

/// Makes or replaces the file `path`; its folder must exist. Throws when it cannot be written.
inline void WriteFile(const std::string& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << text;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

/// The bytes of the file `path`; empty when it cannot be read.
inline std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
