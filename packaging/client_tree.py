"""A client's bundle tree: what lies in it, and why it may not be packed."""

import os
import re
import stat
import unicodedata

EXECUTABLE = b"Contents/MacOS/lumivo-drive-ui"
RESOURCES = b"Contents/Resources"
INFO = RESOURCES + b"/INFO"


class Refusal(Exception):
    """The package cannot be made; the text says why."""


def shown(path):
    return path.decode("utf-8", "backslashreplace")


def survey(root):
    """All that lies below `root`: path -> (kind, link text); the kinds are d, f, x (executable file), l, ? (other)."""
    entries, folders = {}, [b""]
    while folders:
        folder = folders.pop()
        with os.scandir(os.path.join(root, folder)) as found:
            for item in found:
                path, mode = (
                    os.path.join(folder, item.name),
                    item.stat(follow_symlinks=False).st_mode,
                )
                if stat.S_ISLNK(mode):
                    entries[path] = ("l", os.readlink(item.path))
                elif stat.S_ISDIR(mode):
                    entries[path] = ("d", None)
                    folders.append(path)
                elif stat.S_ISREG(mode):
                    entries[path] = ("x" if mode & stat.S_IXUSR else "f", None)
                else:
                    entries[path] = ("?", None)
    return entries


def leaves(link, entries):
    """Whether following `link` steps out of the tree on its way, even if it came back. A loop leads nowhere."""
    parts = link.split(b"/")
    here, ahead, followed = parts[:-1], parts[-1:], 0
    while ahead and followed <= 40:
        step = ahead.pop(0)
        if step == b"..":
            if not here:
                return True
            here.pop()
        elif step not in (b"", b"."):
            kind, target = entries.get(b"/".join(here + [step]), (None, None))
            if kind != "l":
                here.append(step)
            elif target.startswith(b"/"):
                return True
            else:
                ahead = target.split(b"/") + ahead
                followed += 1
    return False


def faults_of(entries):
    """Why the tree cannot be packed, a line each."""
    seen = {}
    for path in sorted(entries):
        kind, target = entries[path]
        try:
            text, target = path.decode("utf-8"), (target or b"").decode("utf-8")
        except UnicodeDecodeError:
            yield f"'{shown(path)}': the name, or what it links to, is not valid UTF-8"
            continue
        if re.search(r"[\x00-\x1f\x7f\\]", text):
            yield f"'{ascii(text)[1:-1]}': the name holds a control character or a backslash"
        # Canonical caseless match: such names are one file on the user's disc.
        folded = unicodedata.normalize("NFD", unicodedata.normalize("NFD", text).casefold())
        if folded in seen:
            yield f"'{text}' and '{seen[folded]}' differ only by case or Unicode form"
        seen.setdefault(folded, text)
        if kind == "?":
            yield f"'{text}' is a device, a FIFO or a socket"
        if kind == "l" and leaves(path, entries):
            yield f"'{text}': the link to '{target}' leaves the tree"
    kind = entries.get(EXECUTABLE, (None,))[0]
    if kind == "f":
        yield f"'{shown(EXECUTABLE)}' is not executable"
    elif kind != "x":
        yield f"there is no executable '{shown(EXECUTABLE)}'"
    if entries[INFO][0] not in "fx" or entries[RESOURCES][0] != "d":
        yield f"'{shown(INFO)}' is not a plain file in a plain folder"


def check_info(root, info):
    """An INFO that the tree brings along may say nothing but what the package's INFO will say."""
    with open(os.path.join(root, INFO), "rb") as file:
        lines = [
            re.sub(rb"\s*=\s*", b"=", line.strip(), count=1) for line in file.read().splitlines()
        ]
    said = [line for line in lines if line and line[:1] not in b";#"]
    for line in said:
        if line not in info.splitlines():
            raise Refusal(f"the tree's own INFO disagrees: '{shown(line)}'")
