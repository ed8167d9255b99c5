// Any bytes as text: both forms agree where the bytes are well-formed, and normal forms are normal.

#include "ustring.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::cerr.setstate(std::ios::failbit);  // each conversion that fails says so
  const ustring text(std::string(reinterpret_cast<const char*>(data), size));
  const ustring composed = text.normalize(ustring::NFC);
  const ustring decomposed = text.normalize(ustring::NFD);
  if (!ustring::is_valid(text)) {
    if (!composed.empty() || !decomposed.empty() || text.c_str_utf16()[0] != 0) abort();
    return 0;
  }
  if (ustring(text.c_str_utf16()) != text) abort();
  if (composed.normalize(ustring::NFC) != composed) abort();
  if (decomposed.normalize(ustring::NFD) != decomposed) abort();
  if (decomposed.normalize(ustring::NFC) != composed) abort();
  if (composed.normalize(ustring::NFD) != decomposed) abort();

  const size_t half = text.length() / 2;
  if (text.substr(0, half) + text.substr(half).c_str() != text) abort();
  ustring doubled = text;
  doubled.append(doubled.c_str_utf16());
  if (doubled != text + text) abort();
  return 0;
}
