#pragma once

#include <dirent.h>

#include <cstdint>

#include "ustring.h"

/// @file
/// File operations over path names.
///
/// Paths are UTF-8 and go to the system as given unless a function says that it normalises. Unless
/// stated otherwise an operation returns 0 on success and a negative number on failure, logs its
/// failures under the component "file_op_debug", changes its out-arguments on success only, never
/// retries and never rolls back. Nothing here keeps state: every function runs on any thread. No
/// descriptor that is opened here reaches a started program.

/// What a path can be; the values of `_FILE_INFO_tag::type` and `DIR_ENTRY::type`.
enum FileTypeCode : int {
  FILE_TYPE_NONE = 0,  ///< missing, or unknown
  FILE_TYPE_REGULAR = 1,
  FILE_TYPE_FOLDER = 2,
  FILE_TYPE_LINK = 3,
  FILE_TYPE_DEVICE = 5,  ///< character or block device
  FILE_TYPE_FIFO = 6,
  FILE_TYPE_SOCKET = 7,
};

/// What `GetFileInfo` and `FSStat` report of a path.
struct _FILE_INFO_tag {
  ustring
      path;  ///< as the file system spells it, in composed form; as given when it does not exist
  ustring name;       ///< the last component of `path`
  int type = 0;       ///< a `FileTypeCode`
  int32_t mtime = 0;  ///< modification time, seconds since the epoch
  int64_t size = 0;   ///< bytes
  bool exist = false;
  uint32_t uid = 0;
  uint32_t gid = 0;
  uint32_t mode = 0;  ///< the 16 bits of type and permissions
  int64_t dev = 0;    ///< device number, sign-extended from 32 bits

  /// Compares existence, size, time, type, path and name; not owner, mode or device.
  bool operator==(const _FILE_INFO_tag& other) const;
  bool operator!=(const _FILE_INFO_tag& other) const { return !(*this == other); }
};

/// An open folder iteration. It owns nothing by itself: `FSOpenDir` opens it and `FSCloseDir` must
/// close it. It belongs to one thread at a time.
struct DIR_HANDLE {
  ustring path;
  int flags = 0;       ///< bit 0: fill in time and size of each entry
  DIR* dir = nullptr;  ///< null while closed
};

/// One entry of a folder.
struct DIR_ENTRY {
  ustring name;       ///< without the folder
  int type = 0;       ///< a `FileTypeCode`
  int32_t mtime = 0;  ///< 0 unless bit 0 of the handle's flags is set
  int64_t size = 0;   ///< 0 unless bit 0 of the handle's flags is set
};

/// Examines the path itself; a link at its end is not followed.
///
/// @return 0 with `info` filled, for a missing path with `exist` false and zeros; -1 when the path
/// cannot be examined
///     (`info` untouched) or not be resolved to the file system's spelling (`info` filled, `path`
///     and `name` as given)
int GetFileInfo(const ustring& path, _FILE_INFO_tag& info);

/// Whether the composed form of `path` exists; false also when that cannot be found out.
///
/// @param exact  a path that reaches its file through a linked folder or in other letter case
/// counts as missing
bool IsFileExist(const ustring& path, bool exact);

/// `GetFileInfo` for a path that `IsFileExist(path, exact)` finds; otherwise only `info.exist` is
/// set, to false.
///
/// @return 0 (also when missing), -1 empty path, -2 examining failed
int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact);

/// Makes a folder; one that exists is success, a link to a folder is not.
///
/// @param parents  make the missing folders on the way too; the umask applies to all of them
/// @return 0; -1 empty path, one that cannot be examined, or something else is there; -2 making it
/// failed
int FSMKDir(const ustring& path, bool parents);

/// Makes every missing folder along `path`; links to folders on the way are followed. Folders made
/// before a failure stay.
///
/// @param failedAt  may be null; else set, on success and on failure, to the place in the text of
/// `path` that ends the
///     component where the walk stopped: the "/" behind it or the end. Untouched for an empty path.
///     It is valid as long as `path` is not changed
/// @param replace   a file in the way is removed
/// @param mode      exact permissions of the new folders: the process's umask is 0 during the call,
///     for files that other threads create meanwhile as well. Such calls take turns, so that the
///     umask is restored. 0xFFFF: permissions 0777 less the umask, which is left alone
/// @return 0, -1; `errno` is `EEXIST` when a file stands at the end of the path and may not be
/// replaced
int FSMKDirP(const ustring& path, char** failedAt, bool replace, unsigned short mode);

/// Makes the folders of `target` that lie below `root`, which must exist and be a prefix of it, one
/// by one.
///
/// @return 0, -1
int FSMKDirFromRoot(const ustring& root, const ustring& target);

/// Copies the bytes of a file, no owner, times or permissions, in blocks of up to 32 MiB, and
/// forces them to the disc. An existing destination is overwritten, not replaced, and links are
/// followed. A failure leaves a partial destination; one that is only about forcing the bytes to
/// the disc is logged, and leaves the result of a plain copy at 0.
///
/// @param removeSource  remove the source after the copy; it is kept when the copy could not be
/// forced to the disc
/// @return 0; -2 the disc or the quota is full; -1 any other failure: both paths are the same file,
/// say, or the source
///     was to be removed and is still there
int FSCopy(const ustring& source, const ustring& destination, bool removeSource);

/// Moves a file or a folder tree.
///
/// Within one file system this is one atomic rename. Across file systems files are copied and
/// removed one by one, into existing folders where there are any; a failure leaves what has moved
/// at the destination and the rest at the source. Links, devices and the like are not moved across:
/// alone they give 0 and stay; inside a folder they stay too, and so the folder that holds them
/// does, with -3.
///
/// @param exact  the source must be spelled as the file system spells it, else it is missing
/// @return 0 moved, -1 an empty path, -2 no such source or one that cannot be examined, -3 failed,
/// possibly part-way,
///     -100 a path too long for the system
int FSRename(const ustring& source, const ustring& destination, bool exact);

/// Removes a file, a link or a whole folder tree, of any depth. Links are removed, never followed,
/// not even when `path` itself is one with a "/" behind it. At most 20 descriptors are open at a
/// time.
///
/// A failure leaves what had not yet been removed. A folder that cannot be opened stays; for `path`
/// itself that counts as success. The root folder is refused before anything is removed, by
/// whatever path it is reached.
///
/// @param flag  not used
/// @return 0 (also for a missing path), -1 empty path or one that cannot be examined, -3 failed,
/// possibly part-way
int FSRemove(const ustring& path, bool flag);

/// Opens a folder for reading its entries. `handle` must be closed.
///
/// @param flags  bit 0: fill in time and size of each entry
/// @return 0, -1
int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle);

/// Reads the next entry of an open folder, in the file system's order, "." and ".." included. The
/// type is the one that the folder records and can be 0. With bit 0 of the flags, time and size
/// stay 0 where the folder's path is not the file system's own spelling.
///
/// @return 1 entry read, 0 end, -1 reading or examining the entry failed
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);

/// Closes an open folder and clears its path.
void FSCloseDir(DIR_HANDLE& handle);

/// Everything before the last "/"; "/" when there is none or it is the first character. "/a/b/"
/// gives "/a/b".
ustring FSParentPath(const ustring& path);

/// Everything after the last "/": empty when the path ends in one, the whole path when it has none.
ustring FSBaseName(const ustring& path);

/// Whether `path` is `parent` or, by its text, lies below it. `parent` must not end in "/".
bool FSIsParentFolder(const ustring& parent, const ustring& path);

/// Makes a new empty file with permissions 0644 and a name nobody uses in `folder`.
///
/// @param out  its path
/// @return 0, -1
int FSMktemp(const ustring& folder, ustring& out);

/// Forms a path with a random name in `folder`. Nothing is created and the disc is not looked at.
///
/// @return 0, -1
int FSCreateTempPath(const ustring& folder, ustring& out);

/// Sets a path's times, in seconds since the epoch; a link's own ones. Failures are not logged.
///
/// @return 0, -1
int FSUTime(const ustring& path, long accessTime, long modificationTime);

/// Whether two times are the same second. Nothing is allowed for file systems that keep only every
/// other second.
bool FSTimeEqual(long a, long b);

/// Whether permissions forbid the access (`R_OK`, `W_OK`, `X_OK`, `F_OK`); false for a missing
/// file.
bool isFileLocked(const ustring& path, int accessMode);

/// The opposite of `isFileLocked`; true for a missing file.
bool hasFilePermission(const ustring& path, int accessMode);

/// Whether the path lies on a network file system (NFS, SMB or AFP); false, with an error line,
/// when that is unknown.
bool isMountPoint(const ustring& path);

/// Whether the path lies on a FAT file system; false, with an error line, when that is unknown.
bool IsMSDOS(const ustring& path);

/// Replaces an existing path by the absolute one with every link resolved, the last component's
/// included.
///
/// @return 0; -1, not logged, with `path` unchanged
int FSGetRealPath(ustring& path);

/// Makes a link at `linkPath` that points to `target`.
///
/// @return 0, -1
int FSCreateSymbolicLink(const ustring& target, const ustring& linkPath);

/// Reads where a link points to. A text of 1024 bytes or more is a failure (`ENAMETOOLONG`).
///
/// @return 0, -1
int FSReadSymbolicLink(const ustring& linkPath, ustring& out);

/// Sets a path's owner and group; a link's own ones.
///
/// @return 0, -1
int FSChown(const ustring& path, unsigned uid, unsigned gid);
