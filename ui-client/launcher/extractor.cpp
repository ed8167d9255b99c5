#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <set>
#include <string>

#include "StrTable.h"
#include "file/real-path.h"
#include "file/write-barrier.h"
#include "notify-adapter.h"
#include "text-ids.h"

#define LOG_UNIT "extractor"
#include "log.h"

namespace {

const ustring kComponent = "extractor_debug";

constexpr size_t kBlockSize = 10240;
// How libarchive numbers what is wrong with an archive, and not a system call.
#ifdef EFTYPE
constexpr int kDamaged = EFTYPE;
#else
constexpr int kDamaged = EILSEQ;
#endif
constexpr int kWriterOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

struct ReaderCloser {
  void operator()(struct archive* reader) const { archive_read_free(reader); }
};
using ArchiveReader = std::unique_ptr<struct archive, ReaderCloser>;

struct WriterCloser {
  void operator()(struct archive* writer) const { archive_write_free(writer); }
};
using ArchiveWriter = std::unique_ptr<struct archive, WriterCloser>;

bool IsLink(const std::string& path) {
  struct stat info = {};
  return lstat(path.c_str(), &info) == 0 && S_ISLNK(info.st_mode);
}

std::string ParentFolder(const std::string& path) {
  const size_t end = path.find_last_not_of('/');
  const size_t slash = path.find_last_of('/', end);
  return slash == std::string::npos || slash == 0
             ? "/"
             : path.substr(0, path.find_last_not_of('/', slash) + 1);
}

/// Keeps entries from being written through links that lead out of the destination.
///
/// The file system itself is asked where a folder lies, so that links behind links, other spellings
/// and names that the archive uses twice cannot deceive it. As long as the archive made no link,
/// nothing is looked up, and later no folder twice.
class LinkGuard {
 public:
  explicit LinkGuard(const std::string& folder) : folder_(folder) {}

  /// Whether the way to `path` stays within the destination. A folder may be a link already, so its
  /// own name belongs to the way; anything else is replaced, not followed.
  bool StaysInside(const std::string& path, bool isFolder) {
    if (!hasLinks_) return true;
    const std::string way =
        isFolder ? path.substr(0, path.find_last_not_of('/') + 1) : ParentFolder(path);
    if (inside_.count(way) != 0) return true;
    const bool inside = IsInKnownFolder(way) || LeadsInside(way);
    if (inside) inside_.insert(way);
    return inside;
  }

  /// A link was written, symbolic or (to one, perhaps) hard: what was looked up before may lie
  /// elsewhere now.
  void LinkWritten(bool symbolic) {
    // Only now is the destination there for certain. Where a link has taken its place there is no
    // inside at all.
    if (symbolic && root_.empty() && !IsLink(folder_)) root_ = RealPath(folder_);
    hasLinks_ = hasLinks_ || symbolic;
    inside_.clear();
  }

 private:
  // What lies in a folder that is inside is inside itself, unless it is a link. This takes one
  // look, and LeadsInside() one for every folder on the way.
  bool IsInKnownFolder(const std::string& way) const {
    const size_t slash = way.rfind('/');
    const bool isUp =
        slash == std::string::npos || way.compare(slash, std::string::npos, "/..") == 0;
    if (isUp || inside_.count(ParentFolder(way)) == 0) return false;
    struct stat info = {};
    return lstat(way.c_str(), &info) == 0 ? !S_ISLNK(info.st_mode) : errno == ENOENT;
  }

  bool LeadsInside(const std::string& way) const {
    // What is missing is made by the writer, within the last folder that is there.
    std::string resolved = RealPath(way);
    for (std::string there = way; resolved.empty();) {
      if (errno != ENOENT || IsLink(there) || there == "/") return false;
      there = ParentFolder(there);
      resolved = RealPath(there);
    }
    return !root_.empty() && resolved.compare(0, root_.size(), root_) == 0 &&
           (resolved.size() == root_.size() || resolved[root_.size()] == '/');
  }

  const std::string folder_;
  std::string root_;
  std::set<std::string> inside_;
  bool hasLinks_ = false;
};

// Why the last operation failed.
const char* ErrorText(struct archive* archive) {
  const char* text = archive_error_string(archive);
  return text != nullptr ? text : "no reason given";
}

// A reader of `path`, opened; its error text tells what failed when the result is not ARCHIVE_OK.
int Open(struct archive* reader, const ustring& path) {
  archive_read_support_filter_all(reader);
  archive_read_support_format_all(reader);
  return archive_read_open_filename(reader, path.c_str(), kBlockSize);
}

// The reader for the passes that look at headers only; none when it cannot be had, which is logged.
ArchiveReader OpenForHeaders(const Extractor& extractor) {
  if (extractor.destination.empty() || extractor.archive.empty()) {
    LOG_ERROR(kComponent, "Invalid argument\n");
    return nullptr;
  }
  ArchiveReader reader(archive_read_new());
  if (!reader) {
    LOG_ERROR(kComponent, "Allocate archive failed\n");
    return nullptr;
  }
  if (Open(reader.get(), extractor.archive) != ARCHIVE_OK) {
    LOG_ERROR(kComponent, "archive_read_open_filename failed: '%s'\n", ErrorText(reader.get()));
    return nullptr;
  }
  return reader;
}

// A zip that was cut short in the directory at its end can still be read from the front: it then
// looks whole, but has lost its modes and links. Any other archive passes.
bool HasItsDirectory(struct archive* opened, const ustring& path) {
  const bool isZip = (archive_format(opened) & ARCHIVE_FORMAT_BASE_MASK) == ARCHIVE_FORMAT_ZIP;
  if (!isZip || archive_filter_code(opened, 0) != ARCHIVE_FILTER_NONE) return true;

  // This reader opens nothing without a directory. What is in it, the other one has read.
  const ArchiveReader reader(archive_read_new());
  return reader && archive_read_support_format_zip_seekable(reader.get()) == ARCHIVE_OK &&
         archive_read_open_filename(reader.get(), path.c_str(), kBlockSize) == ARCHIVE_OK;
}

// Whether the name is that of the folder which it is put below: "", ".", "/./".
bool NamesTheFolderItself(const char* name) {
  while (*name != '\0') {
    const size_t length = strcspn(name, "/");
    if (length > 1 || (length == 1 && *name != '.')) return false;
    name += length;
    name += strspn(name, "/");
  }
  return true;
}

// Puts the entry, and the target when it is a hard link, below the folder.
void MoveBelow(const std::string& folder, struct archive_entry* entry, const char* name) {
  archive_entry_set_pathname(entry, (folder + "/" + name).c_str());
  if (const char* target = archive_entry_hardlink(entry)) {
    archive_entry_set_hardlink(entry, (folder + "/" + target).c_str());
  }
}

bool IsFolder(struct archive_entry* entry) {
  return archive_entry_filetype(entry) == AE_IFDIR && archive_entry_hardlink(entry) == nullptr;
}

// Whether everything that writing the entry would change lies within the destination.
bool StaysInside(LinkGuard* guard, struct archive_entry* entry) {
  if (!guard->StaysInside(archive_entry_pathname(entry), IsFolder(entry))) return false;
  const char* target = archive_entry_hardlink(entry);
  if (target == nullptr) return true;
  // A hard link to a link is that link once more, wherever it leads. Data that comes with a hard
  // link is written to where its target leads, and the mode is set there.
  const bool hasData = archive_entry_size_is_set(entry) == 0 || archive_entry_size(entry) > 0;
  return guard->StaysInside(target, hasData && archive_entry_filetype(entry) != AE_IFLNK);
}

// Reads the data of the current entry to its end, for what is wrong with it. ARCHIVE_OK when
// nothing is.
int CheckData(struct archive* reader) {
  const void* buffer = nullptr;
  size_t size = 0;
  la_int64_t offset = 0;
  int result = ARCHIVE_OK;
  while (result == ARCHIVE_OK) {
    result = archive_read_data_block(reader, &buffer, &size, &offset);
  }
  return result == ARCHIVE_EOF ? ARCHIVE_OK : result;
}

/// One pass over an opened archive, from its first entry to its last.
class Extraction {
 public:
  /// `total` is the number of entries; all else is the caller's, and outlives this.
  Extraction(const Extractor& extractor, int total, struct archive* reader, struct archive* writer)
      : archive_(extractor.archive),
        total_(total),
        reader_(reader),
        writer_(writer),
        folder_(FolderOf(extractor)),
        guard_(folder_) {}

  /// Extracts and reports every entry; 0, or -1, which is logged.
  int Run() {
    for (int done = 1;; ++done) {
      const int result = ExtractNext(done);
      if (result == ARCHIVE_EOF) break;
      if (result != ARCHIVE_OK) return -1;

      Notify_Adapter::GetInstance()->UpdateProgress(total_, done);
      if (archive_write_finish_entry(writer_) != ARCHIVE_OK) {
        LOG_ERROR(kComponent, "archive_write_finish_entry failed: '%s'\n", ErrorText(writer_));
        return -1;
      }
    }
    if (isCut_) {
      LOG_ERROR(kComponent, "Failed to read file '%s' ('%s')\n", archive_.c_str(),
                "the directory at its end is missing");
      return -1;
    }
    archive_write_close(writer_);  // some folders get their modes only now
    return IsForcedToDisk() ? 0 : -1;
  }

 private:
  // The writer replaces a link on the path of a hard link's target by a folder, so it gets a path
  // without links.
  static std::string FolderOf(const Extractor& extractor) {
    const std::string resolved = RealPath(extractor.destination.c_str());
    return resolved.empty() ? extractor.destination.c_str() : resolved;
  }

  // Reads the entry `number` and writes it. ARCHIVE_OK, ARCHIVE_EOF at the archive's end, or
  // ARCHIVE_FATAL, which is logged.
  int ExtractNext(int number) {
    struct archive_entry* entry = nullptr;
    const int header = archive_read_next_header(reader_, &entry);
    if (header == ARCHIVE_EOF) return ARCHIVE_EOF;
    if (header != ARCHIVE_OK) {
      LOG_ERROR(kComponent, "archive_read_next_header failed: '%s'\n", ErrorText(reader_));
      return ARCHIVE_FATAL;
    }
    if (archive_entry_pathname(entry) == nullptr) {
      LOG_ERROR(kComponent, "archive_entry_pathname failed");
      return ARCHIVE_FATAL;
    }
    if (number == total_ && !MayEnd(number)) return ARCHIVE_FATAL;

    if ((isCut_ ? CheckData(reader_) : Write(entry)) == ARCHIVE_OK) return ARCHIVE_OK;
    LogExtractFailure();
    return ARCHIVE_FATAL;
  }

  // The last entry may be what says that all the others are there, so that it must be neither
  // before them on the disk nor written at all when the archive is going to be refused. When it is
  // the only one, there may be no folder yet.
  bool MayEnd(int number) {
    isCut_ = !HasItsDirectory(reader_, archive_);
    return number == 1 || isCut_ || IsForcedToDisk();
  }

  // Any result but ARCHIVE_OK is a failure, with a text at the writer or else at the reader.
  int Write(struct archive_entry* entry) {
    const char* name = archive_entry_pathname(entry);
    if (NamesTheFolderItself(name) && !IsFolder(entry)) {
      archive_set_error(writer_, kDamaged, "'%s' would take the place of the destination", name);
      return ARCHIVE_FAILED;
    }
    MoveBelow(folder_, entry, name);
    if (!StaysInside(&guard_, entry)) {
      archive_set_error(writer_, kDamaged, "the way to '%s' leads out of the destination",
                        archive_entry_pathname(entry));
      return ARCHIVE_FAILED;
    }
    // A folder that its owner may not change could not be removed again, by a rollback or the next
    // upgrade.
    if (IsFolder(entry)) archive_entry_set_perm(entry, archive_entry_perm(entry) | S_IRWXU);
    const int result = archive_read_extract2(reader_, entry, writer_);
    if (result != ARCHIVE_OK) return result;
    const bool symbolic = archive_entry_filetype(entry) == AE_IFLNK;
    if (symbolic || archive_entry_hardlink(entry) != nullptr) guard_.LinkWritten(symbolic);
    return ARCHIVE_OK;
  }

  // By the account of the writer, or of the reader where the writer has none. The text says which
  // step failed ("Write failed"), but not that the disk is full.
  void LogExtractFailure() const {
    struct archive* const told = archive_error_string(writer_) != nullptr ? writer_ : reader_;
    LOG_ERROR(kComponent, "archive_read_extract2 failed: '%s'\n", ErrorText(told));
    const int error = archive_errno(told);
    if (error <= 0 || error == kDamaged) return;  // the system did not refuse anything
    LOG_ERROR(kComponent, "archive_read_extract2: %s (%d)\n", strerror(error), error);
  }

  bool IsForcedToDisk() const {
    if (WriteBarrier(folder_.c_str()) == 0) return true;
    LOG_ERROR(kComponent, "failed to force '%s' to the disk: %s (%d)\n", folder_.c_str(),
              strerror(errno), errno);
    return false;
  }

  const ustring& archive_;
  const int total_;
  struct archive* const reader_;
  struct archive* const writer_;
  const std::string folder_;
  LinkGuard guard_;
  bool isCut_ = false;  // a zip without the directory at its end
};

}  // namespace

int Extractor::Extract() {
  if (archive.empty() || destination.empty()) {
    LOG_ERROR(kComponent, "Invalid Argument\n");
    return -1;
  }
  LOG_DEBUG(kComponent, "decompress from '%s' to '%s'\n", archive.c_str(), destination.c_str());
  Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStr(kTextPreparing));

  const int total = Count();
  if (total < 1) {
    LOG_ERROR(kComponent, "Failed to calculate total file numbers, ret: %d\n", total);
    return -1;
  }

  const ArchiveReader reader(archive_read_new());
  const ArchiveWriter writer(reader ? archive_write_disk_new() : nullptr);
  if (!reader || !writer) {
    LOG_ERROR(kComponent, "Allocate extractor failed\n");
    return -1;
  }
  archive_write_disk_set_options(writer.get(), kWriterOptions);
  if (Open(reader.get(), archive) != ARCHIVE_OK) {
    LOG_ERROR(kComponent, "Failed to read file '%s' ('%s')\n", archive.c_str(),
              ErrorText(reader.get()));
    return -1;
  }
  return Extraction(*this, total, reader.get(), writer.get()).Run();
}

int Extractor::Count() {
  const ArchiveReader reader = OpenForHeaders(*this);
  if (!reader) return -1;

  int entries = 0;
  struct archive_entry* entry = nullptr;
  while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
    ++entries;
    archive_read_data_skip(reader.get());
  }
  return entries;
}

int Extractor::List() {
  const ArchiveReader reader = OpenForHeaders(*this);
  if (!reader) return -1;

  struct archive_entry* entry = nullptr;
  while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
    const char* name = archive_entry_pathname(entry);
    printf("%s\n", name != nullptr ? name : "");
    fflush(stdout);
    archive_read_data_skip(reader.get());
  }
  return 0;
}

int Extractor::copy_data(struct archive* reader, struct archive* writer) {
  if (reader == nullptr || writer == nullptr) {
    LOG_ERROR(kComponent, "Invalid Argument\n");
    return -1;
  }
  for (;;) {
    const void* buffer = nullptr;
    size_t size = 0;
    la_int64_t offset = 0;
    const int result = archive_read_data_block(reader, &buffer, &size, &offset);
    if (result == ARCHIVE_EOF) return 0;
    if (result != ARCHIVE_OK) {
      LOG_ERROR(kComponent, "archive_read_data_block failed: '%s'\n", ErrorText(reader));
      return -1;
    }
    if (archive_write_data_block(writer, buffer, size, offset) != ARCHIVE_OK) {
      LOG_ERROR(kComponent, "archive_write_data_block failed: '%s'\n", ErrorText(writer));
      return -1;
    }
  }
}
