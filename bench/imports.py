"""Does the work of an import in Python, as a yardstick: imports.py ov2|txt TARGET_FOLDER SOURCE...

Writes the camera files into the target folder, with extended fields in the order DirType, Direction.
Expects sound OV2 files; in TXT files speeds in plain digits without leading zeros, and heading lines and records
wherever a line has four or six fields.
"""

import struct
import sys
from pathlib import Path

HEAD = b"; Generic Ascii file created by Halvenmoor. (Extended with DirType and Direction).\r\n\r\n"
TYPE_WORDS = {b"1": b"Fixed", b"2": b"RedSpeed", b"3": b"RedLight", b"4": b"Section", b"5": b"Mobile"}
POINT = struct.Struct("<iii")
SKIPPER_SIZE = 21


def degrees(value):
    whole, fraction = divmod(abs(value), 100000)
    return b"%s%d.%05d" % (b"-" if value < 0 else b"", whole, fraction)


def clean_name(name):
    name = name[:-1].strip(b" ").replace(b",", b"; ").replace(b'"', b"'")
    while b"  " in name:
        name = name.replace(b"  ", b" ")
    return name


def import_ov2(target, sources):
    for source in sources:
        data = source.read_bytes()
        lines, offset = [HEAD], 0
        while offset < len(data):
            if data[offset] == 1:
                offset += SKIPPER_SIZE
                continue
            length, x, y = POINT.unpack_from(data, offset + 1)
            if data[offset] != 0:
                name = clean_name(data[offset + 13:offset + length])
                lines.append(b'%s, %s, "%s", 0, 0\r\n' % (degrees(x), degrees(y), name))
            offset += length
        (target / f"{source.stem}.asc").write_bytes(b"".join(lines))


def import_txt(target, sources):
    files = {}
    for source in sources:
        with open(source, "rb") as lines:
            for line in lines:
                fields = [field.strip(b" ") for field in line.rstrip(b"\r\n").split(b",")]
                if len(fields) not in (4, 6) or fields[2] not in TYPE_WORDS:
                    continue
                x, y, kind, speed, dir_type, direction = fields if len(fields) == 6 else (*fields, b"0", b"0")
                if kind == b"3":
                    speed = b"0"
                if dir_type == b"0":
                    direction = b"0"
                record = b'%s, %s, "%s Camera", %s, %s\r\n' % (x, y, TYPE_WORDS[kind], dir_type, direction)
                files.setdefault((kind, speed), [HEAD]).append(record)
    for (kind, speed), lines in files.items():
        name = f"{TYPE_WORDS[kind].decode()}_Camera_{int(speed):03d}.asc"
        (target / name).write_bytes(b"".join(lines))


if __name__ == "__main__":
    run = {"ov2": import_ov2, "txt": import_txt}[sys.argv[1]]
    run(Path(sys.argv[2]), [Path(source) for source in sys.argv[3:]])
