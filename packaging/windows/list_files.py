"""Lists a program folder for setup.nsi: list_files.py FOLDER LIST.nsh

For each kind of files, there is a macro that adds and one that removes them, made of macros of setup.nsi."""

import pathlib
import sys

folder, target = map(pathlib.Path, sys.argv[1:])


def kind(path):
    if path.match("demo/asc_demo/*"):
        return "Examples"
    return "UserFiles" if path.match("Settings.ini") or path.match("lang/*") else "ProgramFiles"


def windows(path):
    return str(path).replace("/", "\\")


def macro(name, instruction, paths):
    return [f"!macro {name}", *(instruction.format(source=folder / path, path=windows(path)) for path in paths),
            "!macroend"]


paths = [path.relative_to(folder) for path in sorted(folder.rglob("*"))]
folders = [path for path in paths if (folder / path).is_dir()]
files = {"ProgramFiles": [], "UserFiles": [], "Examples": []}
for path in paths:
    if path not in folders:
        files[kind(path)].append(path)

delete = 'Delete "$INSTDIR\\{path}"'
compare = '!insertmacro RemoveIfUnchanged "{source}" "{path}"'
lines = [
    *macro("AddFolders", 'CreateDirectory "$INSTDIR\\{path}"', folders),
    *macro("RemoveFolders", 'RMDir "$INSTDIR\\{path}"', reversed(folders)),
    *macro("AddProgramFiles", '!insertmacro AddFile "{source}" "{path}"', files["ProgramFiles"]),
    *macro("RemoveProgramFiles", delete, files["ProgramFiles"]),
    *macro("AddUserFiles", '!insertmacro AddIfAbsent "{source}" "{path}"', files["UserFiles"]),
    *macro("RemoveUserFiles", compare, files["UserFiles"]),
    *macro("AddExamples", '!insertmacro AddFile "{source}" "{path}"', files["Examples"]),
    *macro("RemoveExamples", compare, files["Examples"]),
    f"!define KILOBYTES {sum((folder / path).stat().st_size for path in paths) // 1024}",
]
target.write_text("\n".join(lines) + "\n", encoding="utf-8")
