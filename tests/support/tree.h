#pragma once

#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>

#include "support/temp-dir.h"

/// Paths below some folder, each with what lies there: "folder", "file: " and its bytes, or
/// "link: " and its target.
using Tree = std::map<std::string, std::string>;

/// Makes `tree` below `root`, and the folders on the way. Throws when something cannot be made.
inline void MakeTree(const std::string& root, const Tree& tree) {
  for (const auto& [name, node] : tree) {
    const std::string path = root + "/" + name;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    if (node == "folder") {
      std::filesystem::create_directories(path);
    } else if (node.compare(0, 6, "file: ") == 0) {
      WriteFile(path, node.substr(6));
    } else if (node.compare(0, 6, "link: ") == 0) {
      std::filesystem::create_symlink(node.substr(6), path);
    } else {
      throw std::invalid_argument(path + " is to be a \"" + node + "\"");
    }
  }
}

/// Everything below `root`.
inline Tree TreeOf(const std::string& root) {
  Tree tree;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    const std::string path = entry.path().string();
    std::string& node = tree[path.substr(root.size() + 1)];
    if (entry.is_symlink()) {
      node = "link: " + std::filesystem::read_symlink(path).string();
    } else {
      node = entry.is_directory() ? "folder" : "file: " + ReadFile(path);
    }
  }
  return tree;
}
