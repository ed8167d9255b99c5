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

// What lies beside the destination: a folder that links could lead to, with its mode.
struct Neighbor {
  Tree tree = TreeOf(arena / "outside");
  fs::perms mode = fs::status(arena / "outside").permissions();
  bool isAlone = std::distance(fs::directory_iterator(arena.path), {}) == 1;
};

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  Logger::Destroy();  // every refused entry would be a line
  StrTable::InitStrTable();
  MakeTree(arena / "outside", {{"secret", "file: s"}, {"sub/x", "file: x"}});
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const Neighbor before;
  WriteFile(arena / "package", std::string(reinterpret_cast<const char*>(data), size));
  fs::create_directories(arena / "in");
  Extractor extractor;
  extractor.destination = arena / "in";
  extractor.archive = arena / "package";
  extractor.Extract();
  if (!fs::is_directory(fs::symlink_status(arena / "in"))) abort();

  // What was extracted can be removed again.
  fs::remove_all(arena / "in");
  fs::remove(arena / "package");
  const Neighbor after;
  if (after.tree != before.tree) abort();
  if (after.mode != before.mode) abort();
  if (!after.isAlone) abort();
  return 0;
}
