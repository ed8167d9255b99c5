#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <future>
#include <set>
#include <string>
#include <vector>

#include "tmp_name_gen.h"

namespace {

struct Stream {
  // Zeros follow a `key` of less than 256 bytes.
  explicit Stream(const std::string& key) {
    std::vector<unsigned char> bytes(key.begin(), key.end());
    bytes.resize(256);
    TmpNameGen::rc4_init(state, bytes.data());
  }

  std::string DrawHex(size_t count) {
    std::vector<unsigned char> bytes(count);
    TmpNameGen::rc4_randomize(state, bytes.data(), static_cast<int>(count));
    std::string hex;
    for (const unsigned byte : bytes) {
      hex += {"0123456789abcdef"[byte / 16], "0123456789abcdef"[byte % 16]};
    }
    return hex;
  }

  // The next six bytes as one number, written to base 64.
  std::string DrawName() {
    std::string name(8, ' ');
    uint64_t number = std::stoull(DrawHex(6), nullptr, 16);
    for (size_t i = 8; i-- > 0; number /= 64) {
      name[i] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_"[number % 64];
    }
    return name;
  }

  unsigned char state[256];
};

// From RFC 6229 and the cipher's best known examples.
TEST(TmpNameGen, DrawsThePublishedKeyStreams) {
  const std::pair<std::string, std::string> rows[] = {
      {"\x01\x02\x03\x04\x05", "b2396305f03dc027ccc3524a0a1118a86982944f18fc82d589c403a47a0d0919"},
      {"\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0a\x0b\x0c\x0d\x0e\x0f\x10", "9ac7cc9a609d1ef7b2932899cde41b97"},
      {"Key", "eb9f7781b734ca72a719"},
      {"Wiki", "6044db6d41b7"},
      {"Secret", "04d46b053ca87b59"},
  };
  for (const auto& row : rows) {
    std::string key;
    while (key.size() < 256) {
      key += row.first;
    }
    EXPECT_EQ(Stream(key).DrawHex(row.second.size() / 2), row.second);
  }
}

TEST(TmpNameGen, NamesFollowFromTheMicrosecondOfCreation) {
  using namespace std::chrono;
  const auto now = [] { return duration_cast<microseconds>(system_clock::now().time_since_epoch()).count(); };
  const auto before = now();
  TmpNameGen generator;
  const auto after = now();
  ustring names;
  for (int i = 0; i < 100; ++i) {
    names += generator.getTmpName();
  }
  names += generator.getTmpPath("/some folder/");
  bool found = false;
  for (auto time = before; time <= after && !found; ++time) {
    Stream stream(std::to_string(time / 1000000) + "-" + std::to_string(time % 1000000));
    ustring expected;
    for (int i = 0; i < 100; ++i) {
      expected += stream.DrawName();
    }
    found = names == expected + "/some folder//" + stream.DrawName();
  }
  EXPECT_TRUE(found) << names;
}

TEST(TmpNameGen, FillsAnEmptyKeyAtRandom) {
  unsigned char key[256] = {};
  unsigned char state[256];
  TmpNameGen::rc4_init(state, key);
  EXPECT_GT(std::set<unsigned char>(key, key + 256).size(), 100u);
  EXPECT_EQ(std::set<unsigned char>(state, state + 256).size(), 256u);
}

TEST(TmpNameGen, GivesEveryThreadOtherNames) {
  const auto take = [] {
    std::vector<std::string> names;
    for (int i = 0; i < 5000; ++i) {
      names.emplace_back(TmpNameGen::getInstance()->getTmpName().c_str());
    }
    return names;
  };
  std::vector<std::future<std::vector<std::string>>> threads(8);
  for (auto& thread : threads) {
    thread = std::async(std::launch::async, take);
  }
  std::set<std::string> all;
  for (auto& thread : threads) {
    const auto names = thread.get();
    all.insert(names.begin(), names.end());
  }
  EXPECT_EQ(all.size(), 40000u);
}

}  // namespace
