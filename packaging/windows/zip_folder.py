"""Packs a folder: zip_folder.py FOLDER ARCHIVE.zip

The same files give the same bytes, if SOURCE_DATE_EPOCH is set: order, times and rights are not those of the disk."""

import os
import pathlib
import sys
import time
import zipfile

folder, archive = map(pathlib.Path, sys.argv[1:])
moment = time.gmtime(int(os.environ.get("SOURCE_DATE_EPOCH", time.time())))[:6]

with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
    for path in [folder, *sorted(folder.rglob("*"))]:
        name = path.relative_to(folder.parent).as_posix()
        if path.is_dir():
            packed.writestr(zipfile.ZipInfo(name + "/", moment), b"")
        else:
            entry = zipfile.ZipInfo(name, moment)
            packed.writestr(entry, path.read_bytes(), zipfile.ZIP_DEFLATED)
