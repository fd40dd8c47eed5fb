#include "base/failure.h"
#include "platform/headless/services.h"
#include "platform/headless/toolkit.h"
#include "tools/file_helpers.h"
#include "ui/cProgressBar.h"

#include <gtest/gtest.h>
#include <limits>
#include <map>

namespace halvenmoor {
namespace {

using forms::Color;
using forms::Rgb;

constexpr Color black = Rgb(0, 0, 0);
constexpr Color white = Rgb(255, 255, 255);
constexpr Color red = Rgb(255, 0, 0);
constexpr Color green = Rgb(0, 255, 0);
constexpr Color blue = Rgb(0, 0, 255);
// The system colours of FixedTheme.
constexpr Color shadow = Rgb(128, 128, 128);
constexpr Color light = Rgb(254, 254, 254);
constexpr Color face = Rgb(192, 192, 192);
constexpr Color highlight = Rgb(0, 0, 128);

/// A red bar on green paper of 100 by 20 pixels, with a text; blue pixels are untouched.
class ProgressBarTest : public testing::Test {
protected:
    ProgressBarTest() {
        desktop.Show(form);
        Paper().FillRect(Paper().ClientRect(), blue);
    }

    void ShowBar() {
        bar.SetPicBox(&box);
        bar.SetMax(200);
        bar.SetShowText(true);
        bar.SetBackColor(green);
        bar.SetBarColor(red);
    }

    /// The colours of a row from left to right, each with the number of its pixels.
    std::string Row(int y) {
        static const std::map<Color, std::string> names{
            {black, "black"}, {white, "white"},   {red, "red"},   {green, "green"},        {blue, "blue"},
            {light, "light"}, {shadow, "shadow"}, {face, "face"}, {highlight, "highlight"}};
        std::string row;
        for (int x = 0, begin = 0; x < 100; ++x) {
            if (x < 99 && Paper().At(x, y) == Paper().At(x + 1, y)) continue;
            row += (begin > 0 ? ", " : "") + std::to_string(x + 1 - begin) + ' ' + names.at(Paper().At(x, y));
            begin = x + 1;
        }
        return row;
    }

    headless::MemoryCanvas& Paper() { return static_cast<headless::MemoryCanvas&>(*box.GetCanvas()); }

    headless::ManualClock clock;
    headless::HeadlessToolkit toolkit{clock};
    forms::Desktop desktop{toolkit, [](std::string_view text) { return std::string(text); }};
    forms::Form form{desktop, {}};
    forms::PictureBox box{{.form = form, .name = "box", .bounds = {0, 0, 1500, 300}, .bordered = true}};
    headless::FixedTheme theme;
    cProgressBar bar{theme};
};

TEST_F(ProgressBarTest, TextColoursMeetAtTheEdgeOfTheBar) {
    ShowBar();
    bar.SetValue(100);
    EXPECT_EQ(Paper().LastText(), "50%");
    EXPECT_EQ(bar.Percent(), 50.0);
    // The text is 21 pixels wide and 9 high: from 39 to 60, and from 5 to 14.
    EXPECT_EQ(Row(10), "1 shadow, 38 red, 11 white, 10 black, 39 green, 1 light");
    EXPECT_EQ(Row(4), "1 shadow, 49 red, 49 green, 1 light");
}

TEST_F(ProgressBarTest, HalvesGoToTheEvenNeighbour) {
    ShowBar();
    bar.SetValue(25);
    EXPECT_EQ(bar.Percent(), 12.5);
    EXPECT_EQ(Paper().LastText() + " " + Row(2), "12% 1 shadow, 11 red, 87 green, 1 light");
    bar.SetValue(27);
    EXPECT_EQ(Paper().LastText() + " " + Row(2), "14% 1 shadow, 13 red, 85 green, 1 light");
}

TEST_F(ProgressBarTest, ValuesOutsideTheRangeGiveAnEmptyAndAFullBar) {
    ShowBar();
    bar.SetMin(-200);
    bar.SetValue(-201);
    EXPECT_EQ(Paper().LastText(), "0%");
    EXPECT_EQ(bar.Percent(), 0.0);
    EXPECT_EQ(Row(10), "1 shadow, 42 green, 14 black, 42 green, 1 light");
    bar.SetValue(201);
    EXPECT_EQ(Paper().LastText(), "100%");
    EXPECT_EQ(bar.Percent(), 100.0);
    EXPECT_EQ(Row(10), "1 shadow, 35 red, 28 white, 35 red, 1 light");
}

TEST_F(ProgressBarTest, FrameIsSunkenAndLeavesOutTheLastPixelOfItsLines) {
    ShowBar();
    EXPECT_EQ(Row(0), "100 shadow");
    EXPECT_EQ(Row(1), "1 shadow, 98 green, 1 light");
    EXPECT_EQ(Row(18), "1 shadow, 98 green, 1 light");
    EXPECT_EQ(Row(19), "1 shadow, 99 light") << "the bottom line ends before its last pixel";
}

TEST_F(ProgressBarTest, InitialColoursFillNothingAndNoTextIsDrawnUnlessWanted) {
    bar.SetPicBox(&box);
    EXPECT_EQ(Paper().Refreshes(), 0) << "handing over the box draws nothing";
    EXPECT_FALSE(box.Bordered());
    bar.SetValue(50);
    EXPECT_EQ(Row(10), "1 shadow, 98 blue, 1 light");
    EXPECT_EQ(Paper().LastText(), "");
    EXPECT_EQ(bar.Percent(), 50.0);
    bar.SetBackColor(forms::kButtonFace);
    bar.SetBarColor(forms::kHighlight);
    EXPECT_EQ(Row(10), "1 shadow, 49 highlight, 49 face, 1 light");
    EXPECT_EQ(Paper().Refreshes(), 3) << "each change is on the screen at once";
}

TEST_F(ProgressBarTest, WithoutABoxValuesAreOnlyStored) {
    bar.SetMax(10);
    bar.SetValue(5);
    EXPECT_EQ(bar.Percent(), 0.0);
    bar.SetPicBox(&box);
    bar.SetPicBox(nullptr);
    EXPECT_EQ(bar.PicBox(), &box);
    bar.Draw();
    EXPECT_EQ(bar.Percent(), 50.0);
}

TEST_F(ProgressBarTest, RangeOfNothingAndOverflowFail) {
    ShowBar();
    EXPECT_EQ(FailureNumber([this] { bar.SetMax(0); }), failure::DivisionByZero);
    EXPECT_EQ(bar.Max(), 0);
    EXPECT_EQ(FailureNumber([this] { bar.SetMin(std::numeric_limits<std::int32_t>::min()); }),
              failure::Overflow);
}

}  // namespace
}  // namespace halvenmoor
