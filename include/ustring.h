#pragma once

#include <cstddef>
#include <cstring>
#include <iosfwd>
#include <string>

/// The text of everything that is not user interface: paths, file names, keys, values, versions.
///
/// A `ustring` holds UTF-8, the form that system calls take, and hands out the same text in UTF-16
/// when it is asked for. Its shape is that of `std::string`, and every position and length counts
/// bytes of the UTF-8 form. Bytes that are not well-formed UTF-8 are kept as they are; they matter
/// only where the UTF-16 form is needed.
///
/// The UTF-8 form is the text. The UTF-16 form is a cache of it, filled on demand and emptied by
/// every change of the UTF-8 side. A change through the UTF-16 side (16-bit arguments,
/// normalisation) re-encodes the whole text at once and leaves both forms current; when its units
/// are not well-formed UTF-16 the whole string becomes empty.
///
/// Texts are C strings. A byte 0 gets inside only as a `char`: appended, by `replace` or through
/// `operator[]`; `length()` counts it, while copies, comparisons, conversions and forward searches
/// end there.
///
/// Errors: `std::bad_alloc` (the object then keeps its buffers and stays usable),
/// `std::out_of_range` for a bad position. A failed conversion never throws: it writes one line
/// "Warning: …" to standard error and leaves what is said below. Pointers passed in are never null.
/// The string's own `c_str()` and `c_str_utf16()` may be passed back to it; a pointer to somewhere
/// behind their beginning may not.
///
/// Threads: one at a time for each object. That holds for const objects too, because
/// `c_str_utf16()` and `normalize()` fill the cache.
class ustring {
 public:
  using size_type = std::size_t;

  /// "Not found" as a result, "to the end" as a count, "from the end" as the start of a backward
  /// search.
  static constexpr size_type npos = static_cast<size_type>(-1);

  /// Canonical composition and canonical decomposition.
  enum normalization_form { NFC = 0, NFD = 1 };

  // Construction. Converting from the other kinds of text is implicit on purpose: a literal is a
  // fine `ustring`.

  ustring();
  /// Copies the UTF-8 form only.
  ustring(const ustring& other);
  /// Leaves `other` empty and usable. Allocates buffers for it, hence not noexcept.
  ustring(ustring&& other);
  ustring(const char* s);
  ustring(const unsigned short* w);
  /// Takes the bytes up to the first NUL, as everything does that takes a `std::string`.
  ustring(const std::string& s);
  ustring(char c);
  ~ustring();

  // Access.

  /// The UTF-8 text, NUL-terminated. Valid until the next change of the string.
  const char* c_str() const { return data; }
  const char* c_str_utf8() const { return data; }

  /// The UTF-16 text, 0-terminated. Valid until the next change of the string, and until the
  /// non-const `operator[]` is used, even for reading. An ill-formed text yields an empty UTF-16
  /// text and a warning, each time anew.
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

  /// Byte `i`, which the caller keeps below `length()`.
  const char& operator[](size_type i) const { return data[i]; }
  /// Taking the reference marks the UTF-16 form out of date, so write before asking for that form.
  char& operator[](size_type i) {
    clear_wdata();
    return data[i];
  }

  // Adding text. A count `n` is an upper limit in the units of the argument; the text's own end
  // comes first.

  ustring& append(const char* s) { return append(s, npos); }
  ustring& append(const char* s, size_type n);
  /// The forms with 16-bit units go through the UTF-16 side: text that is not well-formed UTF-8 is
  /// lost with a warning before the units are added.
  ustring& append(const unsigned short* w) { return append(w, npos); }
  ustring& append(const unsigned short* w, size_type n);
  /// `n` copies of the byte or unit. A unit 0 adds nothing.
  ustring& append(char c, size_type n);
  ustring& append(unsigned short u, size_type n);
  /// Adds `s.substr(pos, n)`. Throws `std::out_of_range` "substr" when `pos` > `s.length()`.
  ustring& append(const ustring& s, size_type pos = 0, size_type n = npos);
  /// Throws `std::out_of_range` "basic_string::substr" when `pos` > `s.size()`.
  ustring& append(const std::string& s, size_type pos = 0, size_type n = npos);

  // Replacing the text: empties the string, then appends, so that it is left empty when the append
  // throws. The string's own buffers are an exception: the text is cut in place, or stays as it is.
  // With the string itself as the argument a bad position changes nothing.

  ustring& assign(const char* s) { return assign(s, npos); }
  ustring& assign(const char* s, size_type n);
  ustring& assign(const unsigned short* w) { return assign(w, npos); }
  ustring& assign(const unsigned short* w, size_type n);
  ustring& assign(char c, size_type n);
  ustring& assign(unsigned short u, size_type n);
  ustring& assign(const ustring& s, size_type pos = 0, size_type n = npos);
  ustring& assign(const std::string& s, size_type pos = 0, size_type n = npos);

  ustring& operator=(const ustring& s) { return assign(s); }
  /// Trades buffers with `s` and leaves it empty.
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

  /// Keeps the buffers; a later, much shorter text gives them back.
  ustring& clear();
  ustring& swap(ustring& other) noexcept;

  /// Remove leading, trailing, or both, bytes that occur in `set`. Keep the buffer.
  void ltrim(const char* set);
  void ltrim(const ustring& set) { ltrim(set.data); }
  void rtrim(const char* set);
  void rtrim(const ustring& set) { rtrim(set.data); }
  void trim(const char* set);
  void trim(const ustring& set) { trim(set.data); }

  /// Turns every byte `from` into `to`.
  void replace(char from, char to);

  // Parts and searches. A set is a set of bytes: each byte of a multi-byte character counts by
  // itself. A `char` is a text of one byte; the byte 0 is the empty text.

  /// The bytes from `pos` on, `n` at most. Throws `std::out_of_range` "substr" when `pos` >
  /// `length()`.
  ustring substr(size_type pos = 0, size_type n = npos) const;

  /// Forward: the first position from `pos` on. `npos` whenever `pos` >= `length()`, even for an
  /// empty pattern; else an empty pattern is found at `pos`, an empty set finds nothing, and the
  /// complement of an empty set is found at `pos`.
  size_type find(const char* x, size_type pos = 0) const;
  size_type find_first_of(const char* x, size_type pos = 0) const;
  size_type find_first_not_of(const char* x, size_type pos = 0) const;

  /// Backward: the last position that is not behind `pos`; a match may extend beyond `pos`. The
  /// search starts at the last byte when `pos` >= `length()`. Nothing is found in an empty string;
  /// else an empty pattern and the complement of an empty set are found at the start of the search.
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

  // Comparison: the difference of the first two bytes that differ, read as unsigned; 0 when there
  // are none. That orders texts by code point, in any locale.

  int compare(const ustring& other) const { return compare(*this, other, false); }
  /// Looks at the first `n` bytes at most.
  int compare(const ustring& other, size_type n) const;
  /// `ignore_case` folds the letters A to Z and nothing else.
  static int compare(const ustring& a, const ustring& b, bool ignore_case);

  // Unicode.

  /// Whether the text is well-formed UTF-8. Says nothing to standard error.
  static bool is_valid(const ustring& s);

  /// The text in form `f`, with both its forms current; the cache of the source is filled on the
  /// way. Ill-formed text gives an empty result and warnings.
  ustring normalize(normalization_form f) const { return normalize(*this, f); }
  static ustring normalize(const ustring& s, normalization_form f);

 private:
  struct byte_text {
    explicit byte_text(char c) : text{c, '\0'} {}
    const char text[2];
  };

  void init();

  // Buffers are sized exactly: they grow to what is needed and shrink to it when it is below half
  // of what there is. `need` includes the terminator.
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
  // Each rewrites one form from the other. A failure is warned of and leaves the target (after the
  // second both forms) empty.
  void convert_from_data() const;
  void convert_from_wdata();
  // Ends the UTF-16 text at `len` units and makes the UTF-8 text follow.
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

/// A copy of `a` with the other operand appended. Text on the left converts to `ustring`.
ustring operator+(const ustring& a, const ustring& b);
ustring operator+(const ustring& a, const char* b);
ustring operator+(const ustring& a, char b);
ustring operator+(const ustring& a, const unsigned short* b);
ustring operator+(const ustring& a, unsigned short b);

// The same order as `compare`, hence a strict weak order fit for the keys of a map.

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

// Spare the frequent comparison with a literal a temporary.
inline bool operator==(const ustring& a, const char* b) {
  return std::strcmp(a.c_str(), b) == 0;
}
inline bool operator!=(const ustring& a, const char* b) {
  return std::strcmp(a.c_str(), b) != 0;
}

/// Writes the UTF-8 text as a C string.
std::ostream& operator<<(std::ostream& out, const ustring& s);
/// Reads one word as the stream reads a `std::string`; where there is none, `s` becomes empty.
std::istream& operator>>(std::istream& in, ustring& s);
