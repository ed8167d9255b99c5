#include "tmp_name_gen.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <string>

namespace {

// RC4 under a key, which is repeated to the length that the generator takes.
struct KeyStream {
  explicit KeyStream(std::string key) {
    while (key.size() < 256) {
      key += key;
    }
    TmpNameGen::rc4_init(state, reinterpret_cast<unsigned char*>(key.data()));
  }
  // The next six bytes as a number.
  uint64_t Next() {
    unsigned char bytes[6];
    TmpNameGen::rc4_randomize(state, bytes, sizeof bytes);
    uint64_t number = 0;
    for (const unsigned char byte : bytes) {
      number = number << 8 | byte;
    }
    return number;
  }
  unsigned char state[256];
};

std::string NameOf(uint64_t number) {
  const char digits[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
  std::string name;
  for (int shift = 42; shift >= 0; shift -= 6) {
    name += digits[number >> shift & 63];
  }
  return name;
}

TEST(TmpNameGen, DrawsThePublishedKeyStreams) {  // of RFC 6229 and the cipher's best known examples
  EXPECT_EQ(KeyStream("\1\2\3\4\5").Next(), 0xb2396305f03d);
  EXPECT_EQ(KeyStream("Key").Next(), 0xeb9f7781b734);
  EXPECT_EQ(KeyStream("Wiki").Next(), 0x6044db6d41b7);
}

TEST(TmpNameGen, FillsAnEmptyKeyFromTheTime) {
  unsigned char state[256];
  unsigned char key[256] = {};
  time_t seed = time(nullptr);
  TmpNameGen::rc4_init(state, key);
  std::string expected;
  for (; expected != std::string(key, key + 256) && seed <= time(nullptr); ++seed) {
    srand(static_cast<unsigned>(seed));
    expected.clear();
    while (expected.size() < 256) {
      expected += static_cast<char>(rand());
    }
  }
  EXPECT_EQ(std::string(key, key + 256), expected);
}

TEST(TmpNameGen, NamesFollowFromTheMicrosecondOfCreation) {
  using std::chrono::microseconds;
  TmpNameGen generator;
  auto time = std::chrono::system_clock::now().time_since_epoch() / microseconds(1);
  const ustring path = generator.getTmpPath("a folder/");
  const ustring name = generator.getTmpName();
  std::string expected;
  std::string next;
  for (int tries = 0; path != expected && tries < 1000000; ++tries, --time) {
    const std::string key = std::to_string(time / 1000000) + "-" + std::to_string(time % 1000000);
    KeyStream stream(key + std::string(256, '\0'));
    expected = "a folder//" + NameOf(stream.Next());
    next = NameOf(stream.Next());
  }
  EXPECT_EQ(path, expected);
  EXPECT_EQ(name, next);
}

}  // namespace
