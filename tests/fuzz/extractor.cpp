// Any bytes as a package: whatever it holds, nothing outside the destination changes.

#include "extractor.h"

#include <cstdint>
#include <cstdlib>

#include "StrTable.h"
#include "log.h"
#include "support/temp-dir.h"
#include "support/tree.h"

namespace fs = std::filesystem;

static const TempDir arena("/dev/shm");

// What lies beside the destination, with a folder for links to lead to.
static std::string Sentinel() {
  const auto mode = static_cast<unsigned>(fs::status(arena / "outside").permissions());
  return ListTree(arena.path) + " " + std::to_string(mode);
}

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  Logger::Destroy();  // every refused entry would be a line
  StrTable::InitStrTable();
  BuildTree(arena.path, "outside/sub outside/secret=s outside/sub/x=x");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const std::string before = Sentinel();
  WriteFile(arena / "package", std::string(reinterpret_cast<const char*>(data), size));
  fs::create_directories(arena / "in");
  Extractor extractor;
  extractor.destination = arena / "in";
  extractor.archive = arena / "package";
  extractor.Extract();

  // What was extracted can be removed again.
  fs::remove_all(arena / "in");
  fs::remove(arena / "package");
  if (Sentinel() != before) abort();
  return 0;
}
