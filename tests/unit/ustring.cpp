#include "ustring.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <sstream>

namespace {

constexpr unsigned short kWide[] = {'x', 0x20AC, 0};

std::u16string utf16(const ustring& s) {
  const unsigned short* const w = s.c_str_utf16();
  return std::u16string(w, std::find(w, w + s.length() + 1, 0));
}

// Changes " é ", whose both forms are there.
void check_change(const std::string& text_and_error, void (*change)(ustring&)) {
  ustring s(" é ");
  EXPECT_EQ(utf16(s), u" é ");
  std::string error;
  try {
    change(s);
  } catch (const std::exception& e) {
    error = e.what();
  }
  EXPECT_EQ(std::string(s.c_str(), s.length()) + error, text_and_error);
  EXPECT_EQ(utf16(s), utf16(ustring(s.c_str()))) << text_and_error;
}

TEST(UString, ChangesReachBothForms) {
  // Where narrow and wide text take turns, each needs what the one before has done to the other
  // form.
  check_change(" é bcx-€€", [](auto& s) {
    s.append("bcd", 2).append(kWide, 1).append('-', 1).append(kWide[1], 2);
  });
  check_change("éx", [](auto& s) {
    s.ltrim(" "), s += kWide[0], s.rtrim("x"), s.rtrim(" "), s += kWide[0];
  });
  check_change("bé-x", [](auto& s) { s.replace(' ', '-'), s += kWide[0], s[0] = 'b'; });
  check_change("x", [](auto& s) { s.trim(s), s.append(kWide[2], 2) += kWide[0]; });
  check_change("b", [](auto& s) { swap(s, *std::make_unique<ustring>('b')); });
  check_change("bx", [](auto& s) { s.swap(*std::make_unique<ustring>('b')).append(kWide, 1); });
  check_change("x€ é ", [](auto& s) { s += kWide + ustring(std::move(s)); });
  check_change("x€", [](auto& s) { ustring('b') = std::move(s), s += kWide; });
  check_change(" é x€€", [](auto& s) {
    s = s.normalize(ustring::NFD).normalize(ustring::NFC) + kWide + kWide[1];
  });
  check_change(" é  é  é  é ", [](auto& s) { (s += s.c_str()) += s.c_str_utf16(); });
  check_change(" é   é", [](auto& s) { s.append(s.c_str(), 1).append(s.c_str_utf16(), 2); });
  check_change(" é",
               [](auto& s) { (s = (s = s.c_str()).c_str_utf16()).assign(s.c_str_utf16(), 2); });
  check_change(" ", [](auto& s) { s.assign(s.c_str(), 1); });
  check_change(" é std::bad_alloc", [](auto& s) { s.append('b', s.npos); });
  check_change(" é std::bad_alloc", [](auto& s) { s.append(kWide[0], s.npos / 2); });
  check_change(" é substr", [](auto& s) { s.assign(s, 5); });
  check_change("substr", [](auto& s) { s.assign(ustring(), 1); });
  check_change(" é basic_string::substr", [](auto& s) { s.append(std::string(), 1); });

  const auto check_kind = [](const auto& x) {
    ustring s("é");
    EXPECT_EQ(s + x, "éx");
    EXPECT_EQ(utf16(s += x), u"éx");
    EXPECT_EQ(utf16(s = x), u"x");
  };
  check_kind("x"), check_kind(std::string("x")), check_kind(ustring("x")), check_kind('x'),
      check_kind(kWide[0]);
}

TEST(UString, IllFormedTextIsKeptAndHasNoUtf16) {
  std::stringstream texts;
  texts << ustring(
      "\x80 \xBF \xC3 \xC3( \xE2\x82 \xE2(\xA1 \xF0\x9F\x98 \xF0(\x8C\xBC "             // cut short
      "\xC0\xAF \xC1\xBF \xE0\x80\xAF \xE0\x9F\xBF \xF0\x80\x80\xAF \xF0\x8F\xBF\xBF "  // overlong
      "\xED\xA0\x80 \xED\xBF\xBF \xED\xA0\x81\xED\xB0\x80 "                   // surrogates
      "\xF4\x90\x80\x80 \xF5\x80\x80\x80 \xF8\x88\x80\x80\x80 \xFE a\xFFz");  // too great
  for (ustring text; texts >> text;) {
    testing::internal::CaptureStderr();
    ustring s(text);
    EXPECT_TRUE(!ustring::is_valid(s) && utf16(s).empty() && s.normalize(ustring::NFC).empty() &&
                s == text);
    EXPECT_EQ(s += kWide, "x€");
    const std::string warning("Warning: u_strFromUTF8: error code 10 at line 921\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), warning + warning + warning + warning)
        << text;
  }
  const unsigned short ill_formed[][4] = {{0xD800}, {0xDC00}, {'a', 0xDC00, 0xD800}, {0xD800, 'z'}};
  for (const auto& w : ill_formed) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(utf16(ustring("before") += w), u"");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Warning: u_strToUTF8: error code 10 at line 888\n");
  }
}

// Of the first bytes that differ, while the standard string's comparison has just a sign.
int difference(const std::string& a, const std::string& b) {
  const auto [x, y] = std::mismatch(a.c_str(), a.c_str() + a.size(), b.c_str());
  return static_cast<unsigned char>(*x) - static_cast<unsigned char>(*y);
}

TEST(UString, AgreesWithTheStandardString) {
  std::mt19937 random(20240229);
  const auto below = [&](std::size_t limit) { return random() % limit; };
  for (int round = 0; round < 20000 && !HasFailure(); ++round) {
    const std::string alphabet =
        std::string("ab/ aAzZ@[\xC3\xA9\x89\x7F").substr(below(12), 2 + below(3));
    const auto make = [&](std::size_t size) {
      std::string text;
      while (text.size() < size) text += alphabet[below(alphabet.size())];
      return text;
    };
    const std::string text = make(round % 8 == 0 ? below(800) : below(7)), x = make(below(4));
    const std::size_t pos = below(text.size() + 1),
                      n = below(5) == 0 ? ustring::npos : below(text.size() + 2);
    const std::string near =
        text.substr(0, pos) + make(below(2)) + text.substr(std::min(pos + below(2), text.size()));
    SCOPED_TRACE(testing::PrintToString(std::make_tuple(text, near, x, pos, n)));
    const ustring s(text), t(near);

    const auto search = [n](const auto& in, const auto& y) {
      return std::make_tuple(in.find(y, n), in.rfind(y, n), in.find_first_of(y, n),
                             in.find_last_of(y, n), in.find_first_not_of(y, n),
                             in.find_last_not_of(y, n));
    };
    auto found = search(text, x);
    if (x.empty() &&
        n >= text.size()) {  // unlike the standard string: no empty text lies behind the last byte
      std::get<0>(found) = ustring::npos;
      std::get<1>(found) = text.size() - 1;
    }
    EXPECT_TRUE(search(s, x) == found && search(s, x.c_str()) == found &&
                search(s, ustring(x)) == found);
    EXPECT_TRUE(x.size() > 1 || search(s, x.c_str()[0]) == found);

    const auto order = [](const auto& a, const auto& b, const char* c) {
      return std::make_tuple(a > b, a < b, a <= b, a >= b, a == b, a != b, a == c, a != c);
    };
    EXPECT_EQ(order(s, t, near.c_str()), order(text, near, near.c_str()));
    EXPECT_EQ(s.compare(t), difference(text, near));
    EXPECT_EQ(s.compare(t, n), difference(text.substr(0, n), near.substr(0, n)));

    ustring left(text), right(text), both(text);
    left.ltrim(ustring(x)), right.rtrim(ustring(x)), both.trim(ustring(x));
    EXPECT_EQ(left, text.substr(std::min(text.find_first_not_of(x), text.size())));
    EXPECT_EQ(right, text.substr(0, text.find_last_not_of(x) + 1));
    left.rtrim(x.c_str());
    EXPECT_EQ(both, left);
    const std::string part = text.substr(pos, n);
    EXPECT_EQ(left.assign(text, pos, n).append(s, pos, n).append(text, pos, n),
              part + part + s.substr(pos, n));
    EXPECT_EQ(both.assign(s).append(both, pos, n).assign(both, pos), text.substr(pos) + part);
  }
  EXPECT_EQ(ustring::compare("aAzZ[", "AaZz", true), '[');
  EXPECT_EQ(ustring::compare("a@", "A`", true), '@' - '`');
  EXPECT_EQ(ustring::compare("Z\xC3\xA9", "z\xC3@", true), 0xA9 - '@');
}

TEST(UString, NormalizesAsTheUnicodeDataSays) {
  const char command[] = "bsdcat '" LUMIVO_NORMALIZATION_TEST "' | grep '^[0-9A-F]'";
  const std::unique_ptr<FILE, int (*)(FILE*)> file(popen(command, "r"), pclose);
  int cases = 0;
  for (char line[4096], *at;
       std::fgets(at = line, sizeof line, file.get()) != nullptr && !HasFailure(); ++cases) {
    ustring c[5];  // source, NFC, NFD, and the two forms of the compatible characters
    for (ustring& text : c) {
      do {
        const auto code = static_cast<char32_t>(std::strtoul(at, &at, 16));
        text += std::filesystem::path(std::u32string(1, code)).u8string();
      } while (*at++ == ' ');
    }
    for (std::size_t i = 0; i < 5; ++i) {
      EXPECT_TRUE(ustring::is_valid(c[i])) << line;
      EXPECT_EQ(c[i].normalize(ustring::NFC), c[i < 3 ? 1 : 3]) << line;
      EXPECT_EQ(c[i].normalize(ustring::NFD), c[i < 3 ? 2 : 4]) << line;
    }
  }
  EXPECT_GT(cases, 18000) << command;
}

}  // namespace
