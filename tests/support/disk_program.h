#pragma once

#include "tests/support/journeys.h"
#include "tests/support/temporary_folder.h"

#include <filesystem>
#include <string>
#include <unistd.h>

namespace halvenmoor {

/// A small program folder as at first, and nothing else.
inline void InstallFiles(const TemporaryFolder& folder) {
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
        std::filesystem::remove_all(entry.path());
    for (const char* name : {"asc", "txt", "lang", "import/ov2", "import/txt"}) folder.AddFolder(name);
    folder.Put("Settings.ini", "[Type1]\nfixed*\n[Settings]\nSourceStructure=1\n");
    folder.Put("lang/deutsch.ini", "[Halvenmoor]\nButtonExitApplication=beenden\n");
    folder.Put("asc/fixed_50.asc", "1.5, 52.5, \"a\"\r\n");
    folder.Put("asc/fixed_60.asc", "2.5, 52.5, \"b\"\r\n");
    folder.Put("import/ov2/one.ov2", kPoint);
    folder.Put("import/txt/one.txt", "1.5,52.5,1,50\n");
    folder.Put("txt/old.txt", kHeader + "9.5,59.5,1,50,0,0\r\n");
    folder.Put("elsewhere/kept.asc", "4.5, 54.5, \"e\"\r\n");
}

/// The bytes of all files by their paths in the folder; of a link, its target.
inline Disk AllFiles(const TemporaryFolder& folder) {
    Disk all;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path())) {
        const std::string name = entry.path().lexically_relative(folder.Path()).string();
        if (entry.is_symlink()) {
            all[name] = "-> " + std::filesystem::read_symlink(entry.path()).string();
        } else if (entry.is_regular_file()) {
            all[name] = ::access(entry.path().c_str(), R_OK) == 0 ? folder.Text(name) : "(closed)";
        }
    }
    return all;
}

/// The program over a folder of real files, in normal mode.
struct DiskProgram : fakes::Fakes {
    explicit DiskProgram(const TemporaryFolder& folder) : Fakes(folder.Path()) {
        settings.SaveSetting("Halvenmoor", "Settings", "DemoMode", "0");
        program.Start();
    }

    frmMain& Window() { return program.MainForm(); }

    /// Whether the results came up. The path is that of a file dialog.
    bool Export(int mode = 1, const std::string& path = "") {
        Window().ButtonClassifyFiles.UserPress();
        return UserExports(toolkit, fileDialogs, Window(), mode, path);
    }
    /// The picture at the end.
    std::string Import(int source) {
        return UserImports(toolkit, Window(), source, ImportProgram::ExpectDone);
    }
    void Rename(const std::string& entry, const std::string& newName) {
        UserRenames(toolkit, Window(), entry, newName);
    }

    std::unique_ptr<system::PathFinder> finder = system::MakePathFinder(locale.CodePage());
    system::DiskFileSystem fileSystem{*finder};
    system::DiskHostFiles hostFiles{*finder};
    Program program{With(fileSystem, hostFiles), toolkit};
};

}  // namespace halvenmoor
