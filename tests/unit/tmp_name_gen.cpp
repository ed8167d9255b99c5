#include "tmp_name_gen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <set>
#include <string>
#include <vector>

// What six bytes of a key's stream at a time give, in digits of `width` bits. The key is repeated.
static std::string Draw(std::string key, int draws, int width) {
  while (key.size() < 256) {
    key += key;
  }
  unsigned char state[256], bytes[7] = {};
  TmpNameGen::rc4_init(state, reinterpret_cast<unsigned char*>(key.data()));
  std::string text;
  while (draws-- > 0) {
    TmpNameGen::rc4_randomize(state, bytes, 6);
    for (int bit = 0; bit < 48; bit += width) {
      const int digit = (bytes[bit / 8] << 8 | bytes[bit / 8 + 1]) >> (16 - width - bit % 8) & ((1 << width) - 1);
      text += "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_"[digit];
    }
  }
  return text;
}

TEST(TmpNameGen, DrawsThePublishedKeyStreams) {  // of RFC 6229 and the cipher's best known examples
  const char* const rows[][2] = {{"\1\2\3\4\5", "b2396305f03d"}, {"Key", "eb9f7781b734"}, {"Wiki", "6044db6d41b7"}};
  for (const auto& row : rows) {
    EXPECT_EQ(Draw(row[0], 1, 4), row[1]);
  }
  EXPECT_NE(Draw(std::string(256, '\0'), 1, 4), "de188941a337");  // an empty key is replaced
}

TEST(TmpNameGen, NamesFollowFromTheMicrosecondOfCreation) {
  TmpNameGen generator;
  const auto now = std::chrono::system_clock::now().time_since_epoch() / std::chrono::microseconds(1);
  std::string expected, names = generator.getTmpPath("a folder/").c_str();
  for (int i = 0; i < 100; ++i) {
    names += generator.getTmpName().c_str();
  }
  for (auto time = now; expected != names && time > now - 1000000; --time) {
    const std::string key = std::to_string(time / 1000000) + "-" + std::to_string(time % 1000000);
    expected = "a folder//" + Draw(key + std::string(256, '\0'), 101, 6);
  }
  EXPECT_EQ(names, expected);
}

TEST(TmpNameGen, GivesEveryThreadOtherNames) {
  std::vector<std::string> names(40000);
  std::vector<std::future<void>> threads;
  const auto take = [] { return std::string(TmpNameGen::getInstance()->getTmpName().c_str()); };
  for (auto at = names.begin(); at != names.end(); at += 5000) {
    threads.push_back(std::async(std::launch::async, [=] { std::generate_n(at, 5000, take); }));
  }
  threads.clear();  // waits for them
  EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), 40000u);
}
