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

constexpr unsigned short kEuro = 0x20AC;
constexpr unsigned short kWide[] = {'x', kEuro, 0};

std::u16string Utf16(const ustring& s) {
  const unsigned short* const w = s.c_str_utf16();
  return std::u16string(w, std::find(w, w + s.length() + 1, 0));
}

// A change of " é ", whose both forms are current, and what it makes of it or throws.
struct Change {
  const char* result;
  void (*change)(ustring& s);
  const char* error = "";
};

const Change kChanges[] = {
    {" é bc", [](ustring& s) { s.append("bcd", 2); }},
    {" é bb", [](ustring& s) { s.append('b', 2); }},
    {" é x", [](ustring& s) { s.append(kWide, 1); }},
    {" é €€", [](ustring& s) { s.append(kEuro, 2); }},
    {" é ", [](ustring& s) { s.append(kWide[2], 2); }},
    {"bc", [](ustring& s) { s.assign("bcd", 2); }},
    {"x", [](ustring& s) { s.assign(kWide, 1); }},
    {"é ", [](ustring& s) { s.ltrim(" "); }},
    {" é", [](ustring& s) { s.rtrim(" "); }},
    {"", [](ustring& s) { s.trim(s); }},
    {"-é-", [](ustring& s) { s.replace(' ', '-'); }},
    {"bé ", [](ustring& s) { s[0] = 'b'; }},
    {"bc", [](ustring& s) { s.swap(*std::make_unique<ustring>('b')).append('c', 1); }},
    {"x€ é ", [](ustring& s) { s = kWide + ustring(std::move(s)); }},
    {"", [](ustring& s) { const ustring taken(std::move(s)); }},
    {"", [](ustring& s) { ustring('b') = std::move(s); }},
    {" é  é ", [](ustring& s) { s += s.c_str(); }},
    {" é  é ", [](ustring& s) { s += s.c_str_utf16(); }},
    {" é  ", [](ustring& s) { s.append(s.c_str(), 1); }},
    {" é  é", [](ustring& s) { s.append(s.c_str_utf16(), 2); }},
    {" é ", [](ustring& s) { (s = s.c_str()) = s.c_str_utf16(); }},
    {" ", [](ustring& s) { s.assign(s.c_str(), 1); }},
    {" é", [](ustring& s) { s.assign(s.c_str_utf16(), 2); }},
    {" é ", [](ustring& s) { s.append('b', s.npos); }, "std::bad_alloc"},
    {" é ", [](ustring& s) { s.append(kWide[0], s.npos / 2); }, "std::bad_alloc"},
    {" é ", [](ustring& s) { s.assign(s, 5); }, "substr"},
    {" é ", [](ustring& s) { s.append(std::string(), 1); }, "basic_string::substr"},
};

TEST(UString, ChangesReachBothForms) {
  for (const Change& row : kChanges) {
    SCOPED_TRACE(&row - kChanges);
    ustring s(" é ");
    ASSERT_EQ(Utf16(s), u" é ");
    std::string error;
    try {
      row.change(s);
    } catch (const std::exception& e) {
      error = e.what();
    }
    EXPECT_EQ(error, row.error);
    EXPECT_EQ(std::string(s.c_str(), s.length()), row.result);
    // A change by way of the other form shows whether this one was marked out of date.
    EXPECT_EQ(s += kWide, row.result + std::string("x€"));
    EXPECT_EQ(s += 'b', row.result + std::string("x€b"));
    EXPECT_EQ(Utf16(s), Utf16(row.result) + u"x€b");
  }
}

TEST(UString, IllFormedTextIsKeptAndHasNoUtf16) {
  std::stringstream texts;
  texts << ustring(
      "\x80 \xC3( \xF0\x9F\x98 \xC0\xAF \xF0\x8F\xBF\xBF "  // cut short and overlong
      "\xED\xA0\x80 \xF4\x90\x80\x80 a\xFFz");              // a surrogate and too great
  std::string warnings;
  for (int i = 0; i < 4; ++i) {
    warnings += "Warning: u_strFromUTF8: error code 10 at line 921\n";
  }
  for (ustring text; texts >> text;) {
    testing::internal::CaptureStderr();
    ustring s(text);
    EXPECT_FALSE(ustring::is_valid(s));
    EXPECT_EQ(Utf16(s), u"");
    EXPECT_EQ(s.normalize(ustring::NFC), "");
    EXPECT_EQ(s, text);
    EXPECT_EQ(s += kWide, "x€");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), warnings) << text;
  }
  const unsigned short lone_surrogate[] = {'a', 0xDC00, 0xD800, 0};
  testing::internal::CaptureStderr();
  ustring s("before");
  s += lone_surrogate;
  EXPECT_EQ(s, "");
  EXPECT_EQ(Utf16(s), u"");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Warning: u_strToUTF8: error code 10 at line 888\n");
}

template <typename Pattern>
void CheckSearches(const std::string& text, const std::string& x, const Pattern& pattern,
                   size_t pos) {
  const ustring s(text);
  // Unlike in the standard string, no empty text lies behind the last byte.
  const bool atEnd = x.empty() && pos >= text.size();
  EXPECT_EQ(s.find(pattern, pos), atEnd ? ustring::npos : text.find(x, pos));
  EXPECT_EQ(s.rfind(pattern, pos), atEnd ? text.size() - 1 : text.rfind(x, pos));
  EXPECT_EQ(s.find_first_of(pattern, pos), text.find_first_of(x, pos));
  EXPECT_EQ(s.find_last_of(pattern, pos), text.find_last_of(x, pos));
  EXPECT_EQ(s.find_first_not_of(pattern, pos), text.find_first_not_of(x, pos));
  EXPECT_EQ(s.find_last_not_of(pattern, pos), text.find_last_not_of(x, pos));
}

// The first bytes that differ; the standard string's comparison has just a sign.
int Difference(const std::string& a, const std::string& b) {
  const auto [x, y] = std::mismatch(a.c_str(), a.c_str() + a.size(), b.c_str());
  return static_cast<unsigned char>(*x) - static_cast<unsigned char>(*y);
}

void CheckComparisons(const std::string& text, const std::string& other, size_t n) {
  const ustring s(text);
  const ustring t(other);
  EXPECT_EQ(s < t, text < other);
  EXPECT_EQ(s > t, text > other);
  EXPECT_EQ(s <= t, text <= other);
  EXPECT_EQ(s >= t, text >= other);
  EXPECT_EQ(s == t, text == other);
  EXPECT_EQ(s != t, text != other);
  EXPECT_EQ(s == other.c_str(), text == other);
  EXPECT_EQ(s != other.c_str(), text != other);
  EXPECT_EQ(s.compare(t), Difference(text, other));
  EXPECT_EQ(s.compare(t, n), Difference(text.substr(0, n), other.substr(0, n)));
}

void CheckTrimming(const std::string& text, const std::string& set) {
  const std::string left = text.substr(std::min(text.find_first_not_of(set), text.size()));
  const std::string both = left.substr(0, left.find_last_not_of(set) + 1);
  ustring s(text);
  s.trim(set.c_str());
  EXPECT_EQ(s, both);
}

void CheckParts(const std::string& text, size_t pos, size_t n) {
  const std::string part = text.substr(pos, n);
  ustring s(text);
  EXPECT_EQ(s.substr(pos, n), part);
  EXPECT_EQ(ustring("x").assign(text, pos, n).append(text, pos, n), part + part);
  EXPECT_EQ(ustring("x").assign(s, pos, n).append(s, pos, n), part + part);
  EXPECT_EQ(s.append(s, pos, n), text + part);
  EXPECT_EQ(s.assign(s, pos), text.substr(pos) + part);
}

TEST(UString, AgreesWithTheStandardString) {
  std::mt19937 random(20240229);
  const auto below = [&](size_t limit) { return random() % limit; };
  for (int round = 0; round < 20000 && !HasFailure(); ++round) {
    // Of a few bytes only, so that patterns are found and texts are often alike.
    const std::string alphabet =
        std::string("ab/ aAzZ@[\xC3\xA9\x89\x7F").substr(below(12), 2 + below(3));
    const auto make = [&](size_t size) {
      std::string text;
      while (text.size() < size) {
        text += alphabet[below(alphabet.size())];
      }
      return text;
    };
    const std::string text = make(below(round % 8 == 0 ? 800 : 7));
    const std::string x = make(below(4));
    const size_t pos = below(text.size() + 1);
    const size_t n = below(5) == 0 ? ustring::npos : below(text.size() + 2);
    const size_t rest = std::min(pos + below(2), text.size());
    const std::string near = text.substr(0, pos) + make(below(2)) + text.substr(rest);
    SCOPED_TRACE(testing::PrintToString(std::make_tuple(text, near, x, pos, n)));
    CheckSearches(text, x, x, n);
    CheckSearches(text, x, x.c_str(), n);
    CheckSearches(text, x, ustring(x), n);
    if (x.size() == 1) CheckSearches(text, x, x[0], n);
    CheckComparisons(text, near, n);
    CheckTrimming(text, x);
    CheckParts(text, pos, n);
  }
}

TEST(UString, FoldsTheCaseOfAsciiLettersOnly) {
  EXPECT_EQ(ustring::compare("aAzZ[", "AaZz", true), '[');
  EXPECT_EQ(ustring::compare("a@", "A`", true), '@' - '`');
  EXPECT_EQ(ustring::compare("Z\xC3\xA9", "z\xC3@", true), 0xA9 - '@');
}

TEST(UString, NormalizesAsTheUnicodeDataSays) {
  const char command[] = "bsdcat '" LUMIVO_NORMALIZATION_TEST "' | grep '^[0-9A-F]'";
  const std::unique_ptr<FILE, int (*)(FILE*)> file(popen(command, "r"), pclose);
  int cases = 0;
  for (char line[4096]; std::fgets(line, sizeof line, file.get()) != nullptr && !HasFailure();) {
    ++cases;
    char* at = line;
    ustring column[5];  // source, NFC, NFD, and the two forms of the compatible characters
    for (ustring& text : column) {
      do {
        const auto code = static_cast<char32_t>(std::strtoul(at, &at, 16));
        text += std::filesystem::path(std::u32string(1, code)).u8string();
      } while (*at++ == ' ');
    }
    for (size_t i = 0; i < 5; ++i) {
      EXPECT_TRUE(ustring::is_valid(column[i])) << line;
      EXPECT_EQ(column[i].normalize(ustring::NFC), column[i < 3 ? 1 : 3]) << line;
      EXPECT_EQ(column[i].normalize(ustring::NFD), column[i < 3 ? 2 : 4]) << line;
    }
  }
  EXPECT_GT(cases, 18000) << command;
}

}  // namespace
