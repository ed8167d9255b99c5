#pragma once

#include <pthread.h>

#include "ustring.h"

/// Hands out short random names for temporary files and folders, drawn from an RC4 stream that is
/// keyed with the time of day of its creation.
///
/// The names are hard to meet by accident, not hard to guess, and nobody looks whether such a file
/// exists: create what carries one exclusively, and take the next name when that fails.
class TmpNameGen {
 public:
  /// A generator with a stream of its own. Two that are made in the same microsecond hand out the
  /// same names, and now and then so do two that are made a few multiples of 9 microseconds apart:
  /// their keys have the same sum of digits.
  TmpNameGen();
  ~TmpNameGen() = default;

  /// The generator of the process, made by the first call. From any thread; it is never deleted by
  /// the caller.
  static TmpNameGen* getInstance();

  /// A new name of 8 characters out of digits, ASCII letters, `-` and `_`. From any thread.
  ustring getTmpName();

  /// `folder`, unchanged, then "/" and a new name. From any thread.
  ustring getTmpPath(const ustring& folder);

  /// Writes the time of day as "seconds-microseconds" and a NUL into `buffer`, cut to `size` bytes.
  static void get_key(unsigned char* buffer, unsigned long size);

  /// Schedules 256 bytes of `state` from 256 bytes of `key`, all of them used by position: a
  /// shorter key that is meant to repeat has to be repeated by the caller. A `key` whose first byte
  /// is 0 is first filled from `rand()`, seeded with the time, which is the only case that changes
  /// it (and the one that other users of `rand()` would notice).
  static void rc4_init(unsigned char* state, unsigned char* key);

  /// Draws `count` bytes from a scheduled `state` into `out`. Each call starts the generator's two
  /// indices afresh; the state goes on from where the call before left it.
  static void rc4_randomize(unsigned char* state, unsigned char* out, int count);

 private:
  unsigned char state_[256] = {};
  unsigned char key_[256] = {};
  unsigned char output_[6] = {};

  static pthread_mutex_t m_lock;  // over every draw, of any generator
};
