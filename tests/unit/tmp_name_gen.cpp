#include "tmp_name_gen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <set>
#include <vector>

// What six bytes of a key's stream at a time give, in digits of `width` bits. The key is repeated.
static std::string Draw(std::string key, int draws, int width) {
  while (key.size() < 256) key += key;
  unsigned char state[256], bytes[7] = {};
  TmpNameGen::rc4_init(state, reinterpret_cast<unsigned char*>(key.data()));
  std::string text;
  while (draws-- > 0) {
    TmpNameGen::rc4_randomize(state, bytes, 6);
    for (int bit = 0; bit < 48; bit += width) {
      const int digit =
          (bytes[bit / 8] << 8 | bytes[bit / 8 + 1]) >> (16 - width - bit % 8) & ((1 << width) - 1);
      text += "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_"[digit];
    }
  }
  return text;
}

TEST(TmpNameGen, DrawsThePublishedKeyStreams) {  // of RFC 6229 and the cipher's best known examples
  EXPECT_EQ(Draw("\1\2\3\4\5", 1, 4), "b2396305f03d");
  EXPECT_EQ(Draw("Key", 1, 4), "eb9f7781b734");
  EXPECT_EQ(Draw("Wiki", 1, 4), "6044db6d41b7");
  EXPECT_NE(Draw(std::string(256, '\0'), 1, 4), "de188941a337");  // an empty key is replaced
}

TEST(TmpNameGen, NamesFollowFromTheMicrosecondOfCreation) {
  TmpNameGen generator;
  auto time = std::chrono::system_clock::now().time_since_epoch() / std::chrono::microseconds(1);
  ustring names = generator.getTmpPath("a folder/");
  names += generator.getTmpName();
  std::string expected;
  for (int tries = 0; names != expected && tries < 1000000; ++tries, --time) {
    const std::string key = std::to_string(time / 1000000) + "-" + std::to_string(time % 1000000);
    expected = "a folder//" + Draw(key + std::string(256, '\0'), 2, 6);
  }
  EXPECT_EQ(names, expected);
}

TEST(TmpNameGen, GivesEveryThreadOtherNames) {
  std::vector<ustring> names(40000);
  std::vector<std::future<void>> threads;
  const auto take = [] { return TmpNameGen::getInstance()->getTmpName(); };
  for (auto at = names.begin(); at != names.end(); at += 5000) {
    threads.push_back(std::async(std::launch::async, [=] { std::generate_n(at, 5000, take); }));
  }
  threads.clear();  // waits for them
  EXPECT_EQ(std::set<ustring>(names.begin(), names.end()).size(), 40000u);
}
