#pragma once

#include "tests/support/test_program.h"
#include "tools/user_actions.h"

#include <functional>
#include <string>
#include <string_view>

namespace halvenmoor {

/// A point record of an OV2 file: 1.5, 52.5, "n".
const std::string kPoint("\2\xf\0\0\0\xf0\x49\2\0\xd0\x1b\x50\0n\0", 15);

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
        EXPECT_TRUE(TestProgram::Open(Window().ButtonImportFiles, act));
    }
    /// One import; look sees the dialog when it is done. Returns the name of the picture that it ends with.
    std::string Import(int source, const std::function<void(frmImport&)>& look = {}) {
        bool looked = false;
        const std::string picture = UserImports(*this, Window(), source, [&](frmImport& dialog) {
            looked = true;
            ExpectDone(dialog);
            if (look) look(dialog);
        });
        EXPECT_TRUE(looked) << "the dialog did not open or closed by itself";
        return picture;
    }

    static void ExpectDone(const frmImport& dialog) {
        EXPECT_TRUE(dialog.IsOpen() && !dialog.Busy());
        EXPECT_FALSE(dialog.ButtonStart.Enabled());
        EXPECT_FALSE(dialog.ButtonCancel.Enabled());
        EXPECT_TRUE(dialog.ButtonFinish.Enabled());
        EXPECT_TRUE(dialog.ButtonFinish.HasFocus());
        EXPECT_EQ(dialog.CancelButton(), &dialog.ButtonFinish);
    }
};

}  // namespace halvenmoor
