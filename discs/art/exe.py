"""Assembles Batymetr, the disc's Windows program, without a compiler.

The layout is that of Microsoft's "PE Format" document: a 32-bit image with one section that holds the import tables,
the texts and the code. MessageBoxW is there from Windows 95 on.
"""

import struct

BASE, SECTION_RVA, SECTION_FILE, ALIGN = 0x400000, 0x1000, 0x200, 0x200
TITLE = "Batymetr 2.0"
PAGES = [
    "Głębokość\tCiśnienie\tTemperatura\tŚwiatło\r\n\r\n"
    "0 m\t\t1 atm\t\t18 °C\t\tbiałe\r\n10 m\t\t2 atm\t\t17 °C\t\tzielonkawe\r\n40 m\t\t5 atm\t\t14 °C\t\tniebieskie\r\n"
    "100 m\t\t11 atm\t\t11 °C\t\tgranatowe\r\n200 m\t\t21 atm\t\t9 °C\t\tostatnie\r\n\r\nOK: schodzimy niżej.",
    "Głębokość\tCiśnienie\tTemperatura\tŚwiatło\r\n\r\n"
    "500 m\t\t51 atm\t\t7 °C\t\twłasne\r\n1000 m\t\t101 atm\t\t4 °C\t\twłasne\r\n4000 m\t\t401 atm\t\t2 °C\t\twłasne\r\n"
    "6000 m\t\t601 atm\t\t2 °C\t\twłasne\r\n10900 m\t\t1091 atm\t2 °C\t\tżadne\r\n\r\nSzyba wytrzyma. Zwykle wytrzymuje.",
]
MB_ICONINFORMATION = 0x40


class _Section:
    """The section's bytes; what is put there is told by its address in memory."""

    def __init__(self):
        self.data = bytearray()

    def put(self, raw, align=4):
        self.data += b"\0" * (-len(self.data) % align)
        place = SECTION_RVA + len(self.data)
        self.data += raw
        return place


def _import_names(section, functions):
    """Hint and name of each function, then the table of their addresses; gives the table's bytes."""
    return b"".join(struct.pack("<I", section.put(b"\0\0" + name + b"\0", 2)) for name in functions) + b"\0" * 4


def image():
    """The program's file."""
    section = _Section()
    descriptors, slots = b"", {}
    for library, functions in ((b"USER32.dll", [b"MessageBoxW"]), (b"KERNEL32.dll", [b"ExitProcess"])):
        names = _import_names(section, functions)
        lookup, addresses = section.put(names), section.put(names)
        descriptors += struct.pack("<5I", lookup, 0, 0, section.put(library + b"\0"), addresses)
        slots.update({name: BASE + addresses + 4 * k for k, name in enumerate(functions)})
    imports = section.put(descriptors + b"\0" * 20)
    title = BASE + section.put((TITLE + "\0").encode("utf-16le"))
    code = b""
    for page in PAGES:
        text = BASE + section.put((page + "\0").encode("utf-16le"))
        # push type; push title; push text; push 0 (no owner); call [MessageBoxW]
        code += struct.pack(
            "<BIBIBIBBBBI",
            0x68,
            MB_ICONINFORMATION,
            0x68,
            title,
            0x68,
            text,
            0x6A,
            0,
            0xFF,
            0x15,
            slots[b"MessageBoxW"],
        )
    code += struct.pack("<BBBBI", 0x6A, 0, 0xFF, 0x15, slots[b"ExitProcess"])
    entry = section.put(code, 16)
    size = len(section.data)
    raw = -(-size // ALIGN) * ALIGN
    dos = b"MZ" + b"\0" * 58 + struct.pack("<I", 64)
    coff = b"PE\0\0" + struct.pack("<HHIIIHH", 0x14C, 1, 0, 0, 0, 224, 0x103)
    directories = [(0, 0)] * 16
    directories[1] = (imports, len(descriptors) + 20)
    optional = struct.pack(
        "<HBBIIIIIIIIIHHHHHHIIIIHHIIIIII",
        0x10B,
        6,
        0,
        raw,
        0,
        0,
        entry,
        SECTION_RVA,
        SECTION_RVA,
        BASE,
        0x1000,
        ALIGN,
        4,
        0,
        1,
        0,
        4,
        0,
        0,
        0x1000 + -(-size // 0x1000) * 0x1000,
        SECTION_FILE,
        0,
        2,
        0,
        0x100000,
        0x1000,
        0x100000,
        0x1000,
        0,
        16,
    )
    optional += b"".join(struct.pack("<II", *pair) for pair in directories)
    table = struct.pack("<8sIIIIIIHHI", b".text", size, SECTION_RVA, raw, SECTION_FILE, 0, 0, 0, 0, 0xE0000060)
    head = dos + coff + optional + table
    return head + b"\0" * (SECTION_FILE - len(head)) + bytes(section.data) + b"\0" * (raw - size)
