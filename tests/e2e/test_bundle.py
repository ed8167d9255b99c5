"""The bundle: whether it is closed, what its property list says, how scripts/ship signs it."""

import filecmp
import pathlib
import plistlib
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

from support import BUNDLE, MAKE_PACKAGE, READER, Case, tree

TREE = pathlib.Path(MAKE_PACKAGE).parent.parent
FRAMEWORKS = BUNDLE / "Contents/Frameworks"
LAUNCHER = BUNDLE / "Contents/MacOS/lumivo-launcher"
# What every Linux has, whatever else is installed.
GLIBC = re.compile(r"(ld-linux-.*|lib(c|m|dl|pthread|rt|resolv))\.so\.\d")


def dynamic_section(path):
    """The entries of an ELF file that say what it loads, and from where: (kind, value) pairs."""
    output = subprocess.run(["readelf", "-d", path], check=True, capture_output=True, text=True)
    return re.findall(r"\((NEEDED|RPATH|RUNPATH)\).*\[(.*)\]", output.stdout)


class Libraries(Case):
    def test_every_library_that_is_loaded_lies_in_the_bundle(self):
        here = {path.name for path in FRAMEWORKS.iterdir()}
        for path in [LAUNCHER, *FRAMEWORKS.rglob("*.so*")]:
            with self.subTest(path.relative_to(BUNDLE)):
                entries = dynamic_section(path)
                needed = {name for kind, name in entries if kind == "NEEDED"}
                self.assertEqual(
                    {name for name in needed - here if not GLIBC.fullmatch(name)}, set()
                )
                # A path of its own would hide the executable's, which holds for everything else.
                folders = [entry for entry in entries if entry[0] != "NEEDED"]
                expected = [("RPATH", "$ORIGIN/../Frameworks")] if path == LAUNCHER else []
                self.assertEqual(folders, expected)

    def test_qt_takes_its_plugins_from_nowhere_else(self):
        (self.bundle / "Contents/Frameworks/plugins").rename(self.folder / "plugins")
        _, errors = self.start().communicate(timeout=60)
        self.assertIn("no Qt platform plugin could be initialized", errors)

    def test_packages_are_read_back_by_the_libarchive_that_ships(self):
        loaded = subprocess.run(["ldd", READER], check=True, capture_output=True, text=True).stdout
        name, path = re.search(r"(libarchive\S+) => (\S+)", loaded).groups()
        self.assertTrue(filecmp.cmp(path, FRAMEWORKS / name, shallow=False))


class PropertyList(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.properties = plistlib.loads((BUNDLE / "Contents/Info.plist").read_bytes())

    def test_it_names_the_languages_of_the_catalogs(self):
        catalogs = (TREE / "ui-client/launcher/texts").glob("*.ts")
        locales = {xml.etree.ElementTree.parse(path).getroot().get("language") for path in catalogs}
        # macOS tells Chinese by its script, Portuguese by its country, and the others by nothing.
        special = {"zh_CN": "zh-Hans", "zh_TW": "zh-Hant", "pt_BR": "pt-BR", "pt_PT": "pt-PT"}
        expected = [special.get(locale, locale.split("_")[0]) for locale in locales]
        self.assertCountEqual(self.properties["CFBundleLocalizations"], expected)
        self.assertTrue(self.properties["CFBundleAllowMixedLocalizations"])


# Each stands in for the tool of its name, and notes how it was called. cmake installs a small
# bundle, hdiutil makes a file; one that the test names fails, and what macOS lacks always does.
STAND_IN = """#!/bin/sh
name=${0##*/}
case $name in
  uname) [ "$1" = -m ] && echo arm64 || echo Darwin; exit ;;
  getconf) echo 8; exit ;;
  brew) [ "$1" = --prefix ] && echo "/opt/$2"; exit 0 ;;
  nproc | realpath | dpkg-query | apt-get) echo "$name, which macOS lacks" >>"$CALLS"; exit 127 ;;
esac
echo "$name $*" >>"$CALLS"
[ "$name $1" != "$FAILING" ] || exit 1
case "$name $1" in
  "cmake --preset") mkdir -p "$4" && echo "$CMAKE_PREFIX_PATH" >"$CALLS.prefix" ;;
  "cmake --install")
    app=$4/Lumivo.app
    mkdir -p "$app/log" "$app/Contents/MacOS" "$app/Contents/Frameworks/plugins/platforms"
    mkdir -p "$app/Contents/Frameworks/Qt.framework/Versions/5"
    echo >"$app/Contents/MacOS/lumivo-launcher"
    echo >"$app/Contents/Frameworks/plugins/platforms/libq.dylib"
    echo >"$app/Contents/Frameworks/Qt.framework/Versions/5/Qt" ;;
  "hdiutil create") for image; do :; done; ls "$5" >"$image" ;;
esac
"""
TOOLS = "uname getconf brew nproc realpath dpkg-query apt-get cmake codesign hdiutil xcrun spctl"
SIGN = "codesign --force --options runtime --timestamp --sign Us NEW/Lumivo.app"
VERIFY = "codesign --verify --deep --strict --verbose=2 NEW/Lumivo.app"
IMAGE = "hdiutil create -volname Lumivo Drive -srcfolder NEW -format UDZO -ov DMG"
SIGNED = [
    SIGN + "/Contents/Frameworks/plugins/platforms/libq.dylib",
    SIGN + "/Contents/Frameworks/Qt.framework",
    SIGN,
    VERIFY,
    IMAGE,
    "codesign --timestamp --sign Us DMG",
]
NOTARIZED = [
    "xcrun notarytool submit DMG --keychain-profile Keys --wait",
    "xcrun stapler staple DMG",
    "spctl --assess --type open --context context:primary-signature --verbose=2 DMG",
]


class Ship(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory(prefix="lumivo-ship-")
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name).resolve()
        for name in ("ship", "deps"):
            script = self.folder / "scripts" / name
            script.parent.mkdir(exist_ok=True)
            script.write_bytes((TREE / "scripts" / name).read_bytes())
            script.chmod(0o755)
        (self.folder / "tools").mkdir()
        for name in TOOLS.split():
            (self.folder / "tools" / name).write_text(STAND_IN)
            (self.folder / "tools" / name).chmod(0o755)
        (self.folder / "Client.app").mkdir()

    def ship(self, failing="", **settings):
        """Runs scripts/ship as on a Mac; returns its status, and what it called but for cmake."""
        calls = self.folder / "calls"
        calls.write_text("")
        environment = {"PATH": f"{self.folder}/tools:/usr/bin:/bin", "CALLS": str(calls)}
        done = subprocess.run(
            ["scripts/ship", "Client.app", "3500", "shipped"],
            cwd=self.folder,
            env={**environment, "FAILING": failing, **settings},
            stdout=subprocess.DEVNULL,  # what went wrong stays to be seen
            check=False,
        )
        text = re.sub(rf"{self.folder}/shipped\.\w+", "NEW", calls.read_text())
        text = text.replace(f"{self.folder}/build/ship/Lumivo-3500-Darwin-arm64.dmg", "DMG")
        return done.returncode, [line for line in text.splitlines() if line[:5] != "cmake"]

    def test_what_is_signed_and_in_which_order(self):
        identity = {"LUMIVO_CODESIGN_IDENTITY": "Us"}
        profile = {"LUMIVO_NOTARY_PROFILE": "Keys"}
        cases = [({}, [IMAGE]), (identity, SIGNED), ({**identity, **profile}, SIGNED + NOTARIZED)]
        for settings, expected in cases:
            with self.subTest(settings):
                status, calls = self.ship(**settings)
                self.assertEqual(status, 0)
                self.assertEqual(calls, expected)
                self.assertEqual((self.folder / "shipped/Lumivo.app/log").exists(), not settings)
                image = self.folder / "shipped/Lumivo-3500-Darwin-arm64.dmg"
                self.assertEqual(image.read_text(), "Lumivo.app\n")
        prefixes = (self.folder / "calls.prefix").read_text()
        self.assertEqual(prefixes, "/opt/qt@5:/opt/libarchive:/opt/icu4c\n")

    def test_what_fails_ends_it_and_leaves_what_was_shipped_before(self):
        self.assertEqual(self.ship()[0], 0)
        before = tree(self.folder / "shipped")
        settings = {"LUMIVO_CODESIGN_IDENTITY": "Us", "LUMIVO_NOTARY_PROFILE": "Keys"}
        for failing in (
            "codesign --force",
            "codesign --verify",
            "codesign --timestamp",
            "hdiutil create",
            "xcrun notarytool",
            "xcrun stapler",
            "spctl --assess",
        ):
            with self.subTest(failing):
                status, calls = self.ship(failing, **settings)
                self.assertEqual(status, 1)
                self.assertTrue(calls[-1].startswith(failing), "nothing is done after it")
                self.assertFalse(
                    calls[:-1] and calls[-2].startswith(failing), "not even more of it"
                )
                self.assertEqual(tree(self.folder / "shipped"), before)
                self.assertEqual(list(self.folder.glob("shipped.*")), [])

    def test_nothing_is_notarized_unsigned(self):
        self.assertEqual(self.ship(LUMIVO_NOTARY_PROFILE="Keys"), (1, []))
