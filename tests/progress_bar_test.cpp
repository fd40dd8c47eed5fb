#include "base/failure.h"
#include "platform/fakes/services.h"
#include "platform/fakes/toolkit.h"
#include "tools/file_helpers.h"
#include "ui/cProgressBar.h"

#include <gtest/gtest.h>
#include <limits>
#include <map>

namespace halvenmoor {
namespace {

using forms::Color;
using forms::Rgb;

constexpr Color kRed = Rgb(255, 0, 0);
constexpr Color kGreen = Rgb(0, 255, 0);

/// A red bar on green paper of 100 by 20 pixels, with a text.
class ProgressBarTest : public testing::Test {
protected:
    ProgressBarTest() {
        desktop.Show(form);
        bar.SetPicBox(&box);
        bar.SetMax(200);
        bar.SetShowText(true);
        bar.SetBackColor(kGreen);
        bar.SetBarColor(kRed);
    }

    /// The colours of a row from left to right, each with the number of its pixels.
    std::string Row(int y) {
        const std::map<Color, std::string> names{{Rgb(0, 0, 0), "black"},
                                                 {Rgb(255, 255, 255), "white"},
                                                 {kRed, "red"},
                                                 {kGreen, "green"},
                                                 {theme.Colors.at(forms::kButtonHighlightNumber), "light"},
                                                 {theme.Colors.at(forms::kButtonShadowNumber), "shadow"}};
        std::string row;
        for (int x = 0, begin = 0; x < 100; ++x) {
            if (x < 99 && Paper().At(x, y) == Paper().At(x + 1, y)) continue;
            row += (begin > 0 ? ", " : "") + std::to_string(x + 1 - begin) + ' ' + names.at(Paper().At(x, y));
            begin = x + 1;
        }
        return row;
    }

    fakes::MemoryCanvas& Paper() { return static_cast<fakes::MemoryCanvas&>(*box.GetCanvas()); }

    headless::SkippingClock clock;
    fakes::WatchedToolkit toolkit{clock};
    forms::Desktop desktop{toolkit, [](std::string_view text) { return std::string(text); }};
    forms::Form form{desktop, {}};
    forms::PictureBox box{{.form = form, .name = "box", .bounds = {0, 0, 1500, 300}, .bordered = true}};
    fakes::FixedTheme theme;
    cProgressBar bar{theme};
};

TEST_F(ProgressBarTest, TextColoursMeetAtTheEdgeOfTheBar) {
    bar.SetValue(100);
    EXPECT_EQ(Paper().LastText(), "50%");
    EXPECT_EQ(bar.Percent(), 50.0);
    // The text is 21 pixels wide and 9 high: from 39 to 60, and from 5 to 14.
    EXPECT_EQ(Row(10), "1 shadow, 38 red, 11 white, 10 black, 39 green, 1 light");
    EXPECT_EQ(Row(0), "100 shadow");
    EXPECT_EQ(Row(19), "1 shadow, 99 light") << "the bottom line ends before its last pixel";
}

TEST_F(ProgressBarTest, StaysWithinItsRangeAndRoundsHalvesToEvenNumbers) {
    const std::pair<int, const char*> cases[] = {{-201, "0% 1 shadow, 98 green, 1 light"},
                                                 {25, "12% 1 shadow, 11 red, 87 green, 1 light"},
                                                 {27, "14% 1 shadow, 13 red, 85 green, 1 light"},
                                                 {201, "100% 1 shadow, 98 red, 1 light"}};
    for (const auto& [value, shown] : cases) {
        bar.SetValue(value);
        EXPECT_EQ(Paper().LastText() + " " + Row(2), shown);
    }
}

TEST_F(ProgressBarTest, RangeOfNothingAndOverflowFail) {
    EXPECT_EQ(FailureNumber([this] { bar.SetMax(0); }), failure::DivisionByZero);
    EXPECT_EQ(bar.Max(), 0);
    EXPECT_EQ(FailureNumber([this] { bar.SetMin(std::numeric_limits<std::int32_t>::min()); }),
              failure::Overflow);
}

}  // namespace
}  // namespace halvenmoor
