// Any bytes as text: both forms agree where the bytes are well-formed, and normal forms are normal.

#include "ustring.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>

namespace {

void Require(bool holds) {
  if (!holds) abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::cerr.setstate(std::ios::failbit);  // each conversion that fails says so
  const ustring text(std::string(reinterpret_cast<const char*>(data), size));
  const ustring composed = text.normalize(ustring::NFC);
  const ustring decomposed = text.normalize(ustring::NFD);
  if (!ustring::is_valid(text)) {
    Require(composed.empty() && decomposed.empty() && text.c_str_utf16()[0] == 0);
    return 0;
  }
  Require(ustring(text.c_str_utf16()) == text);
  Require(composed.normalize(ustring::NFC) == composed && decomposed.normalize(ustring::NFD) == decomposed);
  Require(decomposed.normalize(ustring::NFC) == composed && composed.normalize(ustring::NFD) == decomposed);

  const size_t half = text.length() / 2;
  ustring joined = text.substr(0, half);
  joined.append(text.substr(half, ustring::npos).c_str());
  Require(joined == text);
  ustring doubled = text;
  doubled.append(doubled.c_str_utf16());
  Require(doubled == text + text);
  return 0;
}
