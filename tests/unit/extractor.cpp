#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <QObject>
#include <QStringList>
#include <clocale>
#include <memory>
#include <vector>

#include "notify-adapter.h"
#include "support/test-home.h"
#include "support/tree.h"

namespace {

namespace fs = std::filesystem;

struct Entry {
  std::string name;
  unsigned type = AE_IFREG;
  std::string content;   // of a file
  std::string link;      // where a symbolic link leads
  std::string hardLink;  // the entry that this one is another name of
};

Entry Folder(const std::string& name) {
  return {name, AE_IFDIR, "", "", ""};
}
Entry File(const std::string& name, const std::string& content = "") {
  return {name, AE_IFREG, content, "", ""};
}
Entry Link(const std::string& name, const std::string& target) {
  return {name, AE_IFLNK, "", target, ""};
}
Entry HardLink(const std::string& name, const std::string& target,
               const std::string& content = "") {
  return {name, AE_IFREG, content, "", target};
}

// Writes the entries as they stand into an archive that the setter chooses the format of.
void WriteArchive(const ustring& path, const std::vector<Entry>& entries,
                  int (*setFormat)(archive*) = archive_write_set_format_pax_restricted) {
  const std::unique_ptr<archive, int (*)(archive*)> writer(archive_write_new(), archive_write_free);
  const std::unique_ptr<archive_entry, void (*)(archive_entry*)> header(archive_entry_new(),
                                                                        archive_entry_free);
  ASSERT_EQ(setFormat(writer.get()), ARCHIVE_OK);
  ASSERT_EQ(archive_write_open_filename(writer.get(), path.c_str()), ARCHIVE_OK);
  for (const Entry& entry : entries) {
    archive_entry_clear(header.get());
    archive_entry_set_pathname(header.get(), entry.name.c_str());
    archive_entry_set_filetype(header.get(), entry.type);
    archive_entry_set_perm(header.get(), 0700);
    archive_entry_set_size(header.get(), static_cast<la_int64_t>(entry.content.size()));
    // Some formats have no hard links, but several names of one node.
    const std::string& node = entry.hardLink.empty() ? entry.name : entry.hardLink;
    const size_t number = std::hash<std::string>()(node) % 100000;
    archive_entry_set_ino64(header.get(), static_cast<la_int64_t>(number));
    archive_entry_set_nlink(header.get(), 2);
    if (!entry.link.empty()) archive_entry_set_symlink(header.get(), entry.link.c_str());
    if (!entry.hardLink.empty()) archive_entry_set_hardlink(header.get(), entry.hardLink.c_str());
    ASSERT_EQ(archive_write_header(writer.get(), header.get()), ARCHIVE_OK)
        << archive_error_string(writer.get());
    archive_write_data(writer.get(), entry.content.data(), entry.content.size());
  }
}

class ExtractorTest : public testing::Test {
 protected:
  ExtractorTest() {
    extractor.destination = home.folder / "in";
    extractor.archive = home.folder / "package";
    QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
                     [this](int total, int current) {
                       reports << QStringLiteral("%1 of %2").arg(current).arg(total);
                     });
    QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText, &receiver,
                     [this](const QString& text) { reports << text; });
  }

  TestHome home;
  Extractor extractor;
  QObject receiver;
  QStringList reports;
};

TEST_F(ExtractorTest, ReadsWhatWellKnownToolsWrite) {
  setlocale(LC_ALL, "C.UTF-8");
  const std::string from = home.folder / "from";
  const std::string in = home.folder / "in";
  MakeTree(from, {{"Contents/MacOS/tool", "file: t"},
                  {"Contents/Größe", "file: "},
                  {"Contents/link", "link: MacOS/tool"},
                  {"Contents/shut", "folder"}});
  fs::create_hard_link(from + "/Contents/MacOS/tool", from + "/Contents/MacOS/tool-1");
  ASSERT_EQ(link((from + "/Contents/link").c_str(), (from + "/Contents/link-1").c_str()), 0);
  fs::permissions(from + "/Contents/MacOS/tool", fs::perms(0755));
  fs::permissions(from + "/Contents/shut", fs::perms(0555));

  const char* const commands[] = {
      "tar -czf ../package .",
      "tar -cJf ../package Contents",
      "zip -qry ../p.zip . && mv ../p.zip ../package",
      "bsdtar -cf ../package --format ustar .",
      "find . | cpio -o -H newc --quiet > ../package",
      "7z a -bd -snl ../p.7z Contents >/dev/null && mv ../p.7z ../package",
  };
  for (const std::string command : commands) {
    SCOPED_TRACE(command);
    ASSERT_EQ(system(("cd '" + from + "' && rm -rf ../in ../package && " + command).c_str()), 0);
    EXPECT_EQ(extractor.Extract(), 0) << home.Log();
    EXPECT_EQ(TreeOf(in), TreeOf(from));
    EXPECT_EQ(fs::status(in + "/Contents/MacOS/tool").permissions(), fs::perms(0755));
    EXPECT_EQ(fs::status(in + "/Contents/shut").permissions(), fs::perms(0755))
        << "its owner must be able to empty it";
  }
}

TEST_F(ExtractorTest, ReportsTheLabelOnceAndThenEveryEntry) {
  WriteArchive(extractor.archive, {Folder("a"), File("a/1", "x"), File("a/2")});
  ASSERT_EQ(extractor.Extract(), 0);
  EXPECT_EQ(reports.join(QStringLiteral(", ")).toStdString(),
            "Lumivo Drive is initializing..., 1 of 3, 2 of 3, 3 of 3");
}

// Beside the destination lies a folder whose name begins like its own.
TEST_F(ExtractorTest, NothingIsWrittenOutside) {
  const std::string arena = home.folder / "arena";
  const std::string in = arena + "/in";
  const std::string neighbor = arena + "/in2";
  MakeTree(neighbor, {{"secret", "file: s"}, {"sub/x", "file: x"}});
  extractor.destination = in;

  struct Row {
    const char* what;
    std::vector<Entry> entries;
    int result;
    Tree left;
    int (*setFormat)(archive*) = archive_write_set_format_pax_restricted;
  };
  const Row rows[] = {
      {"a name with two dots",
       {File("1"), File("2"), File("../evil", "e"), File("3")},
       -1,
       {{"1", "file: "}, {"2", "file: "}}},
      {"an absolute name",
       {File("/in2/evil", "e")},
       0,
       {{"in2", "folder"}, {"in2/evil", "file: e"}}},
      {"through a link",
       {Link("out", neighbor), File("out/sub/x", "e")},
       -1,
       {{"out", "link: " + neighbor}}},
      {"through a link that goes through another",
       {Folder("d"), Link("d/here", "."), Link("out", "d/here/../../in2"), File("out/evil", "e")},
       -1,
       {{"d", "folder"}, {"d/here", "link: ."}, {"out", "link: d/here/../../in2"}}},
      {"through a link in a folder that was written to",
       {Folder("a"), Link("a/out", "../../in2"), File("a/1"), File("a/out/evil", "e")},
       -1,
       {{"a", "folder"}, {"a/1", "file: "}, {"a/out", "link: ../../in2"}}},
      {"through a link to what is not there",
       {Link("out", "../new"), File("out/evil", "e")},
       -1,
       {{"out", "link: ../new"}}},
      {"a folder in the place of a link",
       {Link("out", "../in2"), Folder("out")},
       -1,
       {{"out", "link: ../in2"}}},
      {"a hard link to what lies behind a link",
       {Link("out", "../in2"), HardLink("stolen", "out/secret")},
       -1,
       {{"out", "link: ../in2"}}},
      {"a hard link to a name with two dots", {HardLink("stolen", "../in2/secret")}, -1, {}},
      {"through a hard link that replaces a link that was looked up",
       {Folder("a"), Folder("in2"), Link("a/k", "../in2"), Link("l", "a"), File("l/x", "x"),
        HardLink("l", "a/k"), File("l/evil", "e")},
       -1,
       {{"a", "folder"},
        {"a/k", "link: ../in2"},
        {"a/x", "file: x"},
        {"in2", "folder"},
        {"l", "link: ../in2"}}},
      {"a hard link to a link that leads out",
       {Link("out", "../in2/secret"), HardLink("again", "out")},
       0,
       {{"out", "link: ../in2/secret"}, {"again", "link: ../in2/secret"}}},
      {"through such a hard link",
       {Link("out", "../in2"), HardLink("again", "out"), File("again/evil", "e")},
       -1,
       {{"out", "link: ../in2"}, {"again", "link: ../in2"}}},
      {"a hard link with bytes to a link that leads out",
       {Link("out", "../in2/secret"), HardLink("again", "out", "e")},
       -1,
       {{"out", "link: ../in2/secret"}},
       archive_write_set_format_cpio_newc},
      {"a file in the place of a link",
       {Link("f", "../in2/secret"), File("f", "mine")},
       0,
       {{"f", "file: mine"}}},
  };
  const Tree before = TreeOf(arena);
  const fs::perms mode = fs::status(neighbor).permissions();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    fs::create_directory(in);
    WriteArchive(extractor.archive, row.entries, row.setFormat);
    EXPECT_EQ(extractor.Extract(), row.result) << home.Log();
    EXPECT_EQ(TreeOf(in), row.left);
    fs::remove_all(in);
    EXPECT_EQ(TreeOf(arena), before);
    EXPECT_EQ(fs::status(neighbor).permissions(), mode);
  }
}

TEST_F(ExtractorTest, NothingButAFolderStandsForTheDestination) {
  fs::create_directory(home.folder / "in");
  for (const std::string name : {".", "./.", "/.", "./", "//"}) {
    for (const unsigned type : {AE_IFREG, AE_IFLNK, AE_IFIFO}) {
      SCOPED_TRACE(name + " as type " + std::to_string(type));
      WriteArchive(extractor.archive, {{name, type, "", "elsewhere", ""}, File("x")},
                   archive_write_set_format_cpio_newc);
      EXPECT_EQ(extractor.Extract(), -1);
      EXPECT_EQ(fs::symlink_status(home.folder / "in").type(), fs::file_type::directory);
    }
  }
  // A library of `ar` begins with its table of symbols, whose name is a slash.
  WriteFile(extractor.archive.c_str(),
            "!<arch>\n"
            "/               0           0     0     0       4         `\n"
            "none");
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_EQ(fs::symlink_status(home.folder / "in").type(), fs::file_type::directory);

  WriteArchive(extractor.archive, {Folder("."), Folder("./."), File("./x")});
  EXPECT_EQ(extractor.Extract(), 0) << home.Log();
  EXPECT_EQ(TreeOf(home.folder / "in"), (Tree{{"x", "file: "}}));
}

TEST_F(ExtractorTest, ADestinationBehindALinkStaysBehindIt) {
  MakeTree(home.folder.path, {{"real", "folder"}, {"in", "link: real"}});
  WriteArchive(extractor.archive, {Folder("d"), File("d/f", "data"), HardLink("h", "d/f"),
                                   Link("l", "d"), File("l/x", "x"), File("l/s/y", "y")});
  EXPECT_EQ(extractor.Extract(), 0) << home.Log();
  EXPECT_TRUE(fs::is_symlink(home.folder / "in"));
  const Tree expected = {
      {"d", "folder"},    {"d/f", "file: data"}, {"d/s", "folder"}, {"d/s/y", "file: y"},
      {"d/x", "file: x"}, {"h", "file: data"},   {"l", "link: d"},
  };
  EXPECT_EQ(TreeOf(home.folder / "real"), expected);
}

// Without its directory a zip can still be read from the front, but its modes and links are lost.
TEST_F(ExtractorTest, AZipThatIsCutFailsWhereItEnds) {
  WriteArchive(extractor.archive, {File("1", "one"), File("2", "two")},
               archive_write_set_format_zip);
  const std::string whole = ReadFile(extractor.archive.c_str());
  const size_t directory = whole.find("PK\1\2");
  struct Row {
    const char* what;
    size_t size;
    const char* lastReport;
    const char* logged;
  };
  const Row rows[] = {
      {"in the last file", directory - 20, "1 of 2", "archive_read_extract2 failed: 'ZIP "},
      {"in its directory", directory + 30, "2 of 2", "the directory at its end is missing"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    WriteFile(extractor.archive.c_str(), whole.substr(0, row.size));
    EXPECT_EQ(extractor.Extract(), -1);
    EXPECT_EQ(reports.last().toStdString(), row.lastReport);
    EXPECT_TRUE(home.Logged(row.logged)) << home.Log();
    EXPECT_FALSE(home.Logged("archive_read_extract2: ")) << "the system refused nothing";
    EXPECT_EQ(TreeOf(home.folder / "in"), (Tree{{"1", "file: one"}})) << "no end without the rest";
  }
}

TEST_F(ExtractorTest, ListsTheEntriesAndRefusesWhatIsMissing) {
  WriteArchive(extractor.archive, {Folder("a"), File("a/1", "x")});
  testing::internal::CaptureStdout();
  EXPECT_EQ(extractor.List(), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "a/\na/1\n");
  extractor.archive = "";
  EXPECT_EQ(extractor.Extract(), -1);
  EXPECT_EQ(extractor.Count(), -1);
  EXPECT_EQ(extractor.List(), -1);
  EXPECT_EQ(Extractor::copy_data(nullptr, nullptr), -1);
}

}  // namespace
