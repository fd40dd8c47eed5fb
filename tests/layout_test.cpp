#include "files_test_helpers.h"
#include "platform/headless/services.h"
#include "platform/headless/toolkit.h"
#include "ui/frmExportLayout.h"
#include "ui/frmImportLayout.h"
#include "ui/frmMainLayout.h"
#include "ui/frmRenameLayout.h"
#include "ui/frmResultsLayout.h"
#include "ui/group_text_color.h"

#include <gtest/gtest.h>
#include <set>
#include <tuple>

namespace halvenmoor {
namespace {

using forms::Control;
using forms::Place;

using Row = std::tuple<int, int, int, int, int>;

/// Place and tab number of a control, as a row of its window's table.
Row RowOf(const Control& control) {
    const Place& place = control.AtDesign().place;
    return {place.left, place.top, place.width, place.height, control.AtDesign().tab};
}

/// Where a control lies on its window.
Place OnWindow(const Control& control) {
    Place place = control.AtDesign().place;
    if (const Control* frame = control.AtDesign().frame) {
        place.left += frame->AtDesign().place.left;
        place.top += frame->AtDesign().place.top;
    }
    return place;
}

bool Overlap(const Place& a, const Place& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

class LayoutTest : public testing::Test {
protected:
    headless::ManualClock clock;
    headless::HeadlessToolkit toolkit{clock};
    forms::Desktop desktop{toolkit, [](std::string_view text) { return std::string(text); }};
    frmMainLayout main{desktop};
    frmResultsLayout results{desktop};
    frmImportLayout imports{desktop};
    frmExportLayout exports{desktop};
    frmRenameLayout renames{desktop};
    const std::vector<forms::Form*> all{&main, &results, &imports, &exports, &renames};
};

TEST_F(LayoutTest, WindowsHaveTheirSizesControlsAndTabNumbers) {
    Strings sizes;
    for (const forms::Form* form : all) {
        const int count = static_cast<int>(form->Controls().size());
        sizes.push_back(form->Caption() + " " + std::to_string(form->AtDesign().width) + "x" +
                        std::to_string(form->AtDesign().height) + " " + std::to_string(count));
        std::set<std::string> names;
        std::set<int> tabs;
        for (const Control* control : form->Controls()) {
            names.insert(control->Name());
            tabs.insert(control->AtDesign().tab);
        }
        EXPECT_EQ(names.size(), form->Controls().size()) << form->Caption();
        EXPECT_EQ(tabs.size(), form->Controls().size()) << form->Caption();
        EXPECT_EQ(*tabs.begin(), 0);
        EXPECT_EQ(*tabs.rbegin(), count - 1);
    }
    EXPECT_EQ(sizes, (Strings{"Halvenmoor 11910x8520 48", "Export Speed Cameras 8955x7260 36",
                              "Import Files 7935x5490 19", "Export Speed Cameras 6990x1830 2",
                              "Rename File 3495x855 4"}));
}

TEST_F(LayoutTest, ControlsLieWithinTheirWindowOrFrame) {
    for (const forms::Form* form : all) {
        for (const Control* control : form->Controls()) {
            SCOPED_TRACE(control->Name());
            const Place& place = control->AtDesign().place;
            const Control* const frame = control->AtDesign().frame;
            EXPECT_GE(std::min(place.left, place.top), 0);
            EXPECT_GT(std::min(place.width, place.height), 0);
            EXPECT_LE(place.left + place.width,
                      frame ? frame->AtDesign().place.width : form->AtDesign().width);
            EXPECT_LE(place.top + place.height,
                      frame ? frame->AtDesign().place.height : form->AtDesign().height);
        }
    }
}

TEST_F(LayoutTest, NothingThatTheUserOperatesIsCovered) {
    for (const forms::Form* form : all) {
        std::vector<const Control*> operated;
        for (Control* control : form->Controls()) {
            control->SetEnabled(true);
            if (control->CanTakeFocus()) operated.push_back(control);
        }
        for (const Control* a : operated) {
            for (const Control* b : operated) {
                EXPECT_FALSE(a != b && Overlap(OnWindow(*a), OnWindow(*b))) << a->Name() << " " << b->Name();
            }
        }
    }
}

TEST_F(LayoutTest, RowsOfTheTables) {
    EXPECT_EQ(RowOf(main.TypeList[5]), Row(1440, 6720, 3375, 1230, 34));
    EXPECT_EQ(RowOf(main.ButtonRemove[3]), Row(4860, 4425, 855, 375, 20));
    EXPECT_EQ(RowOf(main.CheckAuto[1]), Row(4920, 540, 795, 255, 12));
    EXPECT_EQ(RowOf(main.Picture[1]), Row(150, 480, 1230, 1230, 28));
    EXPECT_EQ(RowOf(main.Picture[2]), Row(150, 2040, 1230, 1230, 35));
    EXPECT_EQ(RowOf(main.MainList), Row(5760, 480, 3375, 7470, 29));
    EXPECT_EQ(RowOf(main.OptionExportMode[3]), Row(9360, 6300, 2295, 390, 8));
    EXPECT_EQ(RowOf(main.ButtonExitApplication), Row(9660, 8040, 1695, 375, 11));
    EXPECT_EQ(RowOf(results.FrameType[1]), Row(180, 1080, 8595, 615, 0));
    EXPECT_EQ(RowOf(results.LabelType[5]), Row(120, 240, 3195, 255, 9));
    EXPECT_EQ(RowOf(results.LabelFilesResult[0]), Row(3360, 240, 975, 255, 17));
    EXPECT_EQ(RowOf(results.LabelSkippedResult[5]), Row(7200, 240, 975, 255, 29));
    EXPECT_EQ(results.LabelSkippedResult[0].AtDesign().frame, &results.FrameAllTypes);
    EXPECT_EQ(results.LabelExportedResult[4].AtDesign().frame, &results.FrameType[4]);
    EXPECT_EQ(RowOf(imports.OptionSource[2]), Row(360, 3960, 7215, 416, 4));
    EXPECT_EQ(RowOf(imports.LabelAddedRecords), Row(2520, 1860, 2655, 255, 18));
    EXPECT_EQ(RowOf(exports.picProgress), Row(480, 720, 6025, 285, 1));
    EXPECT_EQ(RowOf(renames.ButtonCancel), Row(2580, 480, 855, 315, 2));
}

TEST_F(LayoutTest, StartValues) {
    Strings on, disabled, hidden;
    for (const forms::Form* form : all) {
        for (const Control* control : form->Controls()) {
            if (control->AtDesign().on) on.push_back(control->Name());
            if (!control->Enabled()) disabled.push_back(control->Name());
            if (!control->Visible()) hidden.push_back(control->Name());
        }
    }
    EXPECT_EQ(on, (Strings{"CheckAuto(1)", "CheckAuto(2)", "CheckAuto(3)", "CheckAuto(4)", "CheckAuto(5)",
                           "CheckDemoMode", "OptionExportMode(1)", "CheckSaveResults", "CheckShowResults",
                           "CheckDelete", "OptionSource(1)"}));
    EXPECT_EQ(disabled, (Strings{"ButtonClassifyFiles", "ButtonRenameFile", "ButtonExportCameras",
                                 "ButtonShowResults", "ButtonFinish"}));
    EXPECT_EQ(hidden, (Strings{"PictureDelete", "PicBox"}));
    EXPECT_EQ(main.LanguageList.Text(), "Language");
    EXPECT_EQ(imports.LabelSourceFolder.Caption(), ".\\import\\xxx\\*.ov2");
    EXPECT_EQ(results.CancelButton(), &results.ButtonCloseResults);
    EXPECT_EQ(imports.CancelButton(), &imports.ButtonCancel);
    EXPECT_EQ(renames.CancelButton(), &renames.ButtonCancel);
    EXPECT_EQ(exports.CancelButton(), nullptr);
    EXPECT_FALSE(exports.AtDesign().closeBox || renames.AtDesign().closeBox);
    EXPECT_TRUE(main.AtDesign().closeBox && results.AtDesign().closeBox && imports.AtDesign().closeBox);
    EXPECT_TRUE(renames.AtDesign().keyPreview && renames.AtDesign().toolWindow);
}

TEST(GroupTextColorTest, HeadingsAreAsTheThemeHasThem) {
    headless::FixedTheme theme;
    EXPECT_EQ(HeadingColor(theme), static_cast<forms::Color>(0x80000012)) << "button text";
    theme.Themed = true;
    EXPECT_EQ(HeadingColor(theme), 0) << "black where the theme does not tell";
    theme.GroupBoxText = forms::Rgb(1, 2, 3);
    EXPECT_EQ(HeadingColor(theme), 0x030201);
}

}  // namespace
}  // namespace halvenmoor
