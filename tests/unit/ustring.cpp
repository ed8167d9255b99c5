#include "ustring.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <sstream>

namespace {

std::string requests;   // the sizes that realloc is asked for while a refusal is due
int until_refusal = 0;  // counted down: the request that reaches 0 fails

constexpr unsigned short kWide[] = {'x', 0x20AC, 0};

std::u16string utf16(const ustring& s) {
  const unsigned short* const w = s.c_str_utf16();
  return std::u16string(w, std::find(w, w + s.length() + 1, 0));
}

template <class Action>
std::string written_by(const Action& action) {
  testing::internal::CaptureStderr();
  action();
  return testing::internal::GetCapturedStderr();
}

// Acts on " é ", with the first, second, … request for memory refused, which leaves `left`, and then with none.
void check_act(const char* name, const char* left, const char* text, const char* sizes, void (*act)(ustring&)) {
  const auto refused = [act](ustring& s, int request) {
    requests.clear();
    until_refusal = request;
    try {
      act(s);
    } catch (const std::exception& e) {
      requests += until_refusal > 0 ? e.what() : "";
    }
    return std::exchange(until_refusal, 0) == 0;
  };
  for (int request = 1, again = true; again; ++request) {
    SCOPED_TRACE(testing::Message() << name << ", request " << request << " of " << sizes);
    ustring s(" é ");
    EXPECT_EQ(utf16(s), u" é ");
    again = refused(s, request);
    EXPECT_EQ(std::string(s.c_str(), s.length()), again ? left : text);
    EXPECT_EQ(utf16(s), utf16(ustring(again ? left : text)));
    EXPECT_FALSE(again && refused(s, 99));
    EXPECT_EQ(s, text);
  }
#ifndef __APPLE__
  EXPECT_EQ(requests, sizes) << name;
#endif
}

// Unlike the standard string's comparison: the difference of the bytes, not just its sign.
int difference(const std::string& a, const std::string& b, int (*fold)(int)) {
  std::size_t i = 0;
  const auto byte = [&](const std::string& s) { return fold(static_cast<unsigned char>(s.c_str()[i])); };
  while (i < a.size() && byte(a) == byte(b)) {
    ++i;
  }
  return byte(a) - byte(b);
}

// An act, the text it leaves, and what it asks of realloc or throws. A refusal undoes an ACT, and empties a SET.
#define ACT(act, ...) check_act(#act, " é ", __VA_ARGS__, [](ustring& s) { act; })
#define SET(act, ...) check_act(#act, "", __VA_ARGS__, [](ustring& s) { act; })

TEST(UString, ChangesReachBothFormsInExactBuffersAndSurviveRefusals) {
  ACT(s.append("bcd", 2), " é bc", "7 "), ACT(s.ltrim(" "), "é ", ""), ACT(s.append(kWide, 1), " é x", "10 6 "),
      ACT(s.append(kWide[1], 2), " é €€", "12 11 "), ACT(s.append(kWide[2], 2) += kWide[0], " é x", "12 6 "),
      ACT(s.append('b', 2), " é bb", "7 "), ACT(s += ustring("abcd").c_str_utf16(), " é abcd", "4 8 5 10 16 9 "),
      ACT(s.rtrim(" "), " é", ""), ACT(s.trim(s), "", ""), ACT(s.replace(' ', '-'), "-é-", ""), ACT(s.clear(), "", ""),
      ACT(s[0] = 'b', "bé ", ""), ACT(s += s.c_str(), " é  é ", "9 "), ACT(s += s.c_str_utf16(), " é  é ", "14 9 "),
      ACT(s.append(s.c_str(), 1), " é  ", "6 "), ACT(s.append(s.c_str_utf16(), 1), " é  ", "10 6 "),
      ACT(s.assign(s.c_str(), 1), " ", ""), ACT(s.assign(s.c_str_utf16(), 2), " é", ""),
      ACT(s.assign(s.c_str_utf16(), 0), "", "1 "), ACT(s = (s = s.c_str()).c_str_utf16(), " é ", ""),
      ACT(swap(s, *std::make_unique<ustring>('b')), "b", "4 8 "), ACT((ustring(std::move(s)), s += 'b'), "b", "4 8 "),
      ACT(s = ustring(kWide), "x€", "4 8 5 "), ACT(ustring('b') = std::move(s), "", "4 8 "), SET(s = kWide, "x€", ""),
      ACT(s.assign(s, 1, 2), "é", "4 8 "), ACT(s.normalize(ustring::NFD), " é ", "4 8 10 6 "), SET(s = "x", "x", ""),
      ACT(s = s + kWide, " é x€", "4 8 5 12 9 "), SET(s = "", "", "1 "), SET(s.clear() += kWide + 2, "", "2 1 "),
      ACT(s.append('b', s.npos), " é ", "std::bad_alloc"), ACT(s.append(kWide[0], s.npos / 2), " é ", "std::bad_alloc"),
      ACT(s.substr(5), " é ", "substr"), ACT(s.append(s, 5), " é ", "substr"), ACT(s.assign(s, 5), " é ", "substr"),
      ACT(s.append(std::string(), 1), " é ", "basic_string::substr"), ACT(s.assign(ustring(), 1), "", "4 8 substr");
  const auto check = [](const auto& x) {
    ustring s("é");
    EXPECT_EQ(s + x, "éx");
    EXPECT_EQ(utf16(s += x), u"éx");
    EXPECT_EQ(utf16(s = x), u"x");
  };
  check("x"), check(std::string("x")), check(ustring("x")), check('x'), check(kWide[0]);
}

TEST(UString, IllFormedTextIsKeptAndHasNoUtf16) {
  const std::string from_utf8("Warning: u_strFromUTF8: error code 10 at line 921\n");
  std::istringstream texts(
      "\x80 \xBF \xC3 \xC3( \xE2\x82 \xE2(\xA1 \xF0\x9F\x98 \xF0(\x8C\xBC "             // cut short
      "\xC0\xAF \xC1\xBF \xE0\x80\xAF \xE0\x9F\xBF \xF0\x80\x80\xAF \xF0\x8F\xBF\xBF "  // overlong
      "\xED\xA0\x80 \xED\xBF\xBF \xED\xA0\x81\xED\xB0\x80 "                             // surrogates
      "\xF4\x90\x80\x80 \xF5\x80\x80\x80 \xF8\x88\x80\x80\x80 \xFE a\xFFz");            // too great
  for (std::string text; texts >> text;) {
    SCOPED_TRACE(testing::PrintToString(text));
    ustring s(text);
    EXPECT_FALSE(ustring::is_valid(s));
    EXPECT_EQ(written_by([&] { EXPECT_EQ(utf16(s), u""); }), from_utf8);
    EXPECT_EQ(written_by([&] { EXPECT_EQ(s.normalize(ustring::NFC), ""); }), from_utf8 + from_utf8);
    EXPECT_EQ(s, text.c_str());
    EXPECT_EQ(written_by([&] { EXPECT_EQ(s += kWide, "x€"); }), from_utf8);
  }
  const unsigned short ill_formed[][4] = {{0xD800}, {0xDC00}, {'a', 0xDC00, 0xD800}, {0xD800, 'z'}};
  for (const auto& w : ill_formed) {
    ustring s("before");
    EXPECT_EQ(written_by([&] { s += w; }), "Warning: u_strToUTF8: error code 10 at line 888\n");
    EXPECT_TRUE(s.empty() && utf16(s).empty());
  }
}

TEST(UString, AgreesWithTheStandardString) {
  std::mt19937 random(20240229);
  const auto below = [&](std::size_t limit) { return random() % limit; };
  for (int round = 0; round < 20000 && !HasFailure(); ++round) {
    const std::string alphabet = std::string("ab/ aAzZ@[\xC3\xA9\x89\x7F").substr(below(12), 2 + below(3));
    const auto make = [&](std::size_t size) {
      std::string text(size, '\0');
      std::generate(text.begin(), text.end(), [&] { return alphabet[below(alphabet.size())]; });
      return text;
    };
    const std::string text = make(round % 8 == 0 ? below(800) : below(7)), x = make(below(4));
    const std::size_t pos = below(text.size() + 1), n = below(5) == 0 ? ustring::npos : below(text.size() + 2);
    const std::string near = text.substr(0, pos) + make(below(2)) + text.substr(std::min(pos + below(2), text.size()));
    SCOPED_TRACE(testing::PrintToString(std::make_tuple(text, near, x, pos, n)));
    const ustring s(text), t(near);
    const auto all = [n](const auto& in, const auto& y) {
      return std::make_tuple(in.find(y, n), in.rfind(y, n), in.find_first_of(y, n), in.find_last_of(y, n),
                             in.find_first_not_of(y, n), in.find_last_not_of(y, n));
    };
    auto found = all(text, x);
    if (x.empty() && n >= text.size()) {  // unlike the standard string: no empty text lies behind the last byte
      std::get<0>(found) = ustring::npos;
      std::get<1>(found) = text.size() - 1;
    }
    EXPECT_EQ(all(s, x), found);
    EXPECT_EQ(all(s, x.c_str()), found);
    EXPECT_EQ(all(s, ustring(x)), found);
    EXPECT_EQ(x.size() > 1 ? found : all(s, x.c_str()[0]), found);

    const auto order = [](const auto& a, const auto& b, const char* c) {
      return std::make_tuple(a > b, a < b, a <= b, a >= b, a == b, a != b, a == c, a != c);
    };
    EXPECT_EQ(order(s, t, near.c_str()), order(text, near, near.c_str()));
    const auto same = [](int byte) { return byte; };
    EXPECT_EQ(s.compare(t), difference(text, near, same));
    EXPECT_EQ(s.compare(t, n), difference(text.substr(0, n), near.substr(0, n), same));
    EXPECT_EQ(ustring::compare(s, t, true), difference(text, near, std::tolower));

    const std::string trimmed = text.substr(0, text.find_last_not_of(x) + 1), part = text.substr(pos, n);
    const std::size_t first = std::min(text.find_first_not_of(x), text.size());
    ustring left(text), right(text), both(text);
    left.ltrim(ustring(x)), right.rtrim(ustring(x)), both.trim(ustring(x));
    EXPECT_EQ(std::make_tuple(left, right, both),
              std::make_tuple(text.substr(first), trimmed, trimmed.substr(std::min(first, trimmed.size()))));
    EXPECT_EQ(s.substr(pos, n), part);
    EXPECT_EQ(left.assign(text, pos, n).append(s, pos, n).append(text, pos, n), part + part + part);
    EXPECT_EQ(both.assign(s).append(both, pos, n), text + part);
  }
}

TEST(UString, NormalizesAsTheUnicodeDataSays) {
  const char command[] = "bsdcat '" LUMIVO_NORMALIZATION_TEST "' | grep '^[0-9A-F]'";
  const std::unique_ptr<FILE, int (*)(FILE*)> file(popen(command, "r"), pclose);
  int cases = 0;
  for (char line[4096], *at; std::fgets(at = line, sizeof line, file.get()) != nullptr && !HasFailure(); ++cases) {
    SCOPED_TRACE(line);
    ustring c[5];  // source, NFC, NFD, and the two forms of the compatible characters
    for (ustring& text : c) {
      do {
        const unsigned long code = std::strtoul(at, &at, 16), pair = code >= 0x10000 ? 0xDC00 | (code & 0x3FF) : 0;
        const unsigned long first = pair ? 0xD7C0 + (code >> 10) : code;
        const unsigned short w[] = {static_cast<unsigned short>(first), static_cast<unsigned short>(pair), 0};
        text += w;
      } while (*at++ == ' ');
    }
    for (std::size_t i = 0; i < 5; ++i) {
      EXPECT_TRUE(ustring::is_valid(c[i]));
      EXPECT_EQ(c[i].normalize(ustring::NFC), c[i < 3 ? 1 : 3]);
      EXPECT_EQ(c[i].normalize(ustring::NFD), c[i < 3 ? 2 : 4]);
    }
  }
  EXPECT_GT(cases, 18000) << command;
}

}  // namespace

#ifndef __APPLE__  // whose linker has no such option
// The linker leads the library's realloc here, and the malloc that a compiler makes of a realloc of nothing.
extern "C" void* __real_realloc(void* block, std::size_t size);
extern "C" void* __wrap_realloc(void* block, std::size_t size) {
  const bool refused = until_refusal > 0 && (requests += std::to_string(size) + " ", --until_refusal == 0);
  return refused ? nullptr : __real_realloc(block, size);
}
extern "C" void* __wrap_malloc(std::size_t size) {
  return __wrap_realloc(nullptr, size);
}
#endif
