#pragma once

#include <cstddef>
#include <cstring>
#include <iosfwd>
#include <string>

/// The string for everything that is not user interface: paths, file names, keys, values, versions.
///
/// A `ustring` holds UTF-8, the form that system calls take, and provides the same text in UTF-16
/// on request. Its interface follows `std::string`; every position and length counts bytes of the
/// UTF-8 form. Ill-formed UTF-8 is kept as it is and matters only where the UTF-16 form is needed.
///
/// The UTF-8 form is the text. The UTF-16 form is a cache of it, filled on demand and emptied by
/// every change on the UTF-8 side. A change on the UTF-16 side (16-bit arguments, normalization)
/// re-encodes the whole text at once and leaves both forms current; if the units are not
/// well-formed UTF-16, the whole string becomes empty.
///
/// Texts are C strings. A NUL byte gets into one only as a `char`: by `append`, `replace` or
/// `operator[]`. `length()` counts it, but copies, comparisons, conversions and forward searches
/// end there.
///
/// Errors: `std::bad_alloc` (the object keeps its buffers and stays usable) and `std::out_of_range`
/// for a bad position. A failed conversion never throws; it writes one line "Warning: …" to
/// standard error and leaves the string as described below. Pointer arguments must not be null. A
/// string may be given its own `c_str()` or `c_str_utf16()`, but not a pointer into the middle of
/// them.
///
/// Threads: one at a time per object. That includes const objects, because `c_str_utf16()` and
/// `normalize()` fill the cache.
class ustring {
 public:
  using size_type = std::size_t;

  /// "Not found" as a result, "to the end" as a count, "from the end" as the start of a backward
  /// search.
  static constexpr size_type npos = static_cast<size_type>(-1);

  /// Canonical composition and canonical decomposition.
  enum normalization_form { NFC = 0, NFD = 1 };

  // Construction. The conversions are implicit on purpose: a literal should do wherever a `ustring`
  // is wanted.

  ustring();
  /// Copies the UTF-8 form only.
  ustring(const ustring& other);
  /// Leaves `other` empty and usable. That takes an allocation, hence not noexcept.
  ustring(ustring&& other);
  ustring(const char* s);
  ustring(const unsigned short* w);
  /// Like everything that takes a `std::string`, uses the bytes up to the first NUL.
  ustring(const std::string& s);
  ustring(char c);
  ~ustring();

  // Access.

  /// The UTF-8 text, NUL-terminated. Valid until the next change of the string.
  const char* c_str() const { return data; }
  const char* c_str_utf8() const { return data; }

  /// The UTF-16 text, 0-terminated. Valid until the next change of the string; using the non-const
  /// `operator[]` counts as one, even for reading. For an ill-formed text it is empty, and every
  /// call warns again.
  const unsigned short* c_str_utf16() const {
    if (wdata_len == 0) {
      convert_from_data();
    }
    return wdata;
  }

  /// In bytes of the UTF-8 form.
  size_type length() const { return data_len; }
  size_type size() const { return data_len; }
  bool empty() const { return data_len == 0; }

  /// Byte `i`, which must be below `length()`.
  const char& operator[](size_type i) const { return data[i]; }
  /// Taking the reference marks the UTF-16 form out of date, so write through it before you ask for
  /// that form.
  char& operator[](size_type i) {
    clear_wdata();
    return data[i];
  }

  // Appending. A count `n` is an upper limit in the units of the argument; a text that is shorter
  // ends earlier.

  ustring& append(const char* s) { return append(s, npos); }
  ustring& append(const char* s, size_type n);
  /// The overloads for 16-bit units work on the UTF-16 side: if the text so far is not well-formed
  /// UTF-8, it is lost, with a warning, before the units are appended.
  ustring& append(const unsigned short* w) { return append(w, npos); }
  ustring& append(const unsigned short* w, size_type n);
  /// `n` copies of the byte or unit. A unit of 0 appends nothing.
  ustring& append(char c, size_type n);
  ustring& append(unsigned short u, size_type n);
  /// Appends `s.substr(pos, n)`. Throws `std::out_of_range` "substr" when `pos` > `s.length()`.
  ustring& append(const ustring& s, size_type pos = 0, size_type n = npos);
  /// Throws `std::out_of_range` "basic_string::substr" when `pos` > `s.size()`.
  ustring& append(const std::string& s, size_type pos = 0, size_type n = npos);

  // Replacing the text. The string is emptied and then appended to, so it is left empty if that
  // throws. Its own buffers are the exception: the text is cut in place, or stays as it is. When
  // the argument is the string itself, a bad position changes nothing.

  ustring& assign(const char* s) { return assign(s, npos); }
  ustring& assign(const char* s, size_type n);
  ustring& assign(const unsigned short* w) { return assign(w, npos); }
  ustring& assign(const unsigned short* w, size_type n);
  ustring& assign(char c, size_type n);
  ustring& assign(unsigned short u, size_type n);
  ustring& assign(const ustring& s, size_type pos = 0, size_type n = npos);
  ustring& assign(const std::string& s, size_type pos = 0, size_type n = npos);

  ustring& operator=(const ustring& s) { return assign(s); }
  /// Swaps buffers with `s` and leaves it empty.
  ustring& operator=(ustring&& s) noexcept;
  ustring& operator=(const std::string& s) { return assign(s); }
  ustring& operator=(const char* s) { return assign(s); }
  ustring& operator=(const unsigned short* w) { return assign(w); }
  ustring& operator=(char c) { return assign(c, 1); }
  ustring& operator=(unsigned short u) { return assign(u, 1); }

  ustring& operator+=(const ustring& s) { return append(s); }
  ustring& operator+=(const std::string& s) { return append(s); }
  ustring& operator+=(const char* s) { return append(s); }
  ustring& operator+=(const unsigned short* w) { return append(w); }
  ustring& operator+=(char c) { return append(c, 1); }
  ustring& operator+=(unsigned short u) { return append(u, 1); }

  // Other changes.

  /// Keeps the buffers. They shrink when a much shorter text is assigned later.
  ustring& clear();
  ustring& swap(ustring& other) noexcept;

  /// Remove leading bytes, trailing bytes, or both, that occur in `set`. The buffer keeps its size.
  void ltrim(const char* set);
  void ltrim(const ustring& set) { ltrim(set.data); }
  void rtrim(const char* set);
  void rtrim(const ustring& set) { rtrim(set.data); }
  void trim(const char* set);
  void trim(const ustring& set) { trim(set.data); }

  /// Replaces every byte `from` with `to`.
  void replace(char from, char to);

  // Parts and searches. A set is a set of bytes: each byte of a multi-byte character counts
  // separately. A `char` is a text of one byte, and a NUL the empty text.

  /// At most `n` bytes from `pos` on. Throws `std::out_of_range` "substr" when `pos` > `length()`.
  ustring substr(size_type pos = 0, size_type n = npos) const;

  /// Forward: the first match at or after `pos`. `npos` whenever `pos` >= `length()`, even for an
  /// empty pattern. Otherwise an empty pattern matches at `pos`, no byte is in an empty set, and
  /// the byte at `pos` is not in it.
  size_type find(const char* x, size_type pos = 0) const;
  size_type find_first_of(const char* x, size_type pos = 0) const;
  size_type find_first_not_of(const char* x, size_type pos = 0) const;

  /// Backward: the last match that begins at or before `pos`; it may extend beyond `pos`. When
  /// `pos` >= `length()`, the search starts at the last byte. Nothing is found in an empty string.
  /// Otherwise an empty pattern matches where the search starts, and so does the byte there when
  /// bytes outside an empty set are wanted.
  size_type rfind(const char* x, size_type pos = npos) const;
  size_type find_last_of(const char* x, size_type pos = npos) const;
  size_type find_last_not_of(const char* x, size_type pos = npos) const;

  size_type find(const std::string& x, size_type pos = 0) const { return find(x.c_str(), pos); }
  size_type find(const ustring& x, size_type pos = 0) const { return find(x.data, pos); }
  size_type find(char x, size_type pos = 0) const { return find(byte_text(x).text, pos); }
  size_type rfind(const std::string& x, size_type pos = npos) const {
    return rfind(x.c_str(), pos);
  }
  size_type rfind(const ustring& x, size_type pos = npos) const { return rfind(x.data, pos); }
  size_type rfind(char x, size_type pos = npos) const { return rfind(byte_text(x).text, pos); }
  size_type find_first_of(const std::string& x, size_type pos = 0) const {
    return find_first_of(x.c_str(), pos);
  }
  size_type find_first_of(const ustring& x, size_type pos = 0) const {
    return find_first_of(x.data, pos);
  }
  size_type find_first_of(char x, size_type pos = 0) const {
    return find_first_of(byte_text(x).text, pos);
  }
  size_type find_first_not_of(const std::string& x, size_type pos = 0) const {
    return find_first_not_of(x.c_str(), pos);
  }
  size_type find_first_not_of(const ustring& x, size_type pos = 0) const {
    return find_first_not_of(x.data, pos);
  }
  size_type find_first_not_of(char x, size_type pos = 0) const {
    return find_first_not_of(byte_text(x).text, pos);
  }
  size_type find_last_of(const std::string& x, size_type pos = npos) const {
    return find_last_of(x.c_str(), pos);
  }
  size_type find_last_of(const ustring& x, size_type pos = npos) const {
    return find_last_of(x.data, pos);
  }
  size_type find_last_of(char x, size_type pos = npos) const {
    return find_last_of(byte_text(x).text, pos);
  }
  size_type find_last_not_of(const std::string& x, size_type pos = npos) const {
    return find_last_not_of(x.c_str(), pos);
  }
  size_type find_last_not_of(const ustring& x, size_type pos = npos) const {
    return find_last_not_of(x.data, pos);
  }
  size_type find_last_not_of(char x, size_type pos = npos) const {
    return find_last_not_of(byte_text(x).text, pos);
  }

  // Comparison: the difference of the first two bytes that differ, taken as unsigned; 0 if none do.
  // That orders texts by code point, in any locale.

  int compare(const ustring& other) const { return compare(*this, other, false); }
  /// Compares at most the first `n` bytes.
  int compare(const ustring& other, size_type n) const;
  /// `ignore_case` folds the letters A to Z, and only those.
  static int compare(const ustring& a, const ustring& b, bool ignore_case);

  // Unicode.

  /// Whether the text is well-formed UTF-8. Writes no warning.
  static bool is_valid(const ustring& s);

  /// The text in normalization form `f`, with its UTF-16 form current; the cache of the source is
  /// filled, too. Ill-formed text yields an empty result and warnings.
  ustring normalize(normalization_form f) const { return normalize(*this, f); }
  static ustring normalize(const ustring& s, normalization_form f);

 private:
  struct byte_text {
    explicit byte_text(char c) : text{c, '\0'} {}
    const char text[2];
  };

  void init();

  // Buffers are sized exactly: they grow to what is needed, and shrink to it when it is less than
  // half of what there is. `need` includes the terminator.
  void realloc_data(size_type need);
  void realloc_wdata(size_type need) const;

  void clear_data() {
    data_len = 0;
    data[0] = '\0';
  }
  void clear_wdata() const {
    wdata_len = 0;
    wdata[0] = 0;
  }

  // Fills the UTF-16 form unless it is current.
  void update_wdata() const;
  // Each rewrites one form from the other. A failure is reported by a warning and leaves the target
  // empty; the second function then empties both forms.
  void convert_from_data() const;
  void convert_from_wdata();
  // Ends the UTF-16 text after `len` units and updates the UTF-8 text.
  ustring& finish_wdata(size_type len);

  // NOLINTBEGIN(readability-identifier-naming): the documented names, in the documented order
  char* data;
  size_type data_len;
  size_type data_cap;
  mutable unsigned short* wdata;
  mutable size_type wdata_len;
  mutable size_type wdata_cap;
  // NOLINTEND(readability-identifier-naming)
};

inline void swap(ustring& a, ustring& b) noexcept {
  a.swap(b);
}

/// A copy of `a` with the other operand appended. Text on the left is converted to `ustring`.
ustring operator+(const ustring& a, const ustring& b);
ustring operator+(const ustring& a, const char* b);
ustring operator+(const ustring& a, char b);
ustring operator+(const ustring& a, const unsigned short* b);
ustring operator+(const ustring& a, unsigned short b);

// The order of `compare`: a strict weak order, so a `ustring` can be the key of a map.

inline bool operator<(const ustring& a, const ustring& b) {
  return std::strcmp(a.c_str(), b.c_str()) < 0;
}
inline bool operator>(const ustring& a, const ustring& b) {
  return std::strcmp(a.c_str(), b.c_str()) > 0;
}
inline bool operator<=(const ustring& a, const ustring& b) {
  return std::strcmp(a.c_str(), b.c_str()) <= 0;
}
inline bool operator>=(const ustring& a, const ustring& b) {
  return std::strcmp(a.c_str(), b.c_str()) >= 0;
}
inline bool operator==(const ustring& a, const ustring& b) {
  return std::strcmp(a.c_str(), b.c_str()) == 0;
}
inline bool operator!=(const ustring& a, const ustring& b) {
  return std::strcmp(a.c_str(), b.c_str()) != 0;
}

// Comparing with a literal is frequent and needs no temporary.
inline bool operator==(const ustring& a, const char* b) {
  return std::strcmp(a.c_str(), b) == 0;
}
inline bool operator!=(const ustring& a, const char* b) {
  return std::strcmp(a.c_str(), b) != 0;
}

/// Writes the UTF-8 text as a C string.
std::ostream& operator<<(std::ostream& out, const ustring& s);
/// Reads one word the way the stream reads a `std::string`; if there is none, `s` becomes empty.
std::istream& operator>>(std::istream& in, ustring& s);
