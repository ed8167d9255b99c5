"""Writes zip archives whose members were compressed by somebody else, with any method.

The sizes and the checksum of a member are known before its data. Names are bytes and stay as they
are: without the flag that calls them UTF-8, a reader in any locale, or in none, gives them to Unix
unchanged. Sizes, offsets and counts that do not fit the old fields go into the zip64 ones.
"""

import stat
import struct
import time
from typing import NamedTuple

STORED, DEFLATED, ZSTANDARD = 0, 8, 93
# The version of the format that brought each method; links and Unix modes came before all of them.
VERSION_NEEDED = {STORED: 20, DEFLATED: 20, ZSTANDARD: 63}
VERSION_ZIP64 = 45
MADE_BY_UNIX = 3 << 8
FOLDER_TO_DOS = 0x10
# These values in a field say that the number is in the zip64 one.
FULL_16, FULL_32 = 0xFFFF, 0xFFFFFFFF


class Member(NamedTuple):
    """What the archive says of a member. The mode has the file type, a folder's name its slash."""

    name: bytes
    mode: int
    method: int = STORED
    checksum: int = 0
    size: int = 0
    packed_size: int = 0


class ZipWriter:
    """Writes to a file object that is at its start. Call close() when all members are added."""

    def __init__(self, file, moment):
        """`moment` is the time of every member, in seconds since 1970, from 1980 to 2107."""
        year, month, day, hour, minute, second = time.gmtime(moment)[:6]
        self._file = file
        self._time = hour << 11 | minute << 5 | second // 2
        self._date = year - 1980 << 9 | month << 5 | day
        self._directory = []

    def add(self, member, blocks=()):
        """Appends a member; the blocks are its data as packed, `packed_size` bytes in all."""
        offset = self._file.tell()
        # A local header has both sizes in the zip64 field or none; the directory does the same.
        is_large = max(member.size, member.packed_size) >= FULL_32
        large = [member.size, member.packed_size] if is_large else []
        self._file.write(b"PK\3\4" + self._described(member, large) + member.name)
        self._file.write(zip64_field(large))
        for block in blocks:
            self._file.write(block)

        far = [offset] if offset >= FULL_32 else []
        attributes = member.mode << 16 | (FOLDER_TO_DOS if stat.S_ISDIR(member.mode) else 0)
        entry = [
            b"PK\1\2" + struct.pack("<H", MADE_BY_UNIX | VERSION_NEEDED[ZSTANDARD]),
            self._described(member, large + far),
            struct.pack("<HHHLL", 0, 0, 0, attributes, min(offset, FULL_32)),
            member.name,
            zip64_field(large + far),
        ]
        self._directory.append(b"".join(entry))

    def close(self):
        """Writes the directory of all members, where readers begin. The file stays open."""
        count, start = len(self._directory), self._file.tell()
        self._file.writelines(self._directory)
        end = self._file.tell()
        size = end - start
        if count >= FULL_16 or max(size, start) >= FULL_32:
            versions = (MADE_BY_UNIX | VERSION_ZIP64, VERSION_ZIP64)
            record = struct.pack("<HHLLQQQQ", *versions, 0, 0, count, count, size, start)
            self._file.write(b"PK\6\6" + struct.pack("<Q", len(record)) + record)
            self._file.write(b"PK\6\7" + struct.pack("<LQL", 0, end, 1))
        count = min(count, FULL_16)
        ends = (min(size, FULL_32), min(start, FULL_32))
        self._file.write(b"PK\5\6" + struct.pack("<HHHHLLH", 0, 0, count, count, *ends, 0))

    def _described(self, member, zip64_numbers):
        """The fields that a local header and the directory have in common."""
        needed = VERSION_NEEDED[member.method]
        is_large = max(member.size, member.packed_size) >= FULL_32
        return struct.pack(
            "<HHHHHLLLHH",
            max(needed, VERSION_ZIP64) if zip64_numbers else needed,
            0,
            member.method,
            self._time,
            self._date,
            member.checksum,
            FULL_32 if is_large else member.packed_size,
            FULL_32 if is_large else member.size,
            len(member.name),
            len(zip64_field(zip64_numbers)),
        )


def zip64_field(numbers):
    """The extra field with the numbers that the old fields cannot hold; empty without any."""
    if not numbers:
        return b""
    return struct.pack(f"<HH{len(numbers)}Q", 1, 8 * len(numbers), *numbers)
