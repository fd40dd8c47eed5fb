"""Packs a folder: zip_folder.py FOLDER ARCHIVE.zip

The same files give the same bytes, if SOURCE_DATE_EPOCH is set: order, times and rights are not those of the disk."""

import os
import pathlib
import sys
import time
import zipfile

# As those of Unix, whose tools take the names of other entries for old ones of 8 bits.
FOLDER_RIGHTS = 0o40755 << 16
FILE_RIGHTS = 0o100644 << 16

folder, archive = map(pathlib.Path, sys.argv[1:])
moment = time.gmtime(int(os.environ.get("SOURCE_DATE_EPOCH", time.time())))[:6]

with zipfile.ZipFile(archive, "w") as packed:
    for path in [folder, *sorted(folder.rglob("*"))]:
        is_folder = path.is_dir()
        entry = zipfile.ZipInfo(path.relative_to(folder.parent).as_posix() + "/" * is_folder, moment)
        entry.external_attr = FOLDER_RIGHTS if is_folder else FILE_RIGHTS
        packed.writestr(entry, b"" if is_folder else path.read_bytes(), zipfile.ZIP_DEFLATED)
