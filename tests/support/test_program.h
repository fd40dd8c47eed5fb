#pragma once

#include "batch/user_actions.h"
#include "catalogue/frmMain.h"
#include "export/frmResults.h"
#include "platform/fakes/failing_files.h"
#include "platform/fakes/fakes.h"
#include "platform/fakes/memory_files.h"
#include "platform/headless/list_actions.h"
#include "src/program.h"
#include "tools/file_helpers.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor {

/// What each target begins with.
inline const std::string kHeader = "X,Y,TYPE,SPEED,DirType,Direction\r\n";
/// What an imported camera file begins with, by SourceStructure.
inline const std::string kComment = "; Generic Ascii file created by Halvenmoor.\r\n\r\n";
inline const std::string kComment2 =
    "; Generic Ascii file created by Halvenmoor. (Extended with DirType and Direction).\r\n\r\n";
inline const std::string kComment3 =
    "; Generic Ascii file created by Halvenmoor. (Extended with Direction and DirType).\r\n\r\n";

inline std::string Repeated(std::string_view text, std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += text;
    return all;
}

/// Typed text, as it stands in a file of the program.
inline std::string Crlf(std::string_view text) {
    std::string bytes;
    for (const char character : text)
        bytes += character == '\n' ? std::string("\r\n") : std::string{character};
    return bytes;
}

/// The whole program in memory, in the folder /p. A test prepares files and options, then starts it:
///
///     TestProgram program;
///     program.AddCameraFile("Fixed_50", "13.4,52.5,\"Berlin\"\n");
///     program.Start();
///     program.Move(1, {"Fixed_50"});
///     EXPECT_TRUE(program.Export());
///     EXPECT_EQ(program.Target(), "...");
///
/// The store of options is empty, so the program starts in demonstration mode unless the test says otherwise.
struct TestProgram : fakes::Fakes {
    /// The folders as installed and a Settings.ini without any pattern; no camera files and no languages.
    TestProgram() {
        for (const char* folder :
             {"/p/asc", "/p/txt", "/p/lang", "/p/import/ov2", "/p/import/txt", "/p/demo/asc_demo",
              "/p/demo/txt_demo", "/p/demo/asc", "/p/demo/import/ov2", "/p/demo/import/txt"}) {
            memory.AddFolder(folder);
        }
        SetSettings("");
        toolkit.OnStuck = [](const forms::Form& form) {
            ADD_FAILURE() << form.AtDesign().name << " is open and nothing closes it";
        };
    }

    void Start() { program.Start(); }

    // Files and options

    void SetSettings(std::string_view text) { memory.Put("/p/Settings.ini", text); }
    /// A language file by its name without ".ini"; the lines are those of the one section.
    void AddLanguage(const std::string& name, const std::string& lines) {
        memory.Put("/p/lang/" + name + ".ini", "[Halvenmoor]\n" + lines);
    }
    void SetOption(std::string_view name, std::string_view value) {
        settings.SaveSetting("Halvenmoor", "Settings", name, value);
    }
    std::string Option(std::string_view name, std::string_view defaultValue = "(none)") {
        return settings.GetSetting("Halvenmoor", "Settings", name, defaultValue);
    }
    bool Demonstration() { return Option("DemoMode", "1") == "1"; }

    std::string CameraPath(const std::string& entry) {
        return (Demonstration() ? "/p/demo/asc_demo/" : "/p/asc/") + entry + ".asc";
    }
    void AddCameraFile(const std::string& entry, std::string_view text = "") {
        memory.Put(CameraPath(entry), text);
    }

    std::string TargetPath() {
        return Demonstration() ? "/p/demo/txt_demo/SpeedCamText.txt" : "/p/txt/SpeedCamText.txt";
    }
    std::string ResultsPath() {
        return Demonstration() ? "/p/demo/Export Results.txt" : "/p/Export Results.txt";
    }
    /// The bytes of a file, "(none)" when it is missing.
    std::string Text(const std::string& path) const {
        return memory.Has(path) ? memory.Text(path) : "(none)";
    }
    std::string Target() { return Text(TargetPath()); }
    std::string ResultsFile() { return Text(ResultsPath()); }

    // What the user sees and does

    frmMain& Window() { return program.MainForm(); }
    modExport& Exports() { return program.Exports(); }
    /// TypeList(1) to TypeList(5); 0 is MainList.
    forms::ListBox& List(int number) { return number == 0 ? Window().MainList : Window().TypeList[number]; }
    Strings Items(int number) { return headless::ItemsOf(List(number)); }

    template <class Button>
    void Click(Button& button) {
        EXPECT_TRUE(button.UserPress()) << button.Name();
    }
    void Select(int number, const Strings& names) {
        EXPECT_TRUE(headless::Select(List(number), names)) << "list " << number;
    }
    /// Drags entries of one list to another.
    void Drag(int from, int to, const Strings& names) {
        Select(from, names);
        EXPECT_TRUE(headless::Drag(List(from), List(to))) << from << " to " << to;
    }
    /// Gives unclassified entries a type.
    void Move(int type, const Strings& names) { Drag(0, type, names); }

    /// Clicks a button. If a dialog shows up, hands it to action and closes it by Escape should it still be
    /// open. True when it showed up.
    template <class Dialog>
    bool Open(forms::CommandButton& button, const std::function<void(Dialog&)>& action) {
        bool shown = false;
        toolkit.Script([&](forms::Form& form) {
            shown = true;
            if (action) action(static_cast<Dialog&>(form));
            form.UserEscape();
        });
        Click(button);
        toolkit.ForgetScript();
        return shown;
    }
    /// Exports with the present mode. True when the results window showed up.
    bool Export(const std::function<void(frmResults&)>& look = {}) {
        return Open(Window().ButtonExportCameras, look);
    }
    /// Mode 2 saves as the path, 3 appends to it.
    bool ExportTo(int mode, const std::string& path, const std::function<void(frmResults&)>& look = {}) {
        Click(Window().OptionExportMode[mode]);
        fileDialogs.Answer = path;
        return Export(look);
    }

    fakes::MemoryFiles memory;
    /// What the program works on: memory, with calls that can be made to fail.
    fakes::FailingFiles files{memory, memory};
    Program program{With(files, files), toolkit};
    modMain& core = program.Core();
    forms::Desktop& desktop = program.Desktop();
};

/// A point record of an OV2 file: 1.5, 52.5, "n".
inline const std::string kPoint("\2\xf\0\0\0\xf0\x49\2\0\xd0\x1b\x50\0n\0", 15);

/// The whole program in memory, running in normal mode, with imports from the folders of sources.
struct ImportProgram : TestProgram {
    static constexpr int kOv2 = 1;
    static constexpr int kTxt = 2;

    explicit ImportProgram(std::string_view iniFile = "[Settings]\nSourceStructure=1\n") {
        SetOption("DemoMode", "0");
        SetSettings(iniFile);
        Start();
    }

    void AddOv2(const std::string& name, std::string_view bytes) {
        memory.Put("/p/import/ov2/" + name + ".ov2", bytes);
    }
    void AddTxt(const std::string& name, std::string_view bytes) {
        memory.Put("/p/import/txt/" + name + ".txt", bytes);
    }
    std::string Camera(const std::string& entry) { return Text("/p/asc/" + entry + ".asc"); }
    /// The names of the files in the camera folder.
    Strings CameraFolder() { return memory.CreateFileSystemObject()->GetFolder("/p/asc")->Files(); }

    /// Opens the import dialog, as above.
    void Open(const std::function<void(frmImport&)>& action) {
        EXPECT_TRUE(TestProgram::Open(Window().ButtonImportFiles, action));
    }
    /// One import; look sees the dialog when it is done. Returns the name of the picture that it ends with.
    std::string Import(int source, const std::function<void(frmImport&)>& look = {}) {
        bool looked = false;
        const std::string picture = UserImports(toolkit, Window(), source, [&](frmImport& dialog) {
            looked = true;
            ExpectDone(dialog);
            if (look) look(dialog);
        });
        EXPECT_TRUE(looked) << "the dialog did not open or closed by itself";
        return picture;
    }

    static void ExpectDone(const frmImport& dialog) {
        EXPECT_TRUE(dialog.IsOpen() && !dialog.Busy());
        EXPECT_FALSE(dialog.ButtonStart.Enabled() || dialog.ButtonCancel.Enabled());
        EXPECT_TRUE(dialog.ButtonFinish.HasFocus());
        EXPECT_EQ(dialog.CancelButton(), &dialog.ButtonFinish);
    }
};

}  // namespace halvenmoor
