#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <QObject>
#include <QStringList>
#include <clocale>
#include <memory>

#include "notify-adapter.h"
#include "support/test-home.h"
#include "support/tree.h"

namespace {

namespace fs = std::filesystem;

// Writes a tar of what a text lists, names as they stand: "d/" a folder, "f=abc" a file, "l>x" a link, "h<f" a hard
// link.
void WriteTar(const std::string& path, const std::string& text) {
  const std::unique_ptr<archive, int (*)(archive*)> writer(archive_write_new(), archive_write_free);
  archive_write_set_format_pax_restricted(writer.get());
  ASSERT_EQ(archive_write_open_filename(writer.get(), path.c_str()), ARCHIVE_OK);
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const size_t mark = std::min(word.find_first_of("=><"), word.size() - 1);
    const std::string rest = word.substr(mark + 1);
    const std::unique_ptr<archive_entry, void (*)(archive_entry*)> entry(archive_entry_new(), archive_entry_free);
    archive_entry_set_pathname(entry.get(), word.substr(0, mark).c_str());
    archive_entry_set_filetype(entry.get(), word[mark] == '/' ? AE_IFDIR : word[mark] == '>' ? AE_IFLNK : AE_IFREG);
    archive_entry_set_perm(entry.get(), word[mark] == '/' ? 0700 : 0644);
    if (word[mark] == '>') archive_entry_set_symlink(entry.get(), rest.c_str());
    if (word[mark] == '<') archive_entry_set_hardlink(entry.get(), rest.c_str());
    if (word[mark] == '=') archive_entry_set_size(entry.get(), static_cast<la_int64_t>(rest.size()));
    ASSERT_EQ(archive_write_header(writer.get(), entry.get()), ARCHIVE_OK);
    if (word[mark] == '=') archive_write_data(writer.get(), rest.data(), rest.size());
  }
}

class ExtractorTest : public testing::Test {
 protected:
  ExtractorTest() {
    fs::create_directories(home.folder / "in");
    extractor.destination = home.folder / "in";
    extractor.archive = home.folder / "package";
  }
  std::string Extracted() const { return ListTree(extractor.destination.c_str()); }

  TestHome home;
  Extractor extractor;
};

TEST_F(ExtractorTest, ReadsWhatWellKnownToolsWrite) {
  const std::string from = home.folder / "from";
  BuildTree(home.folder.path,
            "from/Contents/MacOS from/Contents/MacOS/tool=t from/Contents/Gr\xC3\xB6\xC3\x9F"
            "e= "
            "from/Contents/current>MacOS/tool from/Contents/locked");
  fs::permissions(from + "/Contents/MacOS/tool", fs::perms(0755));
  fs::permissions(from + "/Contents/locked", fs::perms(0555));
  setlocale(LC_ALL, "C.UTF-8");
  for (const char* command :
       {"tar -czf ../package .", "tar -cJf ../package Contents", "zip -qry ../p.zip . && mv ../p.zip ../package",
        "bsdtar -cf ../package --format ustar .", "find . | cpio -o -H newc --quiet > ../package",
        "7z a -bd -snl ../p.7z Contents >/dev/null && mv ../p.7z ../package"}) {
    SCOPED_TRACE(command);
    fs::remove_all(extractor.destination.c_str());
    fs::remove(extractor.archive.c_str());
    ASSERT_EQ(system(("cd '" + from + "' && " + command).c_str()), 0);
    EXPECT_EQ(extractor.Extract(), 0) << home.Log();
    EXPECT_EQ(Extracted(), ListTree(from));
    EXPECT_EQ(fs::status((extractor.destination + "/Contents/MacOS/tool").c_str()).permissions(), fs::perms(0755));
    EXPECT_EQ(fs::status((extractor.destination + "/Contents/locked").c_str()).permissions(), fs::perms(0755));
  }
}

TEST_F(ExtractorTest, ReportsTheLabelOnceAndThenEveryEntry) {
  QObject receiver;
  QStringList reports;
  QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
                   [&](int total, int k) { reports << QStringLiteral("%1/%2").arg(k).arg(total); });
  QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText, &receiver,
                   [&](const QString& text) { reports << text; });
  WriteTar(extractor.archive.c_str(), "a/ a/1=x a/2=");
  ASSERT_EQ(extractor.Extract(), 0);
  EXPECT_EQ(reports.join(QLatin1Char(' ')), QStringLiteral("Lumivo Drive is initializing... 1/3 2/3 3/3"));
}

TEST_F(ExtractorTest, NothingIsWrittenOutside) {
  BuildTree(home.folder.path, "outside/sub outside/secret=s outside/sub/x=x");
  const std::string outside = home.folder / "outside";
  const std::string absolute = "out>" + outside;
  const char* const kLeadsOut = "archive_read_extract2 failed: 'the way to '";
  const struct {
    std::string entries;
    std::string tree;   // what lies below the destination afterwards
    const char* error;  // what the log says, or null for success
  } cases[] = {
      {"1= 2= ../evil=e 3=", "1= 2=", "archive_read_extract2 failed: '"},
      {"/outside/evil=e", "outside/ outside/evil=e", nullptr},
      {"out>../outside out/evil=e", "out>../outside", kLeadsOut},
      {absolute + " out/sub/x=e", absolute, kLeadsOut},
      {"d/ d/here>. out>d/here/../../outside out/evil=e", "d/ d/here>. out>d/here/../../outside", kLeadsOut},
      {"out>../new out/evil=e", "out>../new", kLeadsOut},
      {"out>../outside out/", "out>../outside", kLeadsOut},
      {"out>../outside stolen<out/secret", "out>../outside", kLeadsOut},
      {"stolen<../outside/secret", "", "archive_read_extract2 failed: '"},
      {"a/ outside/ d/ a/link>../outside d/1= link<a/link link/evil=e",
       "a/ a/link>../outside d/ d/1= link>../outside outside/", kLeadsOut},
      {"sub/ in>sub in/x=x in/more/y=y", "in>sub sub/ sub/more/ sub/more/y=y sub/x=x", nullptr},
      {"f>../outside/secret f=mine", "f=mine", nullptr},
  };
  const std::string before = ListTree(outside);
  const fs::perms mode = fs::status(outside).permissions();
  for (const auto& row : cases) {
    SCOPED_TRACE(row.entries);
    fs::remove_all(extractor.destination.c_str());
    fs::create_directories(extractor.destination.c_str());
    WriteTar(extractor.archive.c_str(), row.entries);
    const size_t logged = home.Log().size();
    EXPECT_EQ(extractor.Extract(), row.error == nullptr ? 0 : -1);
    EXPECT_EQ(Extracted(), row.tree);
    EXPECT_NE(home.Log().find(row.error == nullptr ? "decompress" : row.error, logged), std::string::npos)
        << home.Log();
    EXPECT_EQ(ListTree(outside), before);
    EXPECT_EQ(fs::status(outside).permissions(), mode);
  }
  EXPECT_FALSE(fs::exists(home.folder / "evil") || fs::exists(home.folder / "new"));

  const fs::path here = fs::current_path();
  fs::current_path(home.folder.path);
  extractor.destination = "made/later";  // relative, and not there before the first entry is written
  WriteTar(extractor.archive.c_str(), "d/ l>d l/x=x");
  EXPECT_EQ(extractor.Extract(), 0) << home.Log();
  EXPECT_EQ(Extracted(), "d/ d/x=x l>d");
  fs::current_path(here);
}

TEST_F(ExtractorTest, ADestinationBehindALinkStaysBehindIt) {
  fs::rename(home.folder / "in", home.folder / "real");
  fs::create_directory_symlink("real", home.folder / "in");
  WriteTar(extractor.archive.c_str(), "d/f=data g<d/f");
  ASSERT_EQ(extractor.Extract(), 0) << home.Log();
  EXPECT_TRUE(fs::is_symlink(home.folder / "in"));
  EXPECT_EQ(ListTree(home.folder / "real"), "d/ d/f=data g=data");
}

TEST_F(ExtractorTest, EveryFailureHasItsLine) {
  WriteTar(home.folder / "good", "a=" + std::string(200000, 'a') + " b=b");
  WriteTar(home.folder / "empty", "");
  WriteFile(home.folder / "cut", ReadFile(home.folder / "good").substr(0, 100000));
  // Without the directory at its end a zip can be read from the front, with all entries but without modes and links.
  ASSERT_EQ(system(("cd '" + home.folder.path + "' && zip -q cut.zip good levels").c_str()), 0);
  fs::resize_file(home.folder / "cut.zip", fs::file_size(home.folder / "cut.zip") - 40);
  const struct {
    const char* archive;
    int count;
    const char* line;
  } cases[] = {{"missing", -1, "archive_read_open_filename failed: '"},
               {"in", -1, "archive_read_open_filename failed: '"},
               {"empty", 0, "Failed to calculate total file numbers, ret: 0\n"},
               {"cut", 1, "archive_read_extract2 failed: '"},
               {"cut.zip", 2, "the directory at its end is missing"}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.archive);
    extractor.archive = home.folder / row.archive;
    EXPECT_EQ(extractor.Count(), row.count);
    EXPECT_EQ(extractor.Extract(), -1);
    EXPECT_TRUE(home.Logged(row.line)) << home.Log();
  }
  extractor.archive = "";
  EXPECT_EQ(extractor.Extract() + extractor.Count() + extractor.List() + Extractor::copy_data(nullptr, nullptr), -4);
  EXPECT_TRUE(home.Logged("Invalid Argument\n") && home.Logged("Invalid argument\n"));
}

}  // namespace
