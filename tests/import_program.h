#pragma once

#include "import/frmImport.h"
#include "program.h"

#include <functional>
#include <string>
#include <string_view>

namespace halvenmoor {

/// Typed text, as it stands in a camera file.
inline std::string Crlf(std::string_view text) {
    std::string bytes;
    for (const char character : text)
        bytes += character == '\n' ? std::string("\r\n") : std::string{character};
    return bytes;
}

/// The whole program in memory, running in normal mode:
///
///     ImportProgram program;
///     program.AddTxt("a", "1.5,52.5,1,50\n");
///     EXPECT_EQ(program.Import(kTxt), "PictureFinished");
///     EXPECT_EQ(program.Items(0), Strings{"Fixed_Camera_050"});
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
    /// The names of all files in the camera folder.
    Names CameraFolder() { return memory.CreateFileSystemObject()->GetFolder("/p/asc")->Files(); }

    /// Opens the dialog, lets the user act in it, and closes it by Escape if it is still open.
    void Open(const std::function<void(frmImport&)>& act) {
        bool shown = false;
        toolkit.Script([&](forms::Form& form) {
            shown = true;
            act(static_cast<frmImport&>(form));
            form.UserEscape();
        });
        Click(Window().ButtonImportFiles);
        EXPECT_TRUE(shown);
        toolkit.ForgetScript();
    }
    /// One import; look sees the dialog when it is done. Returns the name of the picture that it ends with.
    std::string Import(int source, const std::function<void(frmImport&)>& look = {}) {
        std::string picture;
        Open([&](frmImport& dialog) {
            Click(dialog.OptionSource[source]);
            Click(dialog.ButtonStart);
            picture = PictureOf(dialog);
            ExpectDone(dialog);
            if (look) look(dialog);
        });
        return picture;
    }

    static std::string PictureOf(const frmImport& dialog) {
        std::string shown;
        for (const forms::PictureBox* picture : {&dialog.PictureNoDelete, &dialog.PictureDelete,
                                                 &dialog.PictureFinished, &dialog.PictureIncomplete}) {
            if (picture->Visible()) shown += picture->Name();
        }
        return shown;
    }
    static void ExpectDone(const frmImport& dialog) {
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_FALSE(dialog.ButtonStart.Enabled());
        EXPECT_FALSE(dialog.ButtonCancel.Enabled());
        EXPECT_TRUE(dialog.ButtonFinish.Enabled());
        EXPECT_TRUE(dialog.ButtonFinish.HasFocus());
        EXPECT_EQ(dialog.CancelButton(), &dialog.ButtonFinish);
    }
};

}  // namespace halvenmoor
