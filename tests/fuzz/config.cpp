// Any bytes as a configuration file: what was read can be written down, and then reads the same.

#include <cstdint>
#include <cstdlib>

#include "log.h"
#include "support/temp-dir.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const TempDir folder("/dev/shm");
  WriteFile(folder / "input", std::string(reinterpret_cast<const char*>(data), size));
  Config config;
  config["before"] = "x";
  if (config.read(folder / "input") != 0) {
    if (!config.empty()) abort();
    return 0;
  }
  std::string text;
  for (const auto& [key, value] : config) {
    const char quote = value.find('"', 0) == ustring::npos ? '"' : '\'';
    if (value.find(quote, 0) != ustring::npos || key.length() + value.length() > 8000) return 0;
    text += std::string(key.c_str()) + " = " + quote + value.c_str() + quote + " # " + "\r\n";
  }
  WriteFile(folder / "written", text);
  Config again;
  if (again.read(folder / "written") != 0 || again != config) abort();
  for (const auto& entry : config) again.get_int(entry.first);
  return 0;
}
