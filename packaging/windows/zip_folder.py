"""Packs a folder: zip_folder.py FOLDER ARCHIVE.zip

The same files give the same bytes, if SOURCE_DATE_EPOCH is set: order, times and rights are not those of the disk."""

import os
import pathlib
import sys
import time
import zipfile

WINDOWS = 0  # no rights of Unix
IS_FOLDER = 0x10

folder, archive = map(pathlib.Path, sys.argv[1:])
moment = time.gmtime(int(os.environ.get("SOURCE_DATE_EPOCH", time.time())))[:6]

with zipfile.ZipFile(archive, "w") as packed:
    for path in [folder, *sorted(folder.rglob("*"))]:
        is_folder = path.is_dir()
        entry = zipfile.ZipInfo(path.relative_to(folder.parent).as_posix() + "/" * is_folder, moment)
        entry.create_system = WINDOWS
        entry.external_attr = IS_FOLDER * is_folder
        packed.writestr(entry, b"" if is_folder else path.read_bytes(), zipfile.ZIP_DEFLATED)
