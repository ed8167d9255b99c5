"""Compresses the files of a tree in as many threads as there are processors, and makes a zip.

What comes out does not depend on the number of threads. Each thread leaves what it compressed in a
temporary file of its own until all are done, so memory holds no more than the state of a compressor
and a block for each thread, however large the files are, and the directory of the archive.
"""

import os
import stat
import struct
import tempfile
import threading
import zlib
from concurrent.futures import FIRST_EXCEPTION, ThreadPoolExecutor, wait
from typing import NamedTuple

from zip_writer import DEFLATED, STORED, ZSTANDARD, Member, ZipWriter

# The module of Python 3.14, or the one that earlier versions can install. Both call the same
# library, so its version decides what comes out.
try:
    from compression import zstd

    ZSTANDARD_VERSION = zstd.zstd_version
except ImportError:
    try:
        import zstandard as zstd

        ZSTANDARD_VERSION = ".".join(map(str, zstd.ZSTD_VERSION))
    except ImportError:
        zstd = None

# Trees of 380 and 697 MB, in MB and in seconds of a processor: level 12 gives 130 and 169 in 14 and
# 27, 15 gives 129 and 167 in 44 and 88, 17 gives 121 and 157 in 85 and 182, 19 gives 117 and 152 in
# 117 and 272; deflate's 9 gives 138 and 199 in 42 and 101. Many download what is packed once. 22
# and matches over long distances give no less, and at 19 a reader needs no more than 8 MiB.
ZSTANDARD_LEVEL = 19
DEFLATE_LEVEL = 9
# A frame of no bytes, which readers skip. libarchive (3.6) takes a file for cut short when its data
# end in the moment in which the buffer for what comes out is full, as with 256 KiB of zeros: this
# leaves it something to read.
SKIPPED_FRAME = struct.pack("<LL", 0x184D2A50, 0)
# Small enough for an interruption to be noticed soon.
BLOCK = 1 << 17


def processors():
    try:
        return len(os.sched_getaffinity(0))
    except AttributeError:
        return os.cpu_count() or 1


class Deflate:
    """Compresses one file after another; start() gives an object with compress() and flush()."""

    method, tail = DEFLATED, b""

    def start(self, size):
        return zlib.compressobj(DEFLATE_LEVEL, zlib.DEFLATED, -zlib.MAX_WBITS)


class Zstandard:
    """The same with Zstandard. A frame says its size, and readers take no more memory than that."""

    method, tail = ZSTANDARD, SKIPPED_FRAME

    def __init__(self):
        self._compressor = zstd.ZstdCompressor(level=ZSTANDARD_LEVEL)

    def start(self, size):
        if hasattr(self._compressor, "compressobj"):
            return self._compressor.compressobj(size=size)
        self._compressor.set_pledged_input_size(size)
        return self._compressor


class Plain:
    """Leaves everything as it is."""

    method, tail = STORED, b""

    def start(self, size):
        return self

    def compress(self, block):
        return block

    def flush(self):
        return b""


class Packed(NamedTuple):
    """A file's data as it goes into the archive, and where it waits."""

    member: Member
    spool: object
    offset: int

    def blocks(self):
        end = self.offset + self.member.packed_size
        for offset in range(self.offset, end, BLOCK):
            yield os.pread(self.spool.fileno(), min(BLOCK, end - offset), offset)


class Stopped(Exception):
    """Another thread failed, or the program is to end."""


class Packer:
    """Compresses files; every thread that calls pack() has a compressor and a spool of its own."""

    def __init__(self, compression, folder, progress):
        self.must_stop = False
        self._compression, self._folder, self._progress = compression, folder, progress
        self._mine = threading.local()
        self._spools = []

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for spool in self._spools:
            spool.close()

    def pack(self, source, name, mode, size):
        """The file `source`, whose size was `size`, as the member `name`."""
        mine = self._mine
        if not hasattr(mine, "spool"):
            mine.spool = tempfile.TemporaryFile(dir=self._folder)
            self._spools.append(mine.spool)
            mine.compression = self._compression()
        with open(source, "rb") as file:
            packed = self._spooled(file, mine.compression, name, mode, size)
            if packed.member.packed_size >= size:
                mine.spool.seek(packed.offset)
                mine.spool.truncate()
                file.seek(0)
                packed = self._spooled(file, Plain(), name, mode, size)
        return packed

    def _spooled(self, file, compression, name, mode, size):
        spool = self._mine.spool
        offset, checksum = spool.tell(), 0
        stream = compression.start(size)
        for block in self._blocks(file, size):
            checksum = zlib.crc32(block, checksum)
            spool.write(stream.compress(block))
            if compression.method != STORED:
                self._progress.advance(len(block))
        spool.write(stream.flush() + compression.tail)
        # Written out here, so that a full disk is this file's failure and not a later one's.
        spool.flush()
        packed_size = spool.tell() - offset
        member = Member(name, mode, compression.method, checksum, size, packed_size)
        return Packed(member, spool, offset)

    def _blocks(self, file, size):
        """The data of the file, which has to be as long as it was."""
        left = size
        while block := file.read(BLOCK):
            if self.must_stop:
                raise Stopped()
            left -= len(block)
            if left < 0:
                break
            yield block
        if left != 0:
            raise OSError(f"'{os.fsdecode(file.name)}' changed while it was packed")


def pack_files(packer, files):
    """Packs `files`, path -> arguments of pack(), the largest first; path -> Packed."""
    largest_first = sorted(files, key=lambda path: (-files[path][-1], path))
    with ThreadPoolExecutor(processors()) as pool:
        try:
            running = {path: pool.submit(packer.pack, *files[path]) for path in largest_first}
            done, _ = wait(running.values(), return_when=FIRST_EXCEPTION)
            for future in done:
                future.result()
        except BaseException:
            packer.must_stop = True
            pool.shutdown(wait=False, cancel_futures=True)
            raise
    return {path: future.result() for path, future in running.items()}


def write_zip(archive, contents, compression, progress):
    """Writes a client_tree.Contents; `compression` is Zstandard or Deflate."""
    entries = contents.entries
    files = {
        path: (contents.source_of(path), path, stat.S_IFREG | entry.mode, entry.size)
        for path, entry in entries.items()
        if entry.is_file
    }
    with Packer(compression, os.path.dirname(archive), progress) as packer:
        packed = pack_files(packer, files)
        with open(archive, "wb") as file:
            writer = ZipWriter(file, contents.moment)
            for path in contents.order:
                entry = entries[path]
                if entry.is_file:
                    writer.add(packed[path].member, packed[path].blocks())
                elif entry.kind == "l":
                    checksum, size = zlib.crc32(entry.target), len(entry.target)
                    mode = stat.S_IFLNK | entry.mode
                    writer.add(Member(path, mode, STORED, checksum, size, size), [entry.target])
                else:
                    writer.add(Member(path + b"/", stat.S_IFDIR | entry.mode))
            writer.close()
