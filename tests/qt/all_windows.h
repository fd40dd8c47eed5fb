#pragma once

#include "export/frmExport.h"
#include "export/frmResults.h"
#include "import/frmImport.h"
#include "program_fixture.h"
#include "tests/support/temporary_folder.h"
#include "ui/frmRename.h"
#include "ui/language/cNamesClass.h"

#include <filesystem>
#include <functional>
#include <utility>

namespace halvenmoor::qt {

/// A window that is looked at and closes, in place of what it does otherwise.
template <class Window>
class Shown : public Window {
public:
    template <class... Arguments>
    explicit Shown(std::function<void(Window&)> look, Arguments&&... arguments)
        : Window(std::forward<Arguments>(arguments)...), look_(std::move(look)) {}

protected:
    void Activate() override {
        look_(*this);
        this->Unload();
    }

private:
    std::function<void(Window&)> look_;
};

/// The program with all languages that come with it, and a camera file whose row is selected.
class AllWindows : public ProgramWindows {
protected:
    AllWindows() {
        for (const auto& file : std::filesystem::directory_iterator(HALVENMOOR_DATA "/lang")) {
            memory.Put("/p/lang/" + FromStandard(file.path().filename()), BytesOf(file));
        }
        AddDemoFile("camera", "");
        program.Start();
        Form().MainList.UserSelect({0}, 0);
    }

    template <class Window, class... Arguments>
    void Look(const std::function<void(Window&)>& prepare, Arguments&&... arguments) {
        bool shown = false;
        Shown<Window> window(
            [&](Window& form) {
                shown = true;
                prepare(form);
                check_(form);
            },
            std::forward<Arguments>(arguments)...);
        program.Desktop().ShowModal(window);
        EXPECT_TRUE(shown);
    }

    /// Opens each window in all its states, and checks it.
    void LookAtAllWindows(const std::function<void(forms::Form&)>& check) {
        const cNamesClass& names = *program.Core().Names;
        check_ = check;
        check_(Form());
        for (const std::int16_t mode : {kReplaceFile, kAppendToFile}) {
            program.Core().ExportMode = mode;
            Look<frmExport>([](auto&) {}, program.Exports());
            Look<frmResults>([](auto&) {}, program.Exports());
        }
        Look<frmImport>(
            [&](frmImport& form) {
                form.LabelSourceFiles.SetCaption("32767 " + names.LabelNumberOfFiles() + "(s)");
                form.LabelAddedRecords.SetCaption("1000000 " + names.LabelNumberOfCameras() + "(s)");
            },
            Form());
        Look<frmRename>([](auto&) {}, program.Core(), Form().MainList);
    }

private:
    std::function<void(forms::Form&)> check_;
};

}  // namespace halvenmoor::qt
