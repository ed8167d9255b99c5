#pragma once

#include <pthread.h>

#include "ustring.h"

/// Hands out short random names for temporary files and folders, drawn from an RC4 stream that is
/// keyed with the time of its creation.
///
/// The names are unlikely to collide, but not hard to guess, and nobody checks whether a file of
/// that name exists: create it exclusively, and take the next name if that fails.
class TmpNameGen {
 public:
  /// A generator with its own stream. Two generators made in the same microsecond hand out the same
  /// names, and occasionally so do two made a small multiple of 9 microseconds apart, because the
  /// digits of their keys have the same sum.
  TmpNameGen();
  ~TmpNameGen() = default;

  /// The generator of the process, created by the first call. Any thread; the caller doesn't own
  /// it.
  static TmpNameGen* getInstance();

  /// A new name: 8 characters, each a digit, an ASCII letter, `-` or `_`. Any thread.
  ustring getTmpName();

  /// `folder`, unchanged, then "/" and a new name. Any thread.
  ustring getTmpPath(const ustring& folder);

  /// Writes the current time as "seconds-microseconds" and a NUL into `buffer`, truncated to `size`
  /// bytes.
  static void get_key(unsigned char* buffer, unsigned long size);

  /// Sets up the 256 bytes of `state` from the 256 bytes of `key`. A shorter key that is meant to
  /// repeat must be repeated by the caller. If the first byte of `key` is 0, the key is empty and
  /// is first replaced with bytes from `rand()`, seeded with the time; other users of `rand()`
  /// notice that. Otherwise `key` is not changed.
  static void rc4_init(unsigned char* state, unsigned char* key);

  /// Draws `count` bytes from `state` into `out`. Each call starts the two indices of the generator
  /// at 0 again; `state` continues from where the previous call left it.
  static void rc4_randomize(unsigned char* state, unsigned char* out, int count);

 private:
  unsigned char state_[256] = {};
  unsigned char key_[256] = {};
  unsigned char output_[6] = {};

  static pthread_mutex_t m_lock;  // held for every draw, whichever generator it is from
};
