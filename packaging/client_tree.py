"""A client's bundle tree: what lies in it, why it may not be packed, and in which order it is."""

import errno
import os
import plistlib
import re
import shutil
import stat
import subprocess
import unicodedata
from typing import Callable, NamedTuple

EXECUTABLE_NAME = "lumivo-drive-ui"
EXECUTABLE = b"Contents/MacOS/" + EXECUTABLE_NAME.encode()
RESOURCES = b"Contents/Resources"
INFO = RESOURCES + b"/INFO"
PROPERTY_LIST = b"Contents/Info.plist"
SIGNATURE = b"Contents/_CodeSignature"
# Where a signature is kept of files that have no room for it. A Mac's attributes that were copied
# to Linux have "user." in front.
SIGNATURE_ATTRIBUTE = re.compile(r"(user\.)?com\.apple\.cs\.")


class Refusal(Exception):
    """The package cannot be made; the text says why."""


class Entry(NamedTuple):
    """A node of the tree; the kinds are d, f, x (a file that can be executed), l, ? (another)."""

    kind: str
    target: bytes = b""
    size: int = 0

    @property
    def is_file(self):
        return self.kind in "fx"

    @property
    def mode(self):
        return {"f": 0o644, "l": 0o777}.get(self.kind, 0o755)


class Contents(NamedTuple):
    """What a package is made of."""

    entries: dict
    order: list
    source_of: Callable  # where the data of an entry lies
    moment: int  # the time of every entry


def shown(path):
    return path.decode("utf-8", "backslashreplace")


def survey(root):
    """All that lies below `root`: path -> Entry."""
    entries, folders = {}, [b""]
    while folders:
        folder = folders.pop()
        with os.scandir(os.path.join(root, folder)) as found:
            for item in found:
                path = os.path.join(folder, item.name)
                entries[path] = entry_of(item)
                if entries[path].kind == "d":
                    folders.append(path)
    return entries


def entry_of(item):
    status = item.stat(follow_symlinks=False)
    if stat.S_ISLNK(status.st_mode):
        return Entry("l", os.readlink(item.path))
    if stat.S_ISDIR(status.st_mode):
        return Entry("d")
    if stat.S_ISREG(status.st_mode):
        return Entry("x" if status.st_mode & stat.S_IXUSR else "f", size=status.st_size)
    return Entry("?")


def faults_of(root, entries):
    """Why the tree cannot be packed, a line each."""
    seen = {}
    for path in sorted(entries):
        yield from faults_of_entry(path, entries, seen)
    kind = entries[EXECUTABLE].kind if EXECUTABLE in entries else None
    if kind == "f":
        yield f"'{shown(EXECUTABLE)}' is not executable"
    elif kind != "x":
        yield f"there is no executable '{shown(EXECUTABLE)}'"
    if not entries[INFO].is_file or entries[RESOURCES].kind != "d":
        yield f"'{shown(INFO)}' is not a plain file in a plain folder"
    yield from faults_of_property_list(root, entries)
    yield from signatures_in_attributes(root, entries)


def faults_of_entry(path, entries, seen):
    """Those of a name and what it stands for; `seen` collects the names as a Mac compares them."""
    kind, target, _ = entries[path]
    try:
        text, target = path.decode("utf-8"), target.decode("utf-8")
    except UnicodeDecodeError:
        yield f"'{shown(path)}': the name, or what it links to, is not valid UTF-8"
        return
    if re.search(r"[\x00-\x1f\x7f\\]", text):
        yield f"'{ascii(text)[1:-1]}': the name holds a control character or a backslash"
    # Canonical caseless match: such names are one file on the user's disk.
    folded = unicodedata.normalize("NFD", unicodedata.normalize("NFD", text).casefold())
    if folded in seen:
        yield f"'{text}' and '{seen[folded]}' differ only by case or Unicode form"
    seen.setdefault(folded, text)
    if kind == "?":
        yield f"'{text}' is a device, a FIFO or a socket"
    if kind == "l" and leaves(path, entries):
        yield f"'{text}': the link to '{target}' leaves the tree"


def leaves(link, entries):
    """Whether the way that `link` leads steps out of the tree, even if it came back.

    A loop leads nowhere.
    """
    parts = link.split(b"/")
    here, ahead, followed = parts[:-1], parts[-1:], 0
    while ahead and followed <= 40:
        step = ahead.pop(0)
        if step == b"..":
            if not here:
                return True
            here.pop()
        elif step not in (b"", b"."):
            entry = entries.get(b"/".join(here + [step]))
            if entry is None or entry.kind != "l":
                here.append(step)
            elif entry.target.startswith(b"/"):
                return True
            else:
                ahead = entry.target.split(b"/") + ahead
                followed += 1
    return False


def faults_of_property_list(root, entries):
    """A Mac starts the file that the property list names, and nothing without one."""
    name = shown(PROPERTY_LIST)
    if PROPERTY_LIST not in entries or not entries[PROPERTY_LIST].is_file:
        yield f"there is no plain file '{name}', so a Mac could not start the client"
        return
    try:
        with open(os.path.join(root, PROPERTY_LIST), "rb") as file:
            executable = plistlib.load(file).get("CFBundleExecutable")
    except OSError:
        raise
    except Exception as error:  # the parsers behind plistlib have no common base
        yield f"'{name}' cannot be read: {error}"
        return
    if executable != EXECUTABLE_NAME:
        yield f"'{name}' names {executable!r} as CFBundleExecutable, not '{EXECUTABLE_NAME}'"


def signatures_in_attributes(root, entries):
    """A package holds no extended attributes, so such a signature would be lost."""
    if hasattr(os, "listxattr"):
        found = attributes_by_system_call(root, entries)
    elif shutil.which("xattr"):
        found = attributes_by_tool(root)
    else:
        found = ()
    for path, attribute in found:
        if SIGNATURE_ATTRIBUTE.match(attribute):
            yield f"'{path}' keeps a signature in the attribute '{attribute}', which would be lost"


def attributes_by_system_call(root, entries):
    for path in sorted(entries):
        try:
            names = os.listxattr(os.path.join(root, path), follow_symlinks=False)
        except OSError as error:
            # This file system has none, or the entry is one that only the package will have.
            if error.errno not in (errno.ENOTSUP, errno.ENOENT):
                raise
            continue
        for name in names:
            yield shown(path), name


def attributes_by_tool(root):
    """The tool of macOS, where Python has no call for it: a line "PATH: NAME" for each."""
    listed = subprocess.run(["xattr", "-rsv", root], stdout=subprocess.PIPE, check=True).stdout
    for line in shown(listed).splitlines():
        path, _, name = line.rpartition(": ")
        yield os.path.relpath(path, os.fsdecode(root)), name


def packed_info(root, entries, info):
    """The bytes of the package's INFO, where `info` is what it has to say.

    An INFO that the tree brings along may say nothing else. A signed tree must bring it, saying all
    of it, and it is packed as it is: a file that is added or changed breaks the signature.
    """
    is_signed = SIGNATURE in entries
    if INFO not in entries:
        if is_signed:
            raise Refusal(
                f"the client is signed but brings no '{shown(INFO)}', and adding it now would "
                "break the signature: add it before signing, with these lines:\n" + info.decode()
            )
        return info
    with open(os.path.join(root, INFO), "rb") as file:
        own = file.read()
    lines = [re.sub(rb"\s*=\s*", b"=", line.strip(), count=1) for line in own.splitlines()]
    said, expected = [line for line in lines if line and line[:1] not in b";#"], info.splitlines()
    for line in said:
        if line not in expected:
            raise Refusal(f"the tree's own INFO disagrees: '{shown(line)}'")
    if not is_signed:
        return info
    if said[:1] != expected[:1] or sorted(said) != sorted(expected):
        raise Refusal(
            "the client is signed, and its own INFO does not say just this: "
            "say it, and no more, before signing:\n" + info.decode()
        )
    return own


def packing_order(entries):
    """All paths, each folder before its contents; the executable second to last, INFO the last.

    The launcher's progress counts entries, and the bytes written should keep pace with it: a large
    file comes when as many entries before it as half its size is worth have been too small, and
    the largest comes first. The shares of bytes and entries then differ by half of the largest
    file's at most, and by the executable's, whose place is given.
    """
    last = [EXECUTABLE, INFO]
    paths = sorted(entries.keys() - set(last))
    total = sum(entries[path].size for path in paths)
    large = [path for path in paths if entries[path].size * len(paths) > total]
    large.sort(key=lambda path: (entries[path].size, path))
    small = [path for path in reversed(paths) if entries[path].size * len(paths) <= total]

    order, written = {}, 0
    while large or small:
        behind = total * len(order) - written * len(paths)
        is_due = large and 2 * behind >= entries[large[-1]].size * len(paths)
        path = (large if is_due or not small else small).pop()
        for slash in re.finditer(b"/", path):
            order.setdefault(path[: slash.start()])
        order.setdefault(path)
        written += entries[path].size
    return list(order) + last
