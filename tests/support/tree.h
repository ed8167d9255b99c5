#pragma once

#include <filesystem>
#include <set>
#include <sstream>
#include <string>

#include "support/temp-dir.h"

/// Makes, below `root`, what a text lists: "d/" a folder, "f=abc" a file, "l>x" a link.
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

/// Lists everything below `root` in that way, sorted.
inline std::string ListTree(const std::string& root) {
  std::set<std::string> words;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    const std::string name = entry.path().string().substr(root.size() + 1);
    words.insert(entry.is_symlink()
                     ? name + ">" + std::filesystem::read_symlink(entry.path()).string()
                 : entry.is_directory() ? name + "/"
                                        : name + "=" + ReadFile(entry.path().string()));
  }
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}
