"""Does an export's work in Python, as a yardstick: export.py PLAN TARGET

Writes the target file and prints files, exported and skipped cameras of the types 1 to 5, a line each.
Expects extended fields in the order DirType, Direction.
"""

import re
import sys

COMMENT_STARTS = b'\\/:"<>|;!#'
DECIMAL = re.compile(rb"[-+]?(?:\d+\.\d*|\.\d+)(?:[EeDd][-+]?\d+)?")
D_TO_E = bytes.maketrans(b"Dd", b"Ee")


def read_plan(path):
    patterns, files = [], []
    with open(path, "rb") as plan:
        for line in plan:
            kind, number, *rest = line.rstrip(b"\n").split(b"\t")
            if kind == b"pattern":
                patterns.append((rest[0].decode(), int(number)))
            else:
                files.append((int(number), *rest))
    return patterns, files


def split_fields(line):
    """The fields, at most ten, and whether the quoting was sound."""
    # Nearly every line has one quoted field, the third.
    parts = line.split(b'"')
    if len(parts) == 3:
        head = parts[0].split(b",")
        if len(head) == 3 and not head[2].strip(b" "):
            tail = parts[2].split(b",")
            x, y, _ = head
            return [x.strip(b" "), y.strip(b" "), parts[1], *(field.strip(b" ") for field in tail[1:8])], True

    fields = []
    rest = line + b","
    while rest and len(fields) < 10:
        rest = rest.lstrip(b" ")
        if rest.startswith(b'"'):
            end = rest.find(b'"', 1) + 1
            if not end:
                return fields, False
            fields.append(rest[:end])
            rest = rest[end:].partition(b",")[2]
        else:
            field, _, rest = rest.partition(b",")
            if b'"' in field:
                return fields, False
            fields.append(field.rstrip(b" "))
    return fields, True


def type_of(name, patterns, list_type):
    try:
        name = name.decode().lower()
    except UnicodeDecodeError:
        name = name.decode("cp1252", "replace").lower()
    for pattern, number in patterns:
        if pattern in name:
            return number
    return list_type


def is_valid_position(x, y):
    if not DECIMAL.fullmatch(x) or not DECIMAL.fullmatch(y):
        return False
    longitude = float(x.translate(D_TO_E))
    latitude = float(y.translate(D_TO_E))
    return -180 <= longitude <= 180 and -90 <= latitude <= 90 and latitude != 0


def export(plan, target):
    patterns, files = read_plan(plan)
    type_texts = [b"%d" % number for number in range(6)]
    processed, exported, skipped = [0] * 6, [0] * 6, [0] * 6
    with open(target, "wb") as out:
        out.write(b"X,Y,TYPE,SPEED,DirType,Direction\r\n")
        for list_type, speed, path in files:
            processed[list_type] += 1
            with open(path, "rb") as cameras:
                for line in cameras:
                    line = line.removesuffix(b"\n").removesuffix(b"\r").strip(b" ")
                    if not line or line[0] in COMMENT_STARTS:
                        continue
                    fields, sound = split_fields(line)
                    if not sound or len(fields) not in (3, 5):
                        if len(fields) >= 2:
                            skipped[list_type] += 1
                        continue
                    x, y, name, dir_type, direction = fields if len(fields) == 5 else (*fields, b"0", b"0")
                    number = type_of(name, patterns, list_type)
                    if is_valid_position(x, y):
                        out.write(b",".join((x, y, type_texts[number], speed, dir_type, direction)) + b"\r\n")
                        exported[number] += 1
                    elif b"0.0" not in x or b"0.0" not in y:
                        skipped[number] += 1
    return zip(processed[1:], exported[1:], skipped[1:])


if __name__ == "__main__":
    for counters in export(*sys.argv[1:]):
        print(*counters)
