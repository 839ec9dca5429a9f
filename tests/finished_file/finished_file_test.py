"""Reads the finished TamberSetup.exe and checks what it promises Windows and its users.

Usage: finished_file_test.py EXE PACKAGE SOURCE_FOLDER VERSION
"""

import json
import sys
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

import pefile

EXE, PACKAGE, SOURCE = (Path(argument) for argument in sys.argv[1:4])
VERSION = sys.argv[4]

# Windows maps these from its own folder whatever lies beside the program; all others are loaded on demand.
SAFE_IMPORTS = {"kernel32.dll", "user32.dll", "gdi32.dll", "advapi32.dll", "shell32.dll", "ole32.dll",
                "oleaut32.dll", "msvcrt.dll", "shlwapi.dll"}
EXPORTS = {b"NvOptimusEnablement", b"AmdPowerXpressRequestHighPerformance"}
ICON_SIZES = {16, 20, 24, 32, 40, 48, 64, 256}
LARGEST_OWN_SIZE = 750_000
MANIFEST_NAMES = {
    "asm1": "urn:schemas-microsoft-com:asm.v1", "asm3": "urn:schemas-microsoft-com:asm.v3",
    "compat": "urn:schemas-microsoft-com:compatibility.v1",
    "ws2005": "http://schemas.microsoft.com/SMI/2005/WindowsSettings",
    "ws2016": "http://schemas.microsoft.com/SMI/2016/WindowsSettings",
}


def resources(pe):
    """The resources as {(type, id): bytes}; every one of them exists in a single language."""
    found = {}
    for kind in pe.DIRECTORY_ENTRY_RESOURCE.entries:
        for name in kind.directory.entries:
            (language,) = name.directory.entries
            entry = language.data.struct
            found[(kind.id, name.id)] = pe.get_data(entry.OffsetToData, entry.Size)
    return found


class FinishedFile(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.bytes = EXE.read_bytes()
        cls.pe = pefile.PE(data=cls.bytes)
        cls.resources = resources(cls.pe)

    def kinds(self, name):
        kind = pefile.RESOURCE_TYPE[name]
        return {number: data for (k, number), data in self.resources.items() if k == kind}

    def test_is_a_64_bit_gui_program_with_every_protection(self):
        header = self.pe.OPTIONAL_HEADER
        self.assertEqual(self.pe.FILE_HEADER.Machine, pefile.MACHINE_TYPE["IMAGE_FILE_MACHINE_AMD64"])
        self.assertEqual(header.Subsystem, pefile.SUBSYSTEM_TYPE["IMAGE_SUBSYSTEM_WINDOWS_GUI"])
        self.assertTrue(header.IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE)
        self.assertTrue(header.IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA)
        self.assertTrue(header.IMAGE_DLLCHARACTERISTICS_NX_COMPAT)
        # Without relocations the flags above are an empty promise.
        self.assertFalse(self.pe.FILE_HEADER.IMAGE_FILE_RELOCS_STRIPPED)
        self.assertGreater(len(self.pe.DIRECTORY_ENTRY_BASERELOC), 0)
        self.assertEqual([s.Name for s in self.pe.sections
                          if s.IMAGE_SCN_MEM_WRITE and s.IMAGE_SCN_MEM_EXECUTE], [])

    def test_tells_nothing_about_where_and_when_it_was_built(self):
        self.assertEqual(self.pe.FILE_HEADER.TimeDateStamp, 0)
        self.assertEqual(self.pe.FILE_HEADER.NumberOfSymbols, 0)
        self.assertFalse(any(section.Name.startswith(b".debug") for section in self.pe.sections))
        for path in (str(SOURCE), str(Path.home()) + "/", "/usr/lib/gcc"):
            for encoding in ("utf-8", "utf-16-le"):
                self.assertNotIn(path.encode(encoding), self.bytes, path)

    def test_imports_only_what_cannot_be_planted(self):
        imported = {entry.dll.decode().lower() for entry in self.pe.DIRECTORY_ENTRY_IMPORT}
        self.assertIn("kernel32.dll", imported)
        self.assertLessEqual(imported, SAFE_IMPORTS)
        self.assertFalse(hasattr(self.pe, "DIRECTORY_ENTRY_DELAY_IMPORT"))

    def test_exports_what_hybrid_graphics_drivers_look_for(self):
        symbols = self.pe.DIRECTORY_ENTRY_EXPORT.symbols
        self.assertEqual({symbol.name for symbol in symbols}, EXPORTS)
        for symbol in symbols:
            self.assertEqual(self.pe.get_dword_at_rva(symbol.address), 1, symbol.name)

    def test_carries_the_package_and_the_skins_as_they_are(self):
        data = self.kinds("RT_RCDATA")
        self.assertEqual(set(data), {3001, 3002})
        self.assertEqual(data[3001], PACKAGE.read_bytes())
        self.assertEqual(data[3002], (SOURCE / "resources/00-vela-default-skins.json").read_bytes())
        self.assertIn("skins", json.loads(data[3002]))

    def test_is_small_without_the_package(self):
        self.assertLessEqual(len(self.bytes) - PACKAGE.stat().st_size, LARGEST_OWN_SIZE)

    def test_manifest_asks_for_what_the_program_needs(self):
        manifests = self.kinds("RT_MANIFEST")
        self.assertEqual(set(manifests), {1})
        root = xml.fromstring(manifests[1])

        def only(path):
            (element,) = root.findall(path, MANIFEST_NAMES)
            return element

        self.assertEqual(only("asm1:assemblyIdentity").get("version"), f"{VERSION}.0")
        level = only(".//asm3:requestedExecutionLevel")
        self.assertEqual((level.get("level"), level.get("uiAccess")), ("requireAdministrator", "false"))
        self.assertEqual(only(".//ws2016:dpiAwareness").text, "PerMonitorV2")
        self.assertEqual(only(".//ws2005:dpiAware").text, "true/pm")
        self.assertEqual(only(".//ws2016:longPathAware").text, "true")
        controls = only(".//asm1:dependentAssembly/asm1:assemblyIdentity")
        self.assertEqual((controls.get("name"), controls.get("version")),
                         ("Microsoft.Windows.Common-Controls", "6.0.0.0"))
        # Windows 10 and 11.
        self.assertEqual(only(".//compat:supportedOS").get("Id"), "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}")

    def test_version_block_names_the_product(self):
        (fixed,) = self.pe.VS_FIXEDFILEINFO
        for most, least in ((fixed.FileVersionMS, fixed.FileVersionLS),
                            (fixed.ProductVersionMS, fixed.ProductVersionLS)):
            numbers = (most >> 16, most & 0xFFFF, least >> 16, least & 0xFFFF)
            self.assertEqual(".".join(map(str, numbers)), f"{VERSION}.0")
        strings = {key.decode(): value.decode() for info in self.pe.FileInfo[0] if info.Key == b"StringFileInfo"
                   for table in info.StringTable for key, value in table.entries.items()}
        self.assertEqual({key: strings[key] for key in ("ProductName", "ProductVersion", "FileVersion",
                                                        "OriginalFilename", "FileDescription")},
                         {"ProductName": "Tamber", "ProductVersion": VERSION, "FileVersion": VERSION,
                          "OriginalFilename": "TamberSetup.exe", "FileDescription": "Tamber Setup"})

    def test_icon_has_every_size_in_full_colour(self):
        (group,) = self.kinds("RT_GROUP_ICON").values()
        images = self.kinds("RT_ICON")
        sizes = set()
        for at in range(6, len(group), 14):
            width, height = group[at] or 256, group[at + 1] or 256
            bits = int.from_bytes(group[at + 6:at + 8], "little")
            image = images[int.from_bytes(group[at + 12:at + 14], "little")]
            self.assertEqual((width, bits), (height, 32))
            # Windows expects the large one compressed; of the others it is a matter of the file's size.
            self.assertEqual(image.startswith(b"\x89PNG"), width >= 40)
            sizes.add(width)
        self.assertEqual(sizes, ICON_SIZES)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
