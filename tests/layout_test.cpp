#include "platform/fakes/toolkit.h"
#include "ui/layouts/frmExportLayout.h"
#include "ui/layouts/frmImportLayout.h"
#include "ui/layouts/frmMainLayout.h"
#include "ui/layouts/frmRenameLayout.h"
#include "ui/layouts/frmResultsLayout.h"

#include <gtest/gtest.h>
#include <set>

namespace halvenmoor {
namespace {

using forms::Bounds;
using forms::Control;

/// Where a control lies on its window.
Bounds OnWindow(const Control& control) {
    Bounds place = control.AtDesign().bounds;
    if (const Control* frame = control.AtDesign().frame) {
        place.left += frame->AtDesign().bounds.left;
        place.top += frame->AtDesign().bounds.top;
    }
    return place;
}

bool Contains(const Bounds& a, const Bounds& b) {
    return a.left <= b.left && a.top <= b.top && b.left + b.width <= a.left + a.width &&
           b.top + b.height <= a.top + a.height;
}

bool Overlap(const Bounds& a, const Bounds& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

class LayoutTest : public testing::Test {
protected:
    headless::SkippingClock clock;
    fakes::WatchedToolkit toolkit{clock};
    forms::Desktop desktop{toolkit, [](std::string_view text) { return std::string(text); }};
    frmMainLayout main{desktop};
    frmResultsLayout results{desktop};
    frmImportLayout imports{desktop};
    frmExportLayout exports{desktop};
    frmRenameLayout renames{desktop};
    const std::vector<forms::Form*> all{&main, &results, &imports, &exports, &renames};
};

TEST_F(LayoutTest, EachControlHasANameAndATabNumberOfItsOwn) {
    for (const forms::Form* form : all) {
        std::set<std::string> names;
        std::set<int> tabs;
        for (const Control* control : form->Controls()) {
            EXPECT_TRUE(names.insert(control->Name()).second) << control->Name();
            EXPECT_TRUE(tabs.insert(control->AtDesign().tab).second) << control->Name();
        }
        EXPECT_EQ(*tabs.rbegin(), static_cast<int>(tabs.size()) - 1) << form->Caption();
    }
}

TEST_F(LayoutTest, ControlsLieWithinTheirWindowOrFrame) {
    for (const forms::Form* form : all) {
        for (const Control* control : form->Controls()) {
            const Bounds whole{0, 0, form->AtDesign().width, form->AtDesign().height};
            const Control* const frame = control->AtDesign().frame;
            EXPECT_TRUE(Contains(frame ? OnWindow(*frame) : whole, OnWindow(*control))) << control->Name();
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

}  // namespace
}  // namespace halvenmoor
