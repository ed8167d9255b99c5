#pragma once

#include "ustring.h"

struct archive;

/// Unpacks the package archive into a folder, entry by entry.
///
/// Fill both fields, then call any operation, any number of times: no archive stays open between
/// calls. All formats and filters of libarchive are read. Every failure is logged under
/// "extractor_debug" and reported as -1; what was written before it stays on disk, for the caller
/// to roll back.
///
/// Of the interface it knows two things: the one text that the dialog shows while it works, which
/// it takes from the string table, and Notify_Adapter, through which the text and the progress go.
/// Whether anybody listens makes no difference. Runs on any thread, and blocks it.
class Extractor {
 public:
  ustring destination;  ///< the folder that entries are written below; it need not exist
  ustring archive;      ///< the archive file, UTF-8

  /// Writes every entry below `destination`, replacing files that are there. Reports the label text
  /// once and then (total, k) after the k-th entry, with the total of Count().
  ///
  /// Nothing is written outside `destination`: absolute names and the targets of hard links are put
  /// below it, names with ".." are refused, and so is an entry whose path leads out of it through a
  /// symbolic link. Links themselves are extracted as they are, and so are hard links to them. An
  /// entry that names the destination itself is a folder, or refused. Owners and times are not
  /// restored, nor are ACLs and extended attributes, but for what macOS archives carry as metadata
  /// of their own ("._" files) on macOS; modes are, less the umask, and with all rights of the
  /// owner on folders, so that the tree can be removed again. A zip without the central directory
  /// at its end is refused once that end is reached, and its last entry is not written: it could be
  /// read from the front, but its modes and links would be lost.
  ///
  /// A power cut at any moment leaves either all entries or not the last one: the others are on the
  /// disk before it is written. It is there too before the result is 0, so that what it replaces
  /// can be removed then.
  ///
  /// @return 0, or -1 for the first entry that cannot be read or written in full, a warning
  /// included
  int Extract();

  /// The number of entries up to the end of the archive or the first damage in it; -1 when it
  /// cannot be opened. Cheap for formats with a directory (zip, 7z), a whole decompression for the
  /// others.
  int Count();

  /// Prints every entry's path to standard output, one a line, up to the end or the first damage.
  /// 0, or -1 when the archive cannot be opened.
  int List();

  /// Copies the data of the reader's current entry to the writer's. 0 at the entry's end, -1 on
  /// failure.
  static int copy_data(struct archive* reader, struct archive* writer);
};
