#pragma once

#include <dirent.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

/// @file
/// RAII owners for resources of the C library and the system.

/// Frees what `malloc` and its kin returned.
struct Freer {
  void operator()(void* memory) const { std::free(memory); }
};
/// A C string or a buffer out of `malloc`.
using CBuffer = std::unique_ptr<char, Freer>;

struct FileCloser {
  void operator()(FILE* stream) const { std::fclose(stream); }
};
/// A stdio stream.
using FileStream = std::unique_ptr<FILE, FileCloser>;

struct DirCloser {
  void operator()(DIR* dir) const { closedir(dir); }
};
/// An open folder.
using DirStream = std::unique_ptr<DIR, DirCloser>;

/// A file descriptor. It is closed with its owner, which leaves `errno` as it was.
class Descriptor {
 public:
  Descriptor() = default;
  /// Takes over `fd`; a negative one, as a failed call returns it, is none.
  explicit Descriptor(int fd) : fd_(fd) {}
  Descriptor(Descriptor&& other) noexcept : fd_(other.Release()) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    if (this != &other) {
      Close();
      fd_ = other.Release();
    }
    return *this;
  }
  ~Descriptor() { Close(); }

  bool valid() const { return fd_ >= 0; }
  int get() const { return fd_; }

  /// Hands the descriptor over to the caller.
  int Release() { return std::exchange(fd_, -1); }

  void Close() {
    if (valid()) {
      const int error = errno;
      close(Release());
      errno = error;
    }
  }

 private:
  int fd_ = -1;
};
