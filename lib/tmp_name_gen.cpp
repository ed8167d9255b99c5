#include "tmp_name_gen.h"

#include <sys/time.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <utility>

namespace {

class Locked {
 public:
  explicit Locked(pthread_mutex_t* mutex) : mutex_(mutex) { pthread_mutex_lock(mutex_); }
  ~Locked() { pthread_mutex_unlock(mutex_); }
  Locked(const Locked&) = delete;
  Locked& operator=(const Locked&) = delete;

 private:
  pthread_mutex_t* const mutex_;
};

}  // namespace

pthread_mutex_t TmpNameGen::m_lock = PTHREAD_MUTEX_INITIALIZER;

TmpNameGen::TmpNameGen() {
  get_key(key_, sizeof key_);
  rc4_init(state_, key_);
}

TmpNameGen* TmpNameGen::getInstance() {
  static TmpNameGen tmp_name;
  return &tmp_name;
}

ustring TmpNameGen::getTmpName() {
  static const char map[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
  char name[9] = {};
  const Locked locked(&m_lock);
  rc4_randomize(state_, output_, sizeof output_);
  for (size_t group = 0; group < 2; ++group) {
    const unsigned char* const bytes = output_ + group * 3;
    const unsigned bits =
        static_cast<unsigned>(bytes[0]) << 16 | static_cast<unsigned>(bytes[1]) << 8 | bytes[2];
    for (size_t i = 0; i < 4; ++i) {
      name[group * 4 + i] = map[bits >> (18 - 6 * i) & 63];
    }
  }
  return name;
}

ustring TmpNameGen::getTmpPath(const ustring& folder) {
  return folder + "/" + getTmpName();
}

void TmpNameGen::get_key(unsigned char* buffer, unsigned long size) {
  struct timeval now = {};
  gettimeofday(&now, nullptr);
  snprintf(reinterpret_cast<char*>(buffer), size, "%lu-%lu", static_cast<unsigned long>(now.tv_sec),
           static_cast<unsigned long>(now.tv_usec));
}

void TmpNameGen::rc4_init(unsigned char* state, unsigned char* key) {
  for (unsigned i = 0; i < 256; ++i) {
    state[i] = static_cast<unsigned char>(i);
  }
  if (key[0] == 0) {
    srand(static_cast<unsigned>(time(nullptr)));
    for (unsigned i = 0; i < 256; ++i) {
      key[i] = static_cast<unsigned char>(rand());
    }
  }
  unsigned char j = 0;
  for (unsigned i = 0; i < 256; ++i) {
    j = static_cast<unsigned char>(j + state[i] + key[i]);
    std::swap(state[i], state[j]);
  }
}

void TmpNameGen::rc4_randomize(unsigned char* state, unsigned char* out, int count) {
  unsigned char i = 0;
  unsigned char j = 0;
  for (int k = 0; k < count; ++k) {
    ++i;
    j = static_cast<unsigned char>(j + state[i]);
    std::swap(state[i], state[j]);
    out[k] = state[static_cast<unsigned char>(state[i] + state[j])];
  }
}
