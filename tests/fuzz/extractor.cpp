// Any bytes as a package: whatever it holds, nothing outside the destination changes.

#include "extractor.h"

#include <cstdint>
#include <cstdlib>

#include "StrTable.h"
#include "log.h"
#include "support/temp-dir.h"
#include "support/tree.h"

namespace {

namespace fs = std::filesystem;

// A folder with a sentinel beside the destination, for links that lead there, and what it has to look like.
struct Place {
  Place() {
    Logger::Destroy();  // every refused entry would be a line
    StrTable::InitStrTable();
    BuildTree(folder.path, "outside/sub outside/secret=s outside/sub/x=x");
    before = ListTree(folder / "outside");
    mode = fs::status(folder / "outside").permissions();
  }
  bool IsUntouched() const {
    const auto nodes = std::distance(fs::directory_iterator(folder.path), fs::directory_iterator());
    return nodes == 1 && ListTree(folder / "outside") == before && fs::status(folder / "outside").permissions() == mode;
  }

  TempDir folder{"/dev/shm"};
  std::string before;
  fs::perms mode;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const Place place;
  WriteFile(place.folder / "package", std::string(reinterpret_cast<const char*>(data), size));
  Extractor extractor;
  extractor.destination = place.folder / "in";
  extractor.archive = place.folder / "package";
  fs::create_directories(place.folder / "in");
  extractor.Extract();

  // What was extracted can be removed again.
  fs::remove_all(place.folder / "in");
  fs::remove(place.folder / "package");
  if (!place.IsUntouched()) abort();
  return 0;
}
