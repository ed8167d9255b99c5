#include "bundle-swap.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "support/test-home.h"

namespace {

namespace fs = std::filesystem;

// A bundle of the installation. The file "is" says which one it is, wherever it is moved.
struct Bundle {
  std::string place;  // below the installation folder
  std::string is;
  int build = 0;  // 0: without a version file
  bool hasProgram = true;
};

class BundleSwapTest : public testing::Test {
 protected:
  fs::path Installation() const { return home.folder / ".Lumivo"; }
  ustring BundlePath() const { return ustring((Installation() / "Lumivo.app").c_str()); }

  void Make(const Bundle& bundle) const {
    const fs::path contents = Installation() / bundle.place / "Contents";
    fs::create_directories(contents / "MacOS");
    fs::create_directories(contents / "Resources");
    WriteFile(contents / "is", bundle.is);
    if (bundle.hasProgram) WriteFile(contents / "MacOS/lumivo-drive-ui", "");
    if (bundle.build > 0) {
      WriteFile(contents / "Resources/INFO",
                "[Version]\nbuild_version=" + std::to_string(bundle.build) + "\n");
    }
  }

  // Which bundle lies where.
  std::map<std::string, std::string> Bundles() const {
    std::map<std::string, std::string> found;
    for (const auto& entry : fs::directory_iterator(Installation())) {
      found[entry.path().filename()] = ReadFile(entry.path() / "Contents/is");
    }
    return found;
  }

  TestHome home;
};

// A failed extraction leaves a part of the new bundle.
enum Extraction { kFailed, kExtracted };

struct Replacement {
  const char* name;
  std::vector<Bundle> before;
  Extraction extraction;
  std::map<std::string, std::string> after;
  const char* logged = "";
};

TEST_F(BundleSwapTest, LeavesTheRightBundleInPlace) {
  const Replacement replacements[] = {
      {"first installation", {}, kExtracted, {{"Lumivo.app", "new"}}, "user installation is ready"},
      {"upgrade", {{"Lumivo.app", "old", 3487}}, kExtracted, {{"Lumivo.app", "new"}}},
      {"backups up to the first free name are removed, those above it are not",
       {{"Lumivo.app", "old", 3487},
        {"Lumivo.app_tmp", "older", 3000},
        {"Lumivo.app_tmp3", "oldest", 2000}},
       kExtracted,
       {{"Lumivo.app", "new"}, {"Lumivo.app_tmp3", "oldest"}},
       "failed to backup app from '"},
      {"failed upgrade",
       {{"Lumivo.app", "old", 3487}},
       kFailed,
       {{"Lumivo.app", "old"}},
       "Failed to extract package, rollback to old installation\n"},
      {"the bundle moved aside goes back, even beside a backup with a higher build",
       {{"Lumivo.app", "old", 3487}, {"Lumivo.app_tmp", "other", 3600}},
       kFailed,
       {{"Lumivo.app", "old"}, {"Lumivo.app_tmp", "other"}}},
      {"without its version file, a complete backup goes back instead, and it stays",
       {{"Lumivo.app", "part"}, {"Lumivo.app_tmp", "older", 3000}},
       kFailed,
       {{"Lumivo.app", "older"}, {"Lumivo.app_tmp1", "part"}}},
      {"the same without its program",
       {{"Lumivo.app", "part", 3487, false}, {"Lumivo.app_tmp", "older", 3000}},
       kFailed,
       {{"Lumivo.app", "older"}, {"Lumivo.app_tmp1", "part"}}},
      {"an incomplete bundle goes back where no backup is better",
       {{"Lumivo.app", "part"}, {"Lumivo.app_tmp", "another part", 3600, false}},
       kFailed,
       {{"Lumivo.app", "part"}, {"Lumivo.app_tmp", "another part"}}},
      {"after an interruption the complete backup with the highest build goes back",
       {{"Lumivo.app_tmp", "older", 3000},
        {"Lumivo.app_tmp1", "old", 3487},
        {"Lumivo.app_tmp2", "part"}},
       kFailed,
       {{"Lumivo.app", "old"}, {"Lumivo.app_tmp", "older"}, {"Lumivo.app_tmp2", "part"}}},
      {"nothing to go back to",
       {{"Lumivo.app_tmp", "part"}},
       kFailed,
       {{"Lumivo.app", "new"}, {"Lumivo.app_tmp", "part"}},
       "Failed to extract package, and no old installation to rollback\n"},
  };
  for (const Replacement& row : replacements) {
    SCOPED_TRACE(row.name);
    fs::remove_all(Installation());
    fs::create_directories(Installation());
    for (const Bundle& bundle : row.before) {
      Make(bundle);
    }

    BundleSwap swap(BundlePath());
    ASSERT_TRUE(swap.MoveAside());
    if (row.extraction == kExtracted) {
      Make({"Lumivo.app", "new", 3500});
      swap.Commit();
    } else {
      Make({"Lumivo.app", "new"});
      swap.Rollback();
    }

    EXPECT_EQ(Bundles(), row.after);
    EXPECT_TRUE(home.Logged(row.logged)) << home.Log();
  }
}

TEST_F(BundleSwapTest, TouchesNothingWhenEveryBackupNameIsTaken) {
  Make({"Lumivo.app", "old", 3487});
  for (const std::string number : {"", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
    Make({"Lumivo.app_tmp" + number, "stale"});
  }
  const auto before = Bundles();

  EXPECT_FALSE(BundleSwap(BundlePath()).MoveAside());

  EXPECT_EQ(Bundles(), before);
  EXPECT_TRUE(home.Logged("Lumivo.app_tmp9' at max retries, exiting\n")) << home.Log();
}

TEST_F(BundleSwapTest, RemovesABackupWithoutFollowingItsLinks) {
  const fs::path others = fs::path(home.folder.path) / "others";
  fs::create_directories(others);
  WriteFile(others / "INFO", "not ours");
  Make({"Lumivo.app_tmp", "linked"});
  fs::remove_all(Installation() / "Lumivo.app_tmp/Contents/Resources");
  fs::create_directory_symlink(others, Installation() / "Lumivo.app_tmp/Contents/Resources");

  BundleSwap swap(BundlePath());
  ASSERT_TRUE(swap.MoveAside());
  swap.Commit();

  EXPECT_EQ(ReadFile(others / "INFO"), "not ours");
  EXPECT_FALSE(fs::exists(Installation() / "Lumivo.app_tmp"));
}

}  // namespace
