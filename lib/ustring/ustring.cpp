// All text is written by one of `append(const char*, n)`, `append(char, n)`, `append(const unsigned
// short*, n)` and `append(unsigned short, n)`.

#include "ustring.h"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

namespace {

using size_type = ustring::size_type;

constexpr size_type kInitialCapacity = 4;

// The line numbers in the warnings. They identify the place of the failure, and stay the same when
// the lines of this file move.
constexpr int kLineToUtf8 = 888;
constexpr int kLineFromUtf8 = 921;
constexpr int kLineGetNormalizer = 1014;
constexpr int kLineNormalize = 1026;

constexpr UNormalization2Mode kNormalizerModes[] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};

// The only place where our 16-bit units become ICU's.
static_assert(sizeof(UChar) == sizeof(unsigned short), "UTF-16 units differ in size");
UChar* to_icu(unsigned short* w) {
  return reinterpret_cast<UChar*>(w);
}

int32_t to_icu_capacity(size_type capacity) {
  constexpr size_type kMost = std::numeric_limits<int32_t>::max();
  return static_cast<int32_t>(std::min(capacity, kMost));
}

// Assembled first, so that it is written in one piece.
void warn(const char* function, UErrorCode err, int line) {
  const std::string text = std::string("Warning: ") + function + ": error code " +
                           std::to_string(err) + " at line " + std::to_string(line) + "\n";
  std::cerr << text << std::flush;
}

// The length of a text, at most `n`.
size_type bounded_length(const char* s, size_type n) {
  return n == ustring::npos ? std::strlen(s) : strnlen(s, n);
}

size_type bounded_length(const unsigned short* w, size_type n) {
  size_type length = 0;
  while (length < n && w[length] != 0) {
    ++length;
  }
  return length;
}

// Room for `length` + `added` units and the terminator.
size_type need_for(size_type length, size_type added) {
  if (added >= ustring::npos - length) {
    throw std::bad_alloc();
  }
  return length + added + 1;
}

template <class Unit>
void resize(Unit*& buffer, size_type& capacity, size_type need) {
  if (need > ustring::npos / sizeof(Unit)) {
    throw std::bad_alloc();
  }
  void* resized = std::realloc(buffer, need * sizeof(Unit));
  if (resized == nullptr) {
    throw std::bad_alloc();
  }
  buffer = static_cast<Unit*>(resized);
  capacity = need;
}

bool fits(size_type capacity, size_type need) {
  return capacity >= need && capacity / 2 <= need;
}

template <class T>
ustring joined(const ustring& a, const T& b) {
  ustring result(a);
  result += b;
  return result;
}

class ByteSet {
 public:
  explicit ByteSet(const char* set) {
    for (; *set != '\0'; ++set) {
      members_[static_cast<unsigned char>(*set)] = true;
    }
  }
  bool has(char c) const { return members_[static_cast<unsigned char>(c)]; }

 private:
  std::array<bool, 256> members_{};
};

// The last position, from `start` backward, whose byte satisfies `matches`.
template <class Predicate>
size_type find_backward(const char* text, size_type start, Predicate matches) {
  for (size_type i = start + 1; i-- > 0;) {
    if (matches(text[i])) {
      return i;
    }
  }
  return ustring::npos;
}

constexpr std::array<unsigned char, 256> folding_map() {
  std::array<unsigned char, 256> map{};
  for (unsigned i = 0; i < map.size(); ++i) {
    map[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i + ('a' - 'A') : i);
  }
  return map;
}

int str_case_cmp(const char* a, const char* b) {
  static constexpr std::array<unsigned char, 256> map = folding_map();
  for (;; ++a, ++b) {
    const int folded = map[static_cast<unsigned char>(*a)];
    const int result = folded - map[static_cast<unsigned char>(*b)];
    if (result != 0 || folded == 0) {
      return result;
    }
  }
}

}  // namespace

ustring::ustring() {
  init();
}

ustring::ustring(const ustring& other) : ustring() {
  append(other);
}

ustring::ustring(ustring&& other) : ustring() {
  swap(other);
}

ustring::ustring(const char* s) : ustring() {
  append(s);
}

ustring::ustring(const unsigned short* w) : ustring() {
  append(w);
}

ustring::ustring(const std::string& s) : ustring() {
  append(s);
}

ustring::ustring(char c) : ustring() {
  append(c, 1);
}

ustring::~ustring() {
  std::free(data);
  std::free(wdata);
  data = nullptr;
  wdata = nullptr;
}

void ustring::init() {
  data = nullptr;
  wdata = nullptr;
  data_len = data_cap = wdata_len = wdata_cap = 0;
  resize(data, data_cap, kInitialCapacity);
  try {
    resize(wdata, wdata_cap, kInitialCapacity);
  } catch (...) {
    // The destructor does not run for an object whose construction fails here.
    std::free(data);
    throw;
  }
  clear_data();
  clear_wdata();
}

void ustring::realloc_data(size_type need) {
  if (!fits(data_cap, need)) {
    resize(data, data_cap, need);
  }
}

void ustring::realloc_wdata(size_type need) const {
  if (!fits(wdata_cap, need)) {
    resize(wdata, wdata_cap, need);
  }
}

void ustring::update_wdata() const {
  if (wdata_len == 0 && data_len != 0) {
    convert_from_data();
  }
}

void ustring::convert_from_data() const {
  int32_t length = 0;
  UErrorCode err = U_ZERO_ERROR;
  u_strFromUTF8(nullptr, 0, &length, data, -1, &err);
  realloc_wdata(need_for(static_cast<size_type>(length), 0));

  err = U_ZERO_ERROR;
  u_strFromUTF8(to_icu(wdata), to_icu_capacity(wdata_cap), &length, data, -1, &err);
  if (U_FAILURE(err)) {
    warn("u_strFromUTF8", err, kLineFromUtf8);
    clear_wdata();
    return;
  }
  wdata_len = static_cast<size_type>(length);
  wdata[wdata_len] = 0;
}

void ustring::convert_from_wdata() {
  int32_t length = 0;
  UErrorCode err = U_ZERO_ERROR;
  u_strToUTF8(nullptr, 0, &length, to_icu(wdata), -1, &err);
  try {
    realloc_data(need_for(static_cast<size_type>(length), 0));
  } catch (...) {
    // The old text is still there, and it is the authoritative one.
    clear_wdata();
    throw;
  }

  err = U_ZERO_ERROR;
  u_strToUTF8(data, to_icu_capacity(data_cap), &length, to_icu(wdata), -1, &err);
  if (U_FAILURE(err)) {
    warn("u_strToUTF8", err, kLineToUtf8);
    clear_data();
    clear_wdata();
    return;
  }
  data_len = static_cast<size_type>(length);
  data[data_len] = '\0';
}

ustring& ustring::finish_wdata(size_type len) {
  wdata_len = len;
  wdata[wdata_len] = 0;
  convert_from_wdata();
  return *this;
}

ustring& ustring::append(const char* s, size_type n) {
  const bool own = s == data;
  const size_type count = own ? std::min(data_len, n) : bounded_length(s, n);
  realloc_data(need_for(data_len, count));
  // The resize may have moved our own text, and that text may contain a NUL.
  const char* source = own ? data : s;
  const size_type copied = own ? strnlen(source, count) : count;
  std::memcpy(data + data_len, source, copied);
  data_len += copied;
  data[data_len] = '\0';
  clear_wdata();
  return *this;
}

ustring& ustring::append(const unsigned short* w, size_type n) {
  // Compared first, because the conversion may move the buffer.
  const bool own = w == wdata;
  update_wdata();
  const size_type count = own ? std::min(wdata_len, n) : bounded_length(w, n);
  realloc_wdata(need_for(wdata_len, count));
  std::copy_n(own ? wdata : w, count, wdata + wdata_len);
  return finish_wdata(wdata_len + count);
}

ustring& ustring::append(char c, size_type n) {
  realloc_data(need_for(data_len, n));
  std::memset(data + data_len, c, n);
  data_len += n;
  data[data_len] = '\0';
  clear_wdata();
  return *this;
}

ustring& ustring::append(unsigned short u, size_type n) {
  update_wdata();
  realloc_wdata(need_for(wdata_len, n));
  // A unit of 0 would end the text in the middle: units after it would be counted here but missing
  // in UTF-8.
  const size_type count = u == 0 ? 0 : n;
  std::fill_n(wdata + wdata_len, count, u);
  return finish_wdata(wdata_len + count);
}

ustring& ustring::append(const ustring& s, size_type pos, size_type n) {
  if (&s == this) {
    const ustring part = s.substr(pos, n);
    return append(part.data);
  }
  if (pos > s.data_len) {
    throw std::out_of_range("substr");
  }
  return append(s.data + pos, n);
}

ustring& ustring::append(const std::string& s, size_type pos, size_type n) {
  if (pos > s.size()) {
    throw std::out_of_range("basic_string::substr");
  }
  return append(s.c_str() + pos, n);
}

ustring& ustring::assign(const char* s, size_type n) {
  if (s != data) {
    return clear().append(s, n);
  }
  if (n < data_len) {
    data_len = n;
    data[data_len] = '\0';
    clear_wdata();
  }
  return *this;
}

ustring& ustring::assign(const unsigned short* w, size_type n) {
  if (w != wdata) {
    return clear().append(w, n);
  }
  return n < wdata_len ? finish_wdata(n) : *this;
}

ustring& ustring::assign(char c, size_type n) {
  return clear().append(c, n);
}

ustring& ustring::assign(unsigned short u, size_type n) {
  return clear().append(u, n);
}

ustring& ustring::assign(const ustring& s, size_type pos, size_type n) {
  if (&s == this) {
    const ustring part = s.substr(pos, n);
    return assign(part.data);
  }
  return clear().append(s, pos, n);
}

ustring& ustring::assign(const std::string& s, size_type pos, size_type n) {
  return clear().append(s, pos, n);
}

ustring& ustring::operator=(ustring&& s) noexcept {
  if (this != &s) {
    swap(s);
    s.clear();
  }
  return *this;
}

ustring& ustring::clear() {
  clear_data();
  clear_wdata();
  return *this;
}

ustring& ustring::swap(ustring& other) noexcept {
  std::swap(data, other.data);
  std::swap(data_len, other.data_len);
  std::swap(data_cap, other.data_cap);
  std::swap(wdata, other.wdata);
  std::swap(wdata_len, other.wdata_len);
  std::swap(wdata_cap, other.wdata_cap);
  return *this;
}

void ustring::ltrim(const char* set) {
  const size_type removed = std::strspn(data, set);
  if (removed == 0) {
    return;
  }
  data_len -= removed;
  std::memmove(data, data + removed, data_len + 1);
  clear_wdata();
}

void ustring::rtrim(const char* set) {
  // One more than the position of the last byte that stays; `npos` + 1 is 0.
  const size_type kept = find_last_not_of(set) + 1;
  if (kept == data_len) {
    return;
  }
  data_len = kept;
  data[data_len] = '\0';
  clear_wdata();
}

void ustring::trim(const char* set) {
  ltrim(set);
  rtrim(set);
}

void ustring::replace(char from, char to) {
  std::replace(data, data + data_len, from, to);
  clear_wdata();
}

ustring ustring::substr(size_type pos, size_type n) const {
  if (pos > data_len) {
    throw std::out_of_range("substr");
  }
  ustring result;
  result.append(data + pos, n);
  return result;
}

size_type ustring::find(const char* x, size_type pos) const {
  if (pos >= data_len) {
    return npos;
  }
  const char* found = std::strstr(data + pos, x);
  return found == nullptr ? npos : static_cast<size_type>(found - data);
}

size_type ustring::find_first_of(const char* x, size_type pos) const {
  if (pos >= data_len) {
    return npos;
  }
  const size_type i = pos + std::strcspn(data + pos, x);
  return data[i] == '\0' ? npos : i;
}

size_type ustring::find_first_not_of(const char* x, size_type pos) const {
  if (pos >= data_len) {
    return npos;
  }
  const size_type i = pos + std::strspn(data + pos, x);
  return data[i] == '\0' ? npos : i;
}

size_type ustring::rfind(const char* x, size_type pos) const {
  const size_type count = std::strlen(x);
  if (data_len == 0 || count > data_len) {
    return npos;
  }
  const size_type start = std::min(pos, data_len - 1);
  if (count == 0) {
    return start;
  }
  return find_backward(data, std::min(start, data_len - count), [=](const char& byte) {
    return byte == x[0] && std::memcmp(&byte, x, count) == 0;
  });
}

size_type ustring::find_last_of(const char* x, size_type pos) const {
  if (data_len == 0 || x[0] == '\0') {
    return npos;
  }
  const size_type start = std::min(pos, data_len - 1);
  if (x[1] == '\0') {
    return find_backward(data, start, [c = x[0]](char byte) { return byte == c; });
  }
  const ByteSet set(x);
  return find_backward(data, start, [&](char byte) { return set.has(byte); });
}

size_type ustring::find_last_not_of(const char* x, size_type pos) const {
  if (data_len == 0) {
    return npos;
  }
  const ByteSet set(x);
  return find_backward(data, std::min(pos, data_len - 1),
                       [&](char byte) { return !set.has(byte); });
}

int ustring::compare(const ustring& other, size_type n) const {
  const size_type common = std::min(data_len, other.data_len);
  if (std::strncmp(data, other.data, std::min(n, common + 1)) == 0) {
    return 0;
  }
  // Only the sign of that result is defined. The texts differ before either of them ends, so the
  // difference can be searched for without checking for the NUL: by blocks first, then by bytes.
  constexpr size_type kBlock = 256;
  size_type i = 0;
  while (i + kBlock <= common && std::memcmp(data + i, other.data + i, kBlock) == 0) {
    i += kBlock;
  }
  while (data[i] == other.data[i]) {
    ++i;
  }
  return static_cast<unsigned char>(data[i]) - static_cast<unsigned char>(other.data[i]);
}

int ustring::compare(const ustring& a, const ustring& b, bool ignore_case) {
  return ignore_case ? str_case_cmp(a.data, b.data) : a.compare(b, npos);
}

bool ustring::is_valid(const ustring& s) {
  if (s.empty()) {
    return true;
  }
  int32_t length = 0;
  UErrorCode err = U_ZERO_ERROR;
  u_strFromUTF8(nullptr, 0, &length, s.data, -1, &err);
  return err != U_INVALID_CHAR_FOUND;
}

ustring ustring::normalize(const ustring& s, normalization_form f) {
  ustring result;
  if (s.empty()) {
    return result;
  }
  UErrorCode err = U_ZERO_ERROR;
  const UNormalizer2* normalizer = unorm2_getInstance(nullptr, "nfc", kNormalizerModes[f], &err);
  if (U_FAILURE(err) || normalizer == nullptr) {
    warn("unorm2_getInstance", err, kLineGetNormalizer);
    return result;
  }

  s.update_wdata();
  const int32_t length = unorm2_normalize(normalizer, to_icu(s.wdata), -1, nullptr, 0, &err);
  result.realloc_wdata(need_for(static_cast<size_type>(length), 0));

  err = U_ZERO_ERROR;
  // For ill-formed text the conversion fails, with a warning, before each of the two calls.
  s.update_wdata();
  const int32_t written = unorm2_normalize(normalizer, to_icu(s.wdata), -1, to_icu(result.wdata),
                                           to_icu_capacity(result.wdata_cap), &err);
  if (U_FAILURE(err)) {
    warn("unorm2_normalize", err, kLineNormalize);
    result.clear();
    return result;
  }
  result.finish_wdata(static_cast<size_type>(written));
  return result;
}

ustring operator+(const ustring& a, const ustring& b) {
  return joined(a, b);
}

ustring operator+(const ustring& a, const char* b) {
  return joined(a, b);
}

ustring operator+(const ustring& a, char b) {
  return joined(a, b);
}

ustring operator+(const ustring& a, const unsigned short* b) {
  return joined(a, b);
}

ustring operator+(const ustring& a, unsigned short b) {
  return joined(a, b);
}

std::ostream& operator<<(std::ostream& out, const ustring& s) {
  return out << s.c_str();
}

std::istream& operator>>(std::istream& in, ustring& s) {
  std::string word;
  in >> word;
  s = word;
  return in;
}
