#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <sstream>
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

/// Makes, below `root`, what a text lists: "d" a folder, "f=abc" a file, "l>x" a link.
inline void BuildTree(const std::string& root, const std::string& text) {
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const size_t mark = word.find_first_of("=>");
    const std::string path = root + "/" + word.substr(0, mark);
    if (mark == std::string::npos) {
      std::filesystem::create_directories(path);
    } else if (word[mark] == '>') {
      std::filesystem::create_symlink(word.substr(mark + 1), path);
    } else {
      WriteFile(path, word.substr(mark + 1));
    }
  }
}

/// Lists everything below `root` in that way, sorted, folders with a "/" behind them.
inline std::string ListTree(const std::string& root) {
  std::set<std::string> words;
  for (const auto& [name, node] : TreeOf(root)) {
    const std::string mark = node == "folder" ? "/" : node[0] == 'f' ? "=" : ">";
    words.insert(name + mark + (mark == "/" ? "" : node.substr(6)));
  }
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}
