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

// Writes a tar of what a text lists, as it stands: "d/" a folder, "f=abc" a file, "l>x" a link,
// "h<f" a hard one.
void WriteTar(const ustring& path, const std::string& text) {
  const std::unique_ptr<archive, int (*)(archive*)> writer(archive_write_new(), archive_write_free);
  const std::unique_ptr<archive_entry, void (*)(archive_entry*)> entry(archive_entry_new(),
                                                                       archive_entry_free);
  archive_write_set_format_pax_restricted(writer.get());
  ASSERT_EQ(archive_write_open_filename(writer.get(), path.c_str()), ARCHIVE_OK);
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const size_t mark = std::min(word.find_first_of("=><"), word.size() - 1);
    const std::string rest = word.substr(mark + 1);
    archive_entry_clear(entry.get());
    archive_entry_set_pathname(entry.get(), word.substr(0, mark).c_str());
    archive_entry_set_filetype(entry.get(), word[mark] == '/'   ? AE_IFDIR
                                            : word[mark] == '>' ? AE_IFLNK
                                                                : AE_IFREG);
    archive_entry_set_perm(entry.get(), 0700);
    if (word[mark] == '>') archive_entry_set_symlink(entry.get(), rest.c_str());
    if (word[mark] == '<') archive_entry_set_hardlink(entry.get(), rest.c_str());
    if (word[mark] == '=')
      archive_entry_set_size(entry.get(), static_cast<la_int64_t>(rest.size()));
    ASSERT_EQ(archive_write_header(writer.get(), entry.get()), ARCHIVE_OK);
    if (word[mark] == '=') archive_write_data(writer.get(), rest.data(), rest.size());
  }
}

class ExtractorTest : public testing::Test {
 protected:
  ExtractorTest() {
    extractor.destination = home.folder / "in";
    extractor.archive = home.folder / "package";
  }

  TestHome home;
  Extractor extractor;
};

TEST_F(ExtractorTest, ReadsWhatWellKnownToolsWrite) {
  setlocale(LC_ALL, "C.UTF-8");
  const std::string from = home.folder / "from", in = home.folder / "in";
  BuildTree(from,
            "Contents/MacOS Contents/MacOS/tool=t Contents/Gr\u00f6\u00dfe= Contents/l>MacOS/tool "
            "Contents/shut");
  fs::permissions(from + "/Contents/MacOS/tool", fs::perms(0755));
  fs::permissions(from + "/Contents/shut", fs::perms(0555));
  for (const std::string command :
       {"tar -czf ../package .", "tar -cJf ../package Contents",
        "zip -qry ../p.zip . && mv ../p.zip ../package", "bsdtar -cf ../package --format ustar .",
        "find . | cpio -o -H newc --quiet > ../package",
        "7z a -bd -snl ../p.7z Contents >/dev/null && mv ../p.7z ../package"}) {
    SCOPED_TRACE(command);
    ASSERT_EQ(system(("cd '" + from + "' && rm -rf ../in ../package && " + command).c_str()), 0);
    EXPECT_EQ(extractor.Extract(), 0) << home.Log();
    EXPECT_EQ(ListTree(in), ListTree(from));
    EXPECT_EQ(fs::status(in + "/Contents/MacOS/tool").permissions(), fs::perms(0755));
    EXPECT_EQ(fs::status(in + "/Contents/shut").permissions(), fs::perms(0755))
        << "its owner must be able to empty it";
  }
}

TEST_F(ExtractorTest, ReportsTheLabelOnceAndThenEveryEntry) {
  QObject receiver;
  QStringList reports;
  QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
                   [&](int total, int k) { reports << QStringLiteral("%1/%2").arg(k).arg(total); });
  QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText, &receiver,
                   [&](const QString& text) { reports << text; });
  WriteTar(extractor.archive, "a/ a/1=x a/2=");
  ASSERT_EQ(extractor.Extract(), 0);
  EXPECT_EQ(reports.join(QLatin1Char(' ')),
            QStringLiteral("Lumivo Drive is initializing... 1/3 2/3 3/3"));
}

// Beside the destination lies a folder whose name begins like its own. A row: entries, what they
// leave, the result.
TEST_F(ExtractorTest, NothingIsWrittenOutside) {
  const std::string arena = home.folder / "arena", in = arena + "/in", neighbour = arena + "/in2";
  BuildTree(arena, "in2/sub in2/secret=s in2/sub/x=x");
  extractor.destination = in;
  const std::tuple<std::string, std::string, int> rows[] = {
      {"1= 2= ../evil=e 3=", "1= 2=", -1},
      {"/in2/evil=e", "in2/ in2/evil=e", 0},
      {"out>" + neighbour + " out/sub/x=e", "out>" + neighbour, -1},
      {"d/ d/here>. out>d/here/../../in2 out/evil=e", "d/ d/here>. out>d/here/../../in2", -1},
      {"out>../new out/evil=e", "out>../new", -1},
      {"out>../in2 out/", "out>../in2", -1},
      {"out>../in2 stolen<out/secret", "out>../in2", -1},
      {"stolen<../in2/secret", "", -1},
      {"a/ in2/ a/k>../in2 l>a l/x=x l<a/k l/evil=e", "a/ a/k>../in2 a/x=x in2/ l>../in2", -1},
      {"f>../in2/secret f=mine", "f=mine", 0}};
  const std::string before = ListTree(arena);
  const fs::perms mode = fs::status(neighbour).permissions();
  for (const auto& [entries, tree, result] : rows) {
    SCOPED_TRACE(entries);
    fs::create_directory(in);
    WriteTar(extractor.archive, entries);
    EXPECT_EQ(extractor.Extract(), result);
    EXPECT_EQ(ListTree(in), tree);
    fs::remove_all(in);
    EXPECT_EQ(ListTree(arena), before);
    EXPECT_EQ(fs::status(neighbour).permissions(), mode);
  }
  EXPECT_EQ(
      QString::fromStdString(home.Log()).count(QStringLiteral("extract2 failed: 'the way to")), 6)
      << home.Log();
}

TEST_F(ExtractorTest, ADestinationBehindALinkStaysBehindIt) {
  BuildTree(home.folder.path, "real in>real");
  WriteTar(extractor.archive, "d/ d/f=data h<d/f l>d l/x=x l/s/y=y");
  EXPECT_EQ(extractor.Extract(), 0) << home.Log();
  EXPECT_TRUE(fs::is_symlink(home.folder / "in"));
  EXPECT_EQ(ListTree(home.folder / "real"), "d/ d/f=data d/s/ d/s/y=y d/x=x h=data l>d");
}

TEST_F(ExtractorTest, ListsTheEntriesAndRefusesWhatIsMissing) {
  WriteTar(extractor.archive, "a/ a/1=x");
  testing::internal::CaptureStdout();
  EXPECT_EQ(extractor.List(), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "a/\na/1\n");
  extractor.archive = "";
  EXPECT_EQ(extractor.Extract() + extractor.Count() + extractor.List() +
                Extractor::copy_data(nullptr, nullptr),
            -4);
}

}  // namespace
