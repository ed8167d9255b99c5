#include "ustring.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <sstream>
#include <stdexcept>
#include <tuple>
#include <vector>

namespace {

using Act = void (*)(ustring&);
using Sizes = std::vector<std::size_t>;
Sizes* requests = nullptr;  // what was asked of realloc, while somebody wants to know
int failing_request = 0;    // counted down: the one that reaches 0 fails

constexpr unsigned short kEuro = 0x20AC;

// 0-terminated, in the units that the class takes.
std::vector<unsigned short> units(const std::u16string& text) {
  return std::vector<unsigned short>(text.c_str(), text.c_str() + text.size() + 1);
}

std::u16string utf16(const ustring& s) {
  std::u16string text;
  for (const unsigned short* w = s.c_str_utf16(); *w != 0; ++w) {
    text += static_cast<char16_t>(*w);
  }
  return text;
}

// What an action leaves to read: the text of a bad position, and what it wrote to standard error.
std::string said(const std::function<void()>& action) {
  std::string thrown;
  testing::internal::CaptureStderr();
  try {
    action();
  } catch (const std::out_of_range& e) {
    thrown = e.what();
  }
  return thrown + testing::internal::GetCapturedStderr();
}

}  // namespace

// The linker leads the library's realloc here, and the malloc that a compiler makes of a realloc of nothing.
extern "C" void* __real_realloc(void* block, std::size_t size);
extern "C" void* __wrap_realloc(void* block, std::size_t size) {
  if (requests != nullptr) {
    requests->push_back(size);
  }
  return failing_request > 0 && --failing_request == 0 ? nullptr : __real_realloc(block, size);
}
extern "C" void* __wrap_malloc(std::size_t size) {
  return __wrap_realloc(nullptr, size);
}

TEST(UString, EveryKindOfTextBuildsAppendsAndReplaces) {
  const std::vector<unsigned short> wide = units(u"x");
  const auto check = [](const auto& x) {
    ustring s("\xC3\xA9");
    EXPECT_EQ(s + x, "\xC3\xA9x");
    EXPECT_EQ(utf16(s += x), u"\u00E9x");
    EXPECT_EQ(utf16(s = x), u"x");
  };
  const auto texts = std::make_tuple(ustring("x"), std::string("x"), "x", wide.data(), 'x', wide[0]);
  std::apply([&](const auto&... x) { (check(x), ...); }, texts);

  const std::map<ustring, int> numbers{{"a", 1}, {std::string("B"), 2}, {wide.data(), 3}};
  EXPECT_EQ(numbers.begin()->first, "B");  // bytes, not letters
  std::stringstream stream;
  ustring word("before");
  stream << ustring(" one two");
  EXPECT_EQ((stream >> word, word), "one");
  EXPECT_EQ((stream >> word >> word, word), "");
}

TEST(UString, ChangesOfOneFormReachTheOther) {
  const std::tuple<const char*, Act, const char*, std::u16string> kChanges[] = {
      // the text in both forms afterwards
      {"append", [](ustring& s) { s.append("bcd", 2); }, " \xC3\xA9 bc", u" \u00E9 bc"},
      {"bytes", [](ustring& s) { s.append('b', 2); }, " \xC3\xA9 bb", u" \u00E9 bb"},
      {"units", [](ustring& s) { s.append(units(u"bcd").data(), 2); }, " \xC3\xA9 bc", u" \u00E9 bc"},
      {"unit", [](ustring& s) { s.append(kEuro, 2); }, " \xC3\xA9 \xE2\x82\xAC\xE2\x82\xAC", u" \u00E9 \u20AC\u20AC"},
      {"unit 0", [](ustring& s) { s.append(units(u"")[0], 2) += units(u"b")[0]; }, " \xC3\xA9 b", u" \u00E9 b"},
      {"ltrim", [](ustring& s) { s.ltrim(ustring(" \t")); }, "\xC3\xA9 ", u"\u00E9 "},
      {"rtrim", [](ustring& s) { s.rtrim("\t "); }, " \xC3\xA9", u" \u00E9"},
      {"trim", [](ustring& s) { s.trim(s); }, "", u""},
      {"replace", [](ustring& s) { s.replace(' ', '-'); }, "-\xC3\xA9-", u"-\u00E9-"},
      {"a byte", [](ustring& s) { s[0] = 'b'; }, "b\xC3\xA9 ", u"b\u00E9 "},
      {"clear", [](ustring& s) { s.clear(); }, "", u""},
      {"own text doubled", [](ustring& s) { s += s.c_str(); }, " \xC3\xA9  \xC3\xA9 ", u" \u00E9  \u00E9 "},
      {"own units doubled", [](ustring& s) { s += s.c_str_utf16(); }, " \xC3\xA9  \xC3\xA9 ", u" \u00E9  \u00E9 "},
      {"own text cut", [](ustring& s) { s.assign(s.c_str(), 1); }, " ", u" "},
      {"own units cut", [](ustring& s) { s.assign(s.c_str_utf16(), 2); }, " \xC3\xA9", u" \u00E9"},
      {"own forms kept", [](ustring& s) { s = (s = s.c_str()).c_str_utf16(); }, " \xC3\xA9 ", u" \u00E9 "},
      {"itself cut", [](ustring& s) { s.assign(s, 1, 2); }, "\xC3\xA9", u"\u00E9"},
      {"swap", [](ustring& s) { swap(s, *std::make_unique<ustring>("b")); }, "b", u"b"},
      {"moved from", [](ustring& s) { ustring(std::move(s)).append(s += 'b'); }, "b", u"b"},
      {"moved out", [](ustring& s) { ustring("b") = std::move(s); }, "", u""},
      {"moved to", [](ustring& s) { s = s + 'b'; }, " \xC3\xA9 b", u" \u00E9 b"},
  };
  for (const auto& [what, change, text, wide] : kChanges) {
    SCOPED_TRACE(what);
    ustring s(" \xC3\xA9 ");
    EXPECT_EQ(utf16(s), u" \u00E9 ");
    change(s);
    EXPECT_EQ(s.length(), std::string(text).size());
    EXPECT_EQ(s, text);
    EXPECT_EQ(utf16(s), wide);
  }
}

// Each act is run with its first, second, … request for memory refused, until it gets through.
TEST(UString, AsksForExactSizesAndSurvivesRefusals) {
  const char before[] = "the text \xC3\xA9";
  const std::tuple<const char*, Act, std::string, Sizes> kActs[] = {
      // what a refusal leaves, and the requests for bytes in the end
      {"new", [](ustring&) { ustring(); }, before, {4, 8}},
      {"copy", [](ustring& s) { ustring t(s); }, before, {4, 8, 12}},
      {"append", [](ustring& s) { s += "and so on"; }, before, {21}},
      {"append a byte", [](ustring& s) { s += 'x'; }, before, {13}},
      {"append its own", [](ustring& s) { s += s.c_str(); }, before, {23}},
      {"append a unit", [](ustring& s) { s += kEuro; }, before, {22, 24, 15}},
      {"append few units", [](ustring& s) { s.clear() += units(u"x").data(); }, "", {2}},
      {"normalize", [](ustring& s) { s.normalize(ustring::NFD); }, before, {4, 8, 22, 24, 13}},
      {"assign half", [](ustring& s) { s = "texts"; }, "", {}},
      {"assign less than half", [](ustring& s) { s = "text"; }, "", {5}},
      {"assign units", [](ustring& s) { s = units(u"a wide text \u20AC").data(); }, "", {28, 16}},
      {"assign its own", [](ustring& s) { s.assign(s.c_str(), 1); }, before, {}},
      {"trim", [](ustring& s) { s.trim("hetx"); }, before, {}},
      {"clear", [](ustring& s) { s.clear(); }, before, {}},
  };
  for (const auto& [what, act, left, expected] : kActs) {
    Sizes sizes;
    for (int request = 1, refused = true; refused; ++request) {
      SCOPED_TRACE(testing::Message() << what << ", request " << request);
      ustring s(before);
      sizes.clear();
      requests = &sizes;
      failing_request = request;
      try {
        act(s);
        refused = false;
      } catch (const std::bad_alloc&) {
        EXPECT_EQ(s, left);
        EXPECT_EQ(utf16(s), left.empty() ? u"" : u"the text \u00E9");
      }
      requests = nullptr;
      failing_request = 0;
    }
    EXPECT_EQ(sizes, expected) << what;
  }
  ustring s("abc");  // and sizes that wrap around
  EXPECT_THROW(s.append('x', ustring::npos), std::bad_alloc);
  EXPECT_THROW(s.append(kEuro, ustring::npos / 2), std::bad_alloc);
  EXPECT_EQ(s, "abc");
}

TEST(UString, BadPositionsThrow) {
  ustring s("abc");
  const std::string text("abc");
  EXPECT_EQ(said([&] { s.substr(4, 0); }), "substr");
  EXPECT_EQ(said([&] { s.append(s, 4, 0); }), "substr");
  EXPECT_EQ(said([&] { s.assign(s, 4, 0); }), "substr");
  EXPECT_EQ(said([&] { s.append(text, 4, 0); }), "basic_string::substr");
  EXPECT_EQ(s, "abc");
  EXPECT_EQ(said([&] { s.assign(ustring(text), 4, 0); }), "substr");
  EXPECT_EQ(s, "");
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
    EXPECT_EQ(said([&] { EXPECT_EQ(utf16(s), u""); }), from_utf8);
    EXPECT_EQ(said([&] { EXPECT_TRUE(s.normalize(ustring::NFC).empty()); }), from_utf8 + from_utf8);
    EXPECT_EQ(s, text.c_str());
    EXPECT_EQ(said([&] { s += units(u"x").data(); }), from_utf8);
    EXPECT_EQ(s, "x");
  }
  for (const std::u16string text : {u"\xD800", u"\xDC00", u"a\xDC00\xD800", u"\xD800z"}) {
    ustring s("before");
    EXPECT_EQ(said([&] { s += units(text).data(); }), "Warning: u_strToUTF8: error code 10 at line 888\n");
    EXPECT_TRUE(s.empty());
    EXPECT_EQ(utf16(s), u"");
  }
}

namespace {

void check_searches(const std::string& text, const std::string& x, std::size_t pos) {
  const ustring s(text);
  // Unlike the standard string: no empty text lies behind the last byte.
  const bool behind = x.empty() && pos >= text.size();
  const auto check = [&](const auto& y) {
    EXPECT_EQ(s.find(y, pos), behind ? ustring::npos : text.find(x, pos));
    EXPECT_EQ(s.rfind(y, pos), behind ? text.size() - 1 : text.rfind(x, pos));  // npos for an empty text
    EXPECT_EQ(s.find_first_of(y, pos), text.find_first_of(x, pos));
    EXPECT_EQ(s.find_last_of(y, pos), text.find_last_of(x, pos));
    EXPECT_EQ(s.find_first_not_of(y, pos), text.find_first_not_of(x, pos));
    EXPECT_EQ(s.find_last_not_of(y, pos), text.find_last_not_of(x, pos));
  };
  check(x);
  check(x.c_str());
  check(ustring(x));
  if (x.size() <= 1) {
    check(x.c_str()[0]);
  }
}

int difference(const std::string& a, const std::string& b) {
  const auto i = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
  return static_cast<unsigned char>(a.c_str()[i]) - static_cast<unsigned char>(b.c_str()[i]);
}

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text;
}

void check_order(const std::string& a, const std::string& b, std::size_t n) {
  const ustring s(a), t(b);
  EXPECT_EQ(std::make_tuple(s > t, s < t, s <= t, s >= t, s == t, s != t, s == b.c_str(), s != b.c_str()),
            std::make_tuple(a > b, a < b, a <= b, a >= b, a == b, a != b, a == b, a != b));
  // Unlike the standard string: the difference of the bytes, not just its sign.
  EXPECT_EQ(s.compare(t), difference(a, b));
  EXPECT_EQ(s.compare(t, n), difference(a.substr(0, n), b.substr(0, n)));
  EXPECT_EQ(ustring::compare(s, t, true), difference(lower(a), lower(b)));
}

void check_parts(const std::string& text, const std::string& set, std::size_t pos, std::size_t n) {
  const std::size_t first = std::min(text.find_first_not_of(set), text.size());
  const std::string trimmed = text.substr(0, text.find_last_not_of(set) + 1);
  const std::string part = text.substr(pos, n);
  ustring s(text), left(s), right(s), both(s);
  left.ltrim(set.c_str());
  right.rtrim(set.c_str());
  both.trim(ustring(set));
  EXPECT_EQ(left, text.substr(first));
  EXPECT_EQ(right, trimmed);
  EXPECT_EQ(both, trimmed.substr(std::min(first, trimmed.size())));
  EXPECT_EQ(s.substr(pos, n), part);
  EXPECT_EQ(left.append(s, pos, n).append(text, pos, n), text.substr(first) + part + part);
  EXPECT_EQ(right.assign(text, pos, n), part);
  EXPECT_EQ(s.append(s, pos, n), text + part);
}

}  // namespace

TEST(UString, AgreesWithTheStandardString) {
  std::mt19937 random(20240229);
  const auto below = [&](std::size_t limit) { return random() % limit; };
  const std::string alphabets[] = {"ab", "a/ ", "aAzZ@[", "\xC3\xA9\x89\x7F"};
  for (int round = 0; round < 20000 && !HasFailure(); ++round) {
    const std::string& alphabet = alphabets[below(std::size(alphabets))];
    const auto byte = [&] { return alphabet[below(alphabet.size())]; };
    std::string text(round % 8 == 0 ? below(800) : below(7), '\0'), small(below(4), '\0');
    std::generate(text.begin(), text.end(), byte);
    std::generate(small.begin(), small.end(), byte);
    std::string near = text.substr(0, text.size() - below(2));
    if (!near.empty()) {
      near[below(near.size())] = byte();
    }
    const std::size_t pos = below(text.size() + 1);
    const std::size_t n = below(5) == 0 ? ustring::npos : below(text.size() + 2);
    SCOPED_TRACE(testing::PrintToString(std::make_tuple(text, near, small, pos, n)));
    check_searches(text, small, n);
    check_order(text, near, n);
    check_order(text, small, n);
    check_parts(text, small, pos, n);
  }
}

namespace {

// Code points in hexadecimal, through the UTF-16 side.
ustring characters(const std::string& codes) {
  std::istringstream in(codes);
  std::u16string text;
  for (unsigned c = 0; in >> std::hex >> c;) {
    if (c >= 0x10000) {
      text += static_cast<char16_t>(0xD7C0 + (c >> 10));
      c = 0xDC00 | (c & 0x3FF);
    }
    text += static_cast<char16_t>(c);
  }
  return ustring(units(text).data());
}

}  // namespace

TEST(UString, NormalizesAsTheUnicodeDataSays) {
  const std::unique_ptr<FILE, int (*)(FILE*)> file(popen("bsdcat '" LUMIVO_NORMALIZATION_TEST "'", "r"), pclose);
  ASSERT_NE(file, nullptr);
  int cases = 0;
  for (char line[4096]; std::fgets(line, sizeof line, file.get()) != nullptr && !HasFailure();) {
    if (line[0] == '@' || line[0] == '#') {
      continue;
    }
    SCOPED_TRACE(line);
    std::istringstream in(line);
    std::vector<ustring> c;  // source, NFC, NFD, and the two forms of the compatible characters
    for (std::string column; c.size() < 5 && std::getline(in, column, ';');) {
      c.push_back(characters(column));
    }
    ASSERT_EQ(c.size(), 5U);
    for (std::size_t i = 0; i < c.size(); ++i) {
      EXPECT_TRUE(ustring::is_valid(c[i]));
      EXPECT_EQ(c[i].normalize(ustring::NFC), c[i < 3 ? 1 : 3]);
      EXPECT_EQ(c[i].normalize(ustring::NFD), c[i < 3 ? 2 : 4]);
    }
    ++cases;
  }
  EXPECT_GT(cases, 18000) << "read from " LUMIVO_NORMALIZATION_TEST;
}
