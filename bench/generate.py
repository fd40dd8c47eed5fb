"""Makes program folders full of camera files or import sources for the benchmark, the same ones on every machine.

A set is a folder with `program` in it, a complete program folder. A set for exports also has `plan.tsv`, what the
baseline scripts are told instead of working it out (UTF-8, one entry a line):

    pattern<TAB>TYPE<TAB>TEXT       a search pattern, trimmed and in small letters, types in ascending order
    file<TAB>TYPE<TAB>SPEED<TAB>PATH    a camera file, in the order in which an export visits it
"""

import hashlib
import itertools
import random
import shutil
import struct
from pathlib import Path

TYPE_WORDS = ["Fixed", "RedSpeed", "RedLight", "Section", "Mobile"]
NAME_PATTERNS = ["Fixed*", "starr*.asc", "REDSPEED ?*", "*rot+v*", "Red[Ll]ight*", "ampel*", "section*#*", "*schnitt*",
                 "MOBILE*", "*laser*.asc"]
FOLDERS = ["asc", "txt", "lang", "import/ov2", "import/txt",
           "demo/asc", "demo/asc_demo", "demo/txt_demo", "demo/import/ov2", "demo/import/txt"]
# The end of a file name, and the speed that an export reads from it.
SPEED_ENDS = [(" 50", "50"), ("_120mph", "120"), ("-30", "30"), (" 050", "50"), ("_70kmh", "70"), (" 100", "100"),
              (" mobil", "0"), ("_60MPH", "60")]
# Pattern number i belongs to type i % 5 + 1. Beyond ASCII, letters are small in patterns and names alike, so that the
# baselines may fold single bytes.
KEYWORDS = ["Fixed", "red speed", "Red Light", "Section", "Mobile", "starrer Blitzer", "tempo rood", "Ampel", "average",
            "Flitser", "Starenkasten", "Rotlicht Tempo", "traffic light", "Streckenradar", "Lasergerät", "Radar Fixe",
            "feu vitesse", "semáforo", "tratto", "Trailer"]
SYLLABLES = "al an bach berg bir bor brück burg chen den dor ein er feld fur gen ham hau heim hol in kir lan lau " \
            "len lin mar mün nau neu nor ober ost pol ra rei ros see stein tal ul un val wei wer zell zü".split()
COMMENT = "; Generic Ascii file created by Halvenmoor. (Extended with DirType and Direction)."
# No ordinary records: comments, wrong numbers of fields, bad quoting, positions at and beyond every limit.
ODD_LINES = [
    "", "   ", "# closed", "  ; 5.5, 50.25, commented out", '"5.5", 50.25, "quoted first", 1, 90', "no comma",
    "5.5, 50.25", '5.5, 50.25, "four", 1', "1.5,2.5,3,4,5,6,7,8,9,10,11,12", '5.5, 50.25, "never closed, 1, 90',
    '5.5, "50.25', '5.5, 50.25, in the "middle", 1, 90', '5, 50.25, "whole X", 1, 90', '5.5, 50, "whole Y", 1, 90',
    '0.0, 0.0, "nowhere", 0, 0', '10.05, 0.0, "holds zero", 0, 0', '200.0, 50.25, "Mobile too far", 1, 90',
    '5.5, 0.0, "on the equator", 1, 90', '-180.0, -90.0, "corner", 1, 90', '5.5, 90.01, "past the pole"',
    'abc.d, 50.25, "no number", 1, 90', '1.2.3, 50.25, "two points", 1, 90', '+.5, 5., "short", 1, 90',
    '1.5E1, 4.5d+1, "exponents", 1, 90', '5.5e, 50.25, "no exponent", 1, 90', '., 50.25, "only a point", 1, 90',
    '5.5, 50.25, "Ampel" left over, 1, 90', "5.5, 50.25, Plain Section name, 1, 90", "5.5, 50.25, plain",
    '   5.50 ,50.25,"Trailer",2 , 180   ', '5.5, 50.25, "quoted end", 1, "9,0"', "5.5, 50.25, , 1, 90", "5.5,50.25,"]

ODD_NAMES = [b"", b"   ", b",", b'the "old" mill', b" a,b, c,", b"two  blanks     five", b"Gro\xdfe Allee"]
# Neither records nor bad lines, but for the last two.
ODD_TXT_LINES = ["", "   ", "no comma", "5.5,50.25,1", "5.5,50.25,1,50,1", "5.5,50.25,1,50,1,90,7", "x,y,type,speed",
                 "  X , Y , Type , Speed , DirType , Direction ", "+5.5,,1,50", "not a number,50.25, 5 ,30,1,90 "]


def program_set(root, records, files, patterns, seed=1):
    """Returns the folder of the set with these sizes below root; makes it if it is not there yet."""
    return made_once(root, f"records{records}-files{files}-patterns{patterns}-seed{seed}",
                     lambda new, ready: write_set(new / "program", ready / "program", records, files, patterns, seed))


def import_set(root, kind, records, files, speeds, seed=1):
    """The same for a set of sources of the kind "ov2" or "txt"; only TXT sources have speeds."""
    return made_once(root, f"{kind}{records}-files{files}-speeds{speeds}-seed{seed}",
                     lambda new, _: write_sources(new / "program", kind, records, files, speeds, seed))


def made_once(root, name, write):
    version = hashlib.sha256(Path(__file__).read_bytes()).hexdigest()[:8]
    for stale in root.glob("*"):
        if stale.name != version:
            shutil.rmtree(stale)
    ready = root / version / name
    if not ready.exists():
        unfinished = ready.with_suffix(".unfinished")
        shutil.rmtree(unfinished, ignore_errors=True)
        write(unfinished, ready)
        unfinished.rename(ready)
    return ready


def make_folders(program):
    for folder in FOLDERS:
        (program / folder).mkdir(parents=True)


def write_set(program, final_program, records, files, pattern_count, seed):
    make_folders(program)
    vocabulary = make_vocabulary(random.Random(seed))
    patterns = [(KEYWORDS + vocabulary)[i::5] for i in range(5)]
    patterns = [of_type[:pattern_count // 5] for of_type in patterns]
    (program / "Settings.ini").write_text(settings_text(patterns), encoding="utf-8")

    names = file_names(random.Random(seed + 1), files)
    lines = record_lines(random.Random(seed + 2), vocabulary)
    for number, (name, _, _) in enumerate(names):
        count = records * (number + 1) // files - records * number // files
        line_end = "\n" if number % 10 == 9 else "\r\n"
        text = line_end.join([COMMENT, "", *itertools.islice(lines, count)])
        text += "" if number % 7 == 3 else line_end
        (program / "asc" / f"{name}.asc").write_bytes(text.encode("latin-1"))

    plan = [f"pattern\t{kind}\t{text.strip().lower()}\n"
            for kind, of_type in enumerate(patterns, 1) for text in of_type]
    plan += [f"file\t{kind}\t{speed}\t{final_program}/asc/{name}.asc\n"
             for name, kind, speed in sorted(names, key=lambda file: (file[1], file[0].lower()))]
    (program.parent / "plan.tsv").write_text("".join(plan), encoding="utf-8")


def settings_text(patterns):
    text = ["; Made for the benchmark", "[Units]", "mph, km/h, kmh", "[Settings]", "SourceStructure = 2"]
    for kind, word in enumerate(TYPE_WORDS):
        text += [f"[Type{kind + 1}]", *NAME_PATTERNS[2 * kind:2 * kind + 2]]
        text += [f"[{word}]", *(", ".join(patterns[kind][i:i + 3]) for i in range(0, len(patterns[kind]), 3))]
    return "\n".join(text) + "\n"


def make_vocabulary(rng):
    words = {"".join(rng.choices(SYLLABLES, k=rng.randint(2, 3))): None for _ in range(3000)}
    return [word.capitalize() for word in words if len(word) > 5]


def file_names(rng, count):
    """(name, type, speed) of each file. Case folded up or down, the names sort alike."""
    result = []
    for number in range(count):
        kind = rng.choices(range(1, 6), weights=[5, 1, 2, 1, 3])[0]
        word = rng.choice([str, str.upper, str.lower])(TYPE_WORDS[kind - 1])
        end, speed = rng.choice(SPEED_ENDS)
        result.append((f"{word} {rng.choice(['Nord', 'Ost', 'Sud', 'West'])} {number:05d}{end}", kind, speed))
    return result


def record_lines(rng, vocabulary):
    """Endless lines of camera files without their ends, about 73 bytes each, as bytes in Latin-1 clothes."""
    tails = [f', "{camera_name(rng, vocabulary)}"' + ("" if rng.random() < 0.1 else
             f", {rng.randint(0, 2)}, {rng.randrange(0, 360, 5)}") for _ in range(50000)]
    odd_lines = [line.encode().decode("latin-1") for line in ODD_LINES]
    while True:
        for tail in rng.choices(tails, k=1000):
            if rng.random() < 0.04:
                yield rng.choice(odd_lines)
            else:
                yield f"{rng.random() * 40 - 10:.5f}, {rng.random() * 35 + 35:.5f}{tail}"


def camera_name(rng, vocabulary):
    if rng.random() < 0.02:
        return f"Große Allee {rng.randint(1, 999)}".encode("cp1252").decode("latin-1")  # written on an old machine
    keyword = rng.choice([str, str.lower, str.upper])(rng.choice(KEYWORDS)) + " " if rng.random() < 0.25 else ""
    keyword = keyword.replace("Ä", "ä").replace("Á", "á")
    place = rng.choice([", ", " ", "/"]).join(rng.choices(vocabulary, k=rng.randint(2, 4)))
    name = f"{keyword}{place} {rng.choice('ABLN')}{rng.randint(1, 999)} km {rng.randint(0, 4000) / 10}"
    return name.encode().decode("latin-1")


def write_sources(program, kind, records, files, speeds, seed):
    make_folders(program)
    (program / "Settings.ini").write_text(settings_text([[]] * 5), encoding="utf-8")
    rng = random.Random(seed)
    entries = ov2_points(rng) if kind == "ov2" else txt_lines(rng, speeds)
    for number in range(files):
        count = records * (number + 1) // files - records * number // files
        part = itertools.islice(entries, count)
        data = b"".join(part) if kind == "ov2" else txt_source(number, part)
        (program / "import" / kind / f"Source {number:02d}.{kind}").write_bytes(data)


def ov2_points(rng):
    """Endless point records, now and then behind a deleted or a skipper record."""
    vocabulary = make_vocabulary(rng)
    names = [camera_name(rng, vocabulary).encode("latin-1") for _ in range(20000)] + ODD_NAMES * 20
    while True:
        for name in rng.choices(names, k=1000):
            chance = rng.random()
            longitude, latitude = int(rng.random() * 4000000) - 1000000, int(rng.random() * 3500000) - 100000
            point = b"\2" + struct.pack("<iii", 14 + len(name), longitude, latitude) + name + b"\0"
            if chance < 0.03:
                gap = rng.randrange(40)
                yield b"\0" + struct.pack("<i", 5 + gap) + b"\2" * gap + point
            elif chance < 0.05:
                yield b"\1" + b"\3" * 20 + point
            else:
                yield point


def txt_lines(rng, speeds):
    """Endless lines of TXT sources without their ends."""
    speed_texts = [str(5 * number) for number in range(1, speeds + 1)]
    while True:
        kinds = rng.choices("12345", weights=[5, 1, 2, 1, 3], k=1000)
        for kind, speed in zip(kinds, rng.choices(speed_texts, k=1000)):
            chance = rng.random()
            if chance < 0.02:
                yield rng.choice(ODD_TXT_LINES)
                continue
            comma = " , " if chance < 0.05 else ","
            fields = [f"{rng.random() * 40 - 10:.5f}", f"{rng.random() * 35 + 35:.5f}", kind, speed]
            if chance < 0.7:
                fields += [str(rng.randint(0, 2)), str(rng.randrange(0, 360, 5))]
            yield comma.join(fields)


def txt_source(number, lines):
    line_end = "\n" if number % 10 == 9 else "\r\n"
    text = line_end.join(["X,Y,TYPE,SPEED,DirType,Direction", *lines])
    return (text + ("" if number % 7 == 3 else line_end)).encode()
