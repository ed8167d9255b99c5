#pragma once

#include <dirent.h>

#include <cstdint>

#include "ustring.h"

/// @file
/// File operations on path names.
///
/// Paths are UTF-8 and go to the system as given unless a function says that it normalizes them.
/// Unless stated otherwise, an operation returns 0 on success and a negative number on failure,
/// logs failures under the component "file_op_debug" (those of one call that only returns them, as
/// FSRename() and FSMKDir() do, are the caller's to log), sets its out-arguments on success only,
/// retries nothing but an interrupted call and never rolls back. Every function may run on any
/// thread. Descriptors opened here are not inherited by programs that this process starts. The only
/// exception thrown is `std::bad_alloc`.

/// What a path can be: the values of `_FILE_INFO_tag::type` and `DIR_ENTRY::type`.
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
  /// As the file system spells it, in composed form where the name is well-formed; as given when it
  /// does not exist.
  ustring path;
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

/// An open folder. It is opened by `FSOpenDir` and must be closed by `FSCloseDir`; the destructor
/// does not close it. One thread at a time.
struct DIR_HANDLE {
  ustring path;
  int flags = 0;       ///< bit 0: fill in the time and size of each entry
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
/// @return 0 with `info` filled; for a missing path `exist` is false and the numbers are 0. -1 when
///         the path cannot be examined (`info` untouched) or its spelling cannot be resolved
///         (`info` filled, with `path` and `name` as given)
int GetFileInfo(const ustring& path, _FILE_INFO_tag& info);

/// Whether the composed form of `path` exists. Also false when that cannot be determined.
///
/// @param exact  a path that reaches its file through a linked folder or in a different letter case
///               counts as missing
bool IsFileExist(const ustring& path, bool exact);

/// `GetFileInfo` for a path that `IsFileExist(path, exact)` finds. For any other path only
/// `info.exist` is set, to false.
///
/// @return 0 (also for a missing path), -1 empty path, -2 examining it failed
int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact);

/// Makes a folder. A folder that exists is success; a link to a folder is not.
///
/// @param parents  also make the missing folders on the way; the umask applies to all of them
/// @return 0; -1 when the path is empty, cannot be examined or is something else; -2 when the
///         folder cannot be made
int FSMKDir(const ustring& path, bool parents);

/// Makes every missing folder along `path`. Links to folders on the way are followed. Folders made
/// before a failure are kept.
///
/// @param failedAt  may be null. Otherwise set, on success and on failure, to the end of the
///                  component where the walk stopped: the "/" after it or the end of the text. It
///                  points into the text of `path`. Untouched for an empty path
/// @param replace   remove a file that is in the way
/// @param mode      the exact permissions of the new folders. The umask of the process is 0 during
///                  the call, which affects files that other threads create meanwhile; such calls
///                  wait for each other, so that the umask is restored. With 0xFFFF the permissions
///                  are 0777 less the umask, which is left alone
/// @return 0, -1. `errno` is `EEXIST` when a file is at the end of the path and may not be replaced
int FSMKDirP(const ustring& path, char** failedAt, bool replace, unsigned short mode);

/// Makes the folders of `target` below `root`, one by one. `root` must exist and be a prefix of
/// `target`.
///
/// @return 0, -1
int FSMKDirFromRoot(const ustring& root, const ustring& target);

/// Copies the bytes of a file (not its owner, times or permissions) in blocks of up to 32 MiB and
/// flushes them to the disk. An existing destination is overwritten in place, and links are
/// followed. A failure leaves a partial destination. If only the flush fails, that is logged, and a
/// plain copy still returns 0.
///
/// @param removeSource  remove the source after the copy, but keep it if the flush failed
/// @return 0; -2 when the disk or the quota is full; -1 on any other failure: for instance when
///         both paths are the same file, or when the source was to be removed and is still there
int FSCopy(const ustring& source, const ustring& destination, bool removeSource);

/// Moves a file or a folder tree.
///
/// Within a file system this is one atomic rename. Across file systems, files are copied and
/// removed one by one, into existing folders if there are any; a failure leaves what has been moved
/// at the destination and the rest at the source. Links, devices and the like are not moved across
/// file systems: on its own, one stays where it is and the result is 0; inside a folder it stays as
/// well, so the folder does too, and the result is -3.
///
/// @param exact  the source must be spelled as the file system spells it, or it counts as missing
/// @return 0 moved; -1 an empty path; -2 no such source, or it cannot be examined; -3 failed,
///         possibly part-way; -100 a path too long for the system
int FSRename(const ustring& source, const ustring& destination, bool exact);

/// Removes a file, a link or a whole folder tree of any depth. Links are removed, never followed,
/// even if `path` is a link with a "/" after it. At most 20 descriptors are open at a time.
///
/// A failure leaves what had not been removed yet. A folder that cannot be opened stays; if that is
/// `path` itself, the result is 0 all the same. The root folder is refused before anything is
/// removed, whatever path names it.
///
/// @param flag  not used
/// @return 0 (also for a missing path), -1 empty path or one that cannot be examined, -3 failed,
///         possibly part-way
int FSRemove(const ustring& path, bool flag);

/// Opens a folder to read its entries. `handle` must not be open.
///
/// @param flags  bit 0: fill in the time and size of each entry
/// @return 0, -1
int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle);

/// Reads the next entry of an open folder, "." and ".." included, in the file system's order. The
/// type is the one recorded in the folder and may be 0. Even with bit 0 of the flags, time and size
/// are 0 if the folder was opened by a path that is not the file system's own spelling.
///
/// @return 1 entry read, 0 end of the folder, -1 reading or examining the entry failed
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);

/// Closes an open folder and clears its path.
void FSCloseDir(DIR_HANDLE& handle);

/// Everything before the last "/"; "/" if there is none or it is the first character. "/a/b/" gives
/// "/a/b".
ustring FSParentPath(const ustring& path);

/// Everything after the last "/": nothing if the path ends in one, the whole path if it has none.
ustring FSBaseName(const ustring& path);

/// Whether `path` is `parent` or lies below it, judging by the text alone. `parent` must not end in
/// "/".
bool FSIsParentFolder(const ustring& parent, const ustring& path);

/// Makes a new empty file with permissions 0644 and an unused name in `folder`.
///
/// @param out  its path
/// @return 0, -1
int FSMktemp(const ustring& folder, ustring& out);

/// Forms a path with a random name in `folder`. Creates nothing, and does not check whether the
/// path exists.
///
/// @return 0, -1
int FSCreateTempPath(const ustring& folder, ustring& out);

/// Sets the times of a path in seconds since the epoch; for a link its own. Failures are not
/// logged.
///
/// @return 0, -1
int FSUTime(const ustring& path, long accessTime, long modificationTime);

/// Whether two times are the same second. Makes no allowance for file systems that store only every
/// other second.
bool FSTimeEqual(long a, long b);

/// Whether permissions forbid the access (`R_OK`, `W_OK`, `X_OK`, `F_OK`). False for a missing
/// file.
bool isFileLocked(const ustring& path, int accessMode);

/// The opposite of `isFileLocked`: true for a missing file.
bool hasFilePermission(const ustring& path, int accessMode);

/// Whether the path is on a network file system (NFS, SMB or AFP). False, with an error line, when
/// that cannot be determined.
bool isMountPoint(const ustring& path);

/// Whether the path is on a FAT file system. False, with an error line, when that cannot be
/// determined.
bool IsMSDOS(const ustring& path);

/// Replaces an existing path with its absolute form, every link resolved, including the last
/// component.
///
/// @return 0; -1, not logged and with `path` unchanged
int FSGetRealPath(ustring& path);

/// Makes a symbolic link at `linkPath` that points to `target`.
///
/// @return 0, -1
int FSCreateSymbolicLink(const ustring& target, const ustring& linkPath);

/// Reads the target of a symbolic link. A target of 1024 bytes or more is a failure
/// (`ENAMETOOLONG`).
///
/// @return 0, -1
int FSReadSymbolicLink(const ustring& linkPath, ustring& out);

/// Sets the owner and group of a path; for a link its own.
///
/// @return 0, -1
int FSChown(const ustring& path, unsigned uid, unsigned gid);
